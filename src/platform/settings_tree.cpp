#include "platform/real_services.h"

#include <QSettings>

namespace lorvo {

namespace {

class StoredSettings final : public SettingsTree {
  public:
    StoredSettings(const QString& place, QSettings::Format format)
        : settings_(place, format), writable_(settings_.isWritable()) {}

    QString Read(const QString& key, const QString& name) override {
        const QVariant value = settings_.value(PathOf(key, name));
        if (value.metaType() != QMetaType::fromType<QString>())
            return {};
        const QString text = value.toString();
        return text.left(text.indexOf(QChar(u'\0')));
    }

    void Write(const QString& key, const QString& name, const QString& text) override {
        if (writable_)
            settings_.setValue(PathOf(key, name), text);
    }

  private:
    static QString PathOf(const QString& key, const QString& name) {
        QString path = key + u'\\' + name;
        return path.replace(u'\\', u'/');
    }

    QSettings settings_;
    bool writable_;
};

} // namespace

std::unique_ptr<SettingsTree> MakeSettingsTree([[maybe_unused]] const QString& programFolder) {
#ifdef Q_OS_WIN
    return std::make_unique<StoredSettings>(u"HKEY_LOCAL_MACHINE"_qs, QSettings::NativeFormat);
#else
    return std::make_unique<StoredSettings>(programFolder + u"/Lorvo.settings"_qs,
                                            QSettings::IniFormat);
#endif
}

} // namespace lorvo
