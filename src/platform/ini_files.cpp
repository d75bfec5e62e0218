#include "platform/ini_text.h"
#include "platform/real_services.h"

#include <QFile>
#include <QSaveFile>

namespace lorvo {

namespace {

constexpr qsizetype kLongestValue = 254;

/// Content of a file; empty for one that isn't there.
QByteArray Content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool IsOneLine(const QString& text) {
    return !text.contains(u'\n') && !text.contains(u'\r');
}

class ProfileFiles final : public IniFiles {
  public:
    QString Read(const QString& section, const QString& key, const QString& path) override {
        const auto ini = IniText::FromBytes(Content(path));
        return ini ? ini->Value(section, key).left(kLongestValue) : QString();
    }

    bool Write(const QString& section, const QString& key, const QString& text,
               const QString& path) override {
        auto ini = IniText::FromBytes(Content(path));
        if (!ini || !IsOneLine(section + key + text))
            return false;
        ini->SetValue(section, key, text);
        const QByteArray bytes = ini->ToBytes();
        QSaveFile file(path);
        file.setDirectWriteFallback(true);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() &&
               file.commit();
    }
};

} // namespace

std::unique_ptr<IniFiles> MakeIniFiles() {
    return std::make_unique<ProfileFiles>();
}

} // namespace lorvo
