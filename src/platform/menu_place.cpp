#include "platform/menu_place.h"

#include <utility>

namespace lorvo {

namespace {
std::optional<QPoint> menuPlace;
}

MenuPlace::MenuPlace(QPoint onScreen) : before_(std::exchange(menuPlace, onScreen)) {}

MenuPlace::~MenuPlace() {
    menuPlace = before_;
}

std::optional<QPoint> MenuPlace::Current() {
    return menuPlace;
}

} // namespace lorvo
