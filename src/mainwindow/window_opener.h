#pragma once
// Which windows the program has, by name: commands, menus and links of the main window open them
// through here.

#include "dogs/dog_task.h"
#include "forms/form.h"

#include <QString>
#include <functional>
#include <memory>
#include <variant>

class QWidget;

namespace lorvo {

struct TreeSearch;

/// What a window is opened with; most take nothing.
using WindowInput = std::variant<std::monostate, DogTask, TreeSearch*>;
using WindowFactory =
    std::function<std::unique_ptr<Form>(const WindowInput& input, QWidget* parent)>;

/// Makes the window of that name ("fm_Dog"), shows it modally over the active one and returns it
/// when it has closed. A name without a window raises Error.
std::unique_ptr<Form> Open(const QString& name, const WindowInput& input = {});

/// Puts a window under a name, in place of the one that stands there, which is returned so that a
/// test can put it back.
WindowFactory SetWindow(const QString& name, WindowFactory factory);

} // namespace lorvo
