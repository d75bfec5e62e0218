#include "dogs/type_search_combo.h"

#include "platform/failure_guard.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>

namespace lorvo {

void TypeSearchCombo::keyPressEvent(QKeyEvent* event) {
    Guarded([&] {
        const bool blank = event->key() == Qt::Key_Space;
        const bool within = IsSearching();
        const QString text = event->text();
        if (!text.isEmpty() && text.front().isPrint() && (!blank || within))
            lastTyped_.start();
        if (blank && within)
            SearchOn(text);
        else
            QComboBox::keyPressEvent(event);
    });
}

bool TypeSearchCombo::IsSearching() const {
    return lastTyped_.isValid() && lastTyped_.elapsed() < QApplication::keyboardInputInterval();
}

void TypeSearchCombo::SearchOn(const QString& text) {
    // The letters before went to the list's own search, which the box passes on in the same way.
    view()->setCurrentIndex(model()->index(currentIndex(), modelColumn()));
    view()->keyboardSearch(text);
    const int found = view()->currentIndex().row();
    if (found == currentIndex())
        return;
    setCurrentIndex(found);
    Q_EMIT activated(found);
}

} // namespace lorvo
