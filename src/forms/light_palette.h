#pragma once
// The light ground of what shows colours that carry meaning.

class QWidget;

namespace lorvo {

/// Gives the widget and what lies in it a light palette whole, whatever the desktop's is: the
/// colours that mean something are made for it. Text reaches 4.5 : 1 on its ground, on the
/// selection too.
void KeepLight(QWidget& widget);

} // namespace lorvo
