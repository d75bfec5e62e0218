#pragma once
// The list of suggestions under a box in which a text is typed.

class QCompleter;

namespace lorvo {

/// Lets the list belong to the window of the box that holds the completer, as the box's menus do;
/// on its own it would stand outside a modal window.
void PutSuggestionsIntoWindow(QCompleter& completer);

} // namespace lorvo
