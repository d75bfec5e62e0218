#pragma once
// Where a menu opens that no pointer asked for.

#include <QPoint>
#include <optional>

namespace lorvo {

/// Where pop-up menus open as long as one lives, in place of the pointer: a menu that a key asked
/// for belongs to what the keyboard stands on.
class MenuPlace {
  public:
    explicit MenuPlace(QPoint onScreen);
    ~MenuPlace();
    MenuPlace(const MenuPlace&) = delete;
    MenuPlace& operator=(const MenuPlace&) = delete;

    /// Nullopt when the pointer tells the place.
    [[nodiscard]] static std::optional<QPoint> Current();

  private:
    std::optional<QPoint> before_;
};

} // namespace lorvo
