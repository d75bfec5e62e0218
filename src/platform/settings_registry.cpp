// On Windows: the registry, for the whole machine.

#include "platform/real_services.h"

#include <windows.h>

namespace lorvo {

namespace {

const wchar_t* Wide(const QString& text) {
    return reinterpret_cast<const wchar_t*>(text.utf16());
}

/// A key that is open, or none when it isn't there or the user has no right to it.
class RegistryKey {
  public:
    static RegistryKey ToRead(const QString& path) {
        HKEY key = nullptr;
        if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, Wide(path), 0, KEY_QUERY_VALUE, &key) !=
            ERROR_SUCCESS)
            key = nullptr;
        return RegistryKey(key);
    }
    /// Made when it is missing.
    static RegistryKey ToWrite(const QString& path) {
        HKEY key = nullptr;
        if (RegCreateKeyExW(HKEY_LOCAL_MACHINE, Wide(path), 0, nullptr, 0, KEY_SET_VALUE, nullptr,
                            &key, nullptr) != ERROR_SUCCESS)
            key = nullptr;
        return RegistryKey(key);
    }
    ~RegistryKey() {
        if (key_)
            RegCloseKey(key_);
    }
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;

    QString Value(const QString& name) const {
        DWORD type = REG_NONE;
        DWORD bytes = 0;
        if (!key_ ||
            RegQueryValueExW(key_, Wide(name), nullptr, &type, nullptr, &bytes) != ERROR_SUCCESS)
            return {};
        QByteArray data(static_cast<qsizetype>(bytes), '\0');
        if (RegQueryValueExW(key_, Wide(name), nullptr, &type, reinterpret_cast<BYTE*>(data.data()),
                             &bytes) != ERROR_SUCCESS)
            return {};
        data.truncate(static_cast<qsizetype>(bytes));
        if (type == REG_BINARY)
            return NumberIn(data);
        return type == REG_SZ ? TextIn(data) : QString();
    }

    void SetValue(const QString& name, const QString& text) const {
        if (!key_)
            return;
        // The value is as long as the text. The system would take a NUL right behind it along.
        const QString fenced = text + u'.';
        RegSetValueExW(key_, Wide(name), 0, REG_SZ, reinterpret_cast<const BYTE*>(fenced.utf16()),
                       static_cast<DWORD>(text.size() * qsizetype{sizeof(char16_t)}));
    }

  private:
    explicit RegistryKey(HKEY key) : key_(key) {}

    /// With or without a NUL at its end, as whoever wrote it left it.
    static QString TextIn(const QByteArray& data) {
        const QString text = QString::fromUtf16(reinterpret_cast<const char16_t*>(data.constData()),
                                                data.size() / qsizetype{sizeof(char16_t)});
        return text.left(text.indexOf(QChar(u'\0')));
    }

    /// Earlier programs kept small numbers in this form.
    static QString NumberIn(const QByteArray& data) {
        const auto byte = [&data](qsizetype place) {
            return place < data.size() ? static_cast<unsigned char>(data.at(place)) : 0U;
        };
        return QString::number(static_cast<qint16>(byte(0) | byte(1) << 8U));
    }

    HKEY key_;
};

class RegistrySettings final : public SettingsTree {
  public:
    QString Read(const QString& key, const QString& name) override {
        return RegistryKey::ToRead(key).Value(name);
    }
    void Write(const QString& key, const QString& name, const QString& text) override {
        RegistryKey::ToWrite(key).SetValue(name, text);
    }
};

} // namespace

std::unique_ptr<SettingsTree> MakeSettingsTree(const QString&) {
    return std::make_unique<RegistrySettings>();
}

} // namespace lorvo
