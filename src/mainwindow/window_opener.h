#pragma once
// Which windows the program has, by name: commands, menus and links of the main window open them
// through here.

#include "forms/form.h"

#include <QString>
#include <functional>
#include <memory>

class QWidget;

namespace lorvo {

using WindowFactory = std::function<std::unique_ptr<Form>(QWidget* parent)>;

/// Whether there is a window of that name ("fm_Dog").
bool CanOpen(const QString& name);
/// Makes the window, shows it modally over the active one and returns it when it has closed. A name
/// without a window raises Error.
std::unique_ptr<Form> Open(const QString& name);

/// Puts a window under a name, in place of the one that stands there; an empty factory takes the
/// name out. Returns what stood there, so that a test can put it back.
WindowFactory SetWindow(const QString& name, WindowFactory factory);

} // namespace lorvo
