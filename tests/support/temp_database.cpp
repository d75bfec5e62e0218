#include "support/temp_database.h"

#include "store/data_module.h"
#include "support/source_file.h"

#include "data_builder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <SQLiteCpp/SQLiteCpp.h>
#include <array>
#include <stdexcept>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

std::string ReadSource(const QString& pathInProject) {
    QFile file(test::SourceFile(pathInProject));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("there is no " + file.fileName().toStdString());
    return file.readAll().toStdString();
}

/// The two files that tests get copies of.
class Templates {
  public:
    Templates() {
        const std::string schema = ReadSource(u"data/schema.sql"_s);
        BuildEmptyDatabase(PathOf(TempDatabase::Content::Empty).toStdString(), schema);
        BuildDeliveredDatabase(PathOf(TempDatabase::Content::Delivered).toStdString(), schema,
                               ReadSource(u"data/fci-breeds.csv"_s));
    }

    QString PathOf(TempDatabase::Content content) const {
        return folder_.filePath(content == TempDatabase::Content::Empty ? u"empty"_s
                                                                        : u"delivered"_s);
    }

  private:
    QTemporaryDir folder_;
};

} // namespace

TempDatabase::TempDatabase(Content content) {
    TheDataModule().Conn1.Open(CopyTo(Folder(), content));
}

TempDatabase::~TempDatabase() {
    TheDataModule().Conn1.Close();
}

QString TempDatabase::FolderTemplate() {
    const QString memory = u"/dev/shm"_s;
    return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + u"/lorvo-XXXXXX"_s;
}

QString TempDatabase::Path() const {
    return folder_.filePath(u"data.mdb"_s);
}

void TempDatabase::Reopen() {
    TheDataModule().Conn1.Close();
    TheDataModule().Conn1.Open(Path());
}

void TempDatabase::Execute(const std::string& sql) {
    SQLite::Database(Path().toStdString(), SQLite::OPEN_READWRITE).exec(sql);
}

QString TempDatabase::CopyTo(const QString& folder, Content content) {
    static const Templates templates;
    const QString path = folder + u"/data.mdb"_s;
    if (!QFile::copy(templates.PathOf(content), path))
        throw std::runtime_error("can't copy a database to " + path.toStdString());
    return path;
}

} // namespace lorvo
