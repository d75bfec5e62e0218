#include "forms/suggestions.h"

#include <QAbstractItemView>
#include <QCompleter>

namespace lorvo {

void PutSuggestionsIntoWindow(QCompleter& completer) {
    // A later child than the completer, which deletes it.
    completer.popup()->setParent(qobject_cast<QWidget*>(completer.parent()), Qt::Popup);
}

} // namespace lorvo
