#include "bench_shows.h"

#include "app/module_values.h"
#include "platform/docx/docx_word_processor.h"
#include "platform/platform.h"
#include "platform/real_services.h"
#include "show/show_generator.h"
#include "store/data_module.h"

#include <QFile>
#include <QTemporaryDir>
#include <map>
#include <memory>

namespace lorvo::bench {

using namespace Qt::StringLiterals;

namespace {

class OpensNothing : public OpenService {
  public:
    bool OpenFile(const QString&) override { return true; }
    void OpenAddress(const QString&) override {}
};

void MakeShow(const char* size, const QString& path) {
    QFile::copy(QString::fromUtf8(LORVO_DELIVERED_DATABASE), path);
    QFile::setPermissions(path, QFile::permissions(path) | QFile::WriteOwner);
    Connection& connection = TheDataModule().Conn1;
    connection.Close();
    connection.Open(path);
    show::GenerateShow(*show::SizeNamed(size), 1, show::Numbers::None);
    connection.Close();
}

} // namespace

void InstallPlatform(const QString& programFolder) {
    Platform& platform = ThePlatform();
    platform.programFolder = programFolder;
    platform.opener = std::make_unique<OpensNothing>();
    platform.settings = MakeSettingsTree(programFolder);
    platform.iniFiles = MakeIniFiles();
    platform.locale = MakeLocaleInfo(QLocale(QLocale::Czech, QLocale::CzechRepublic));
    platform.clock = MakeClock();
    platform.wordProcessors =
        std::make_unique<DocxWordProcessors>(*platform.opener, *platform.clock, programFolder);
    Module().MainCurrency = u"Kč"_s;
}

QString ShowFolder(const char* size) {
    static std::map<std::string, std::unique_ptr<QTemporaryDir>> folders;
    auto& folder = folders[size];
    if (!folder) {
        folder = std::make_unique<QTemporaryDir>();
        MakeShow(size, folder->filePath(u"data.mdb"_s));
    }
    return folder->path();
}

void UseShow(const char* size) {
    const QString path = ShowFolder(size) + u"/data.mdb"_s;
    Connection& connection = TheDataModule().Conn1;
    if (connection.IsOpen() && connection.Path() == path)
        return;
    connection.Close();
    connection.Open(path);
    InstallPlatform(ShowFolder(size));
}

} // namespace lorvo::bench
