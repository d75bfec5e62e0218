#pragma once
// Profile strings: one text per section and key in an ini file.

#include <QString>

namespace lorvo {

class IniFiles {
  public:
    virtual ~IniFiles() = default;
    /// Section and key are found without regard to case. A missing file, section or key reads as
    /// an empty text. At most 254 characters.
    virtual QString Read(const QString& section, const QString& key, const QString& path) = 0;
    /// Sets one key and leaves every other line of the file as it is. False when the file can't be
    /// written.
    [[nodiscard]] virtual bool Write(const QString& section, const QString& key,
                                     const QString& text, const QString& path) = 0;
};

} // namespace lorvo
