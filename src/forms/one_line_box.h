#pragma once
// Text boxes take one line, whatever a clipboard holds.

class QLineEdit;

namespace lorvo {

/// What is pasted or dropped into the box joins its text as one line (`JoinedLines`): a cell of a
/// spreadsheet brings a line break that nobody sees, and a name with one is another name. To be
/// called after all that listens to the box was connected, so that this hears the last word.
void KeepOnOneLine(QLineEdit& box);

} // namespace lorvo
