// Where there is no registry: one file in the program's folder.

#include "platform/real_services.h"
#include "platform/values/errors.h"
#include "platform/whole_file.h"

#include <QCoreApplication>
#include <QFile>
#include <QLockFile>
#include <QSettings>
#include <QSysInfo>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class FileSettings final : public SettingsTree {
  public:
    explicit FileSettings(const QString& path)
        : settings_(path, QSettings::IniFormat), writable_(settings_.isWritable()),
          earlier_(Content()) {}
    ~FileSettings() override {
        settings_.sync();
        RestoreEmptied();
    }

    QString Read(const QString& key, const QString& name) override {
        const QVariant value = settings_.value(PathOf(key, name));
        if (value.metaType() != QMetaType::fromType<QString>())
            return {};
        const QString text = value.toString();
        return text.left(text.indexOf(QChar(u'\0')));
    }

    void Write(const QString& key, const QString& name, const QString& text) override {
        if (!writable_)
            return;
        RemoveDeadLock();
        settings_.setValue(PathOf(key, name), text);
    }

  private:
    QByteArray Content() const {
        QFile file(settings_.fileName());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// On a full disk the toolkit takes no notice of the failed write and puts an empty file in the
    /// place of the settings.
    void RestoreEmptied() {
        if (earlier_.isEmpty() || !Content().isEmpty())
            return;
        try {
            ReplaceFile(settings_.fileName(), earlier_);
        } catch (const PlatformError&) { // there is no room even for what stood there
        }
    }

    /// The toolkit waits half a minute for a lock beside the file that nobody holds: torn by a
    /// kill, or brought along when the folder was copied from another computer.
    void RemoveDeadLock() const {
        const QString path = settings_.fileName() + u".lock"_s;
        if (!QFile::exists(path))
            return;
        qint64 process = 0;
        QString host;
        QString program;
        const bool readable = QLockFile(path).getLockInfo(&process, &host, &program);
        if (!readable || host != QSysInfo::machineHostName() ||
            process == QCoreApplication::applicationPid())
            QFile::remove(path);
    }

    static QString PathOf(const QString& key, const QString& name) {
        QString path = key + u'\\' + name;
        return path.replace(u'\\', u'/');
    }

    QSettings settings_;
    bool writable_;
    QByteArray earlier_; ///< the file's content when it was opened
};

} // namespace

std::unique_ptr<SettingsTree> MakeSettingsTree(const QString& programFolder) {
    return std::make_unique<FileSettings>(programFolder + u"/Lorvo.settings"_s);
}

} // namespace lorvo
