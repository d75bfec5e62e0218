#pragma once
// The tree of keys with named text values that holds preferences and layouts: the registry on
// Windows, one file in the program's own folder elsewhere.

#include <QString>

namespace lorvo {

class SettingsTree {
  public:
    virtual ~SettingsTree() = default;
    /// `key` is a path with backslashes below the machine-wide root. A missing value, a value of
    /// another type or any failure reads as an empty text; a text is cut at its first NUL.
    virtual QString Read(const QString& key, const QString& name) = 0;
    /// Creates the key when it is missing. Failures are ignored: the value then doesn't persist.
    virtual void Write(const QString& key, const QString& name, const QString& text) = 0;
};

} // namespace lorvo
