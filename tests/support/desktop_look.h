#pragma once
// Desktops that a clerk may have.

#include <QFont>
#include <QPalette>
#include <QString>

namespace lorvo::test {

/// Common letters, or large ones.
enum class DesktopLook { Light, Dark, LightAndLarge, DarkAndLarge };
/// "light", "dark", "light_large", "dark_large"; part of a file's name.
QString NameOf(DesktopLook look);

/// Gives the application the palette and the size of letters for the lifetime of the object.
class WithDesktopLook {
  public:
    explicit WithDesktopLook(DesktopLook look);
    ~WithDesktopLook();
    WithDesktopLook(const WithDesktopLook&) = delete;
    WithDesktopLook& operator=(const WithDesktopLook&) = delete;

  private:
    QPalette palette_;
    QFont font_;
};

} // namespace lorvo::test
