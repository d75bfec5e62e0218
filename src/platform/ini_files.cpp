#include "platform/ini_text.h"
#include "platform/real_services.h"
#include "platform/values/errors.h"
#include "platform/whole_file.h"

#include <QFile>

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
        try {
            ReplaceFile(path, ini->ToBytes());
            return true;
        } catch (const PlatformError&) { // the caller says that it wasn't stored
            return false;
        }
    }
};

} // namespace

std::unique_ptr<IniFiles> MakeIniFiles() {
    return std::make_unique<ProfileFiles>();
}

} // namespace lorvo
