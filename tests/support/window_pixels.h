#pragma once
// What a window looks like, measured on what it paints.

class QString;
class QWidget;

namespace lorvo::test {

/// Fails the test for each text in sight, in labels, buttons, boxes, tabs, headings and cells, that
/// stands too near in colour to its ground. Greyed ones are let off.
void CheckLegible(QWidget& window);

/// Fails the test for a window that reaches out of its screen.
void CheckOnTheScreen(const QWidget& window);

/// Puts a picture of the window into the folder that LORVO_PICTURES names; nothing without one.
void TakePicture(QWidget& window, const QString& name);

} // namespace lorvo::test
