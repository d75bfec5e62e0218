#include "payments/auto_complete_box.h"

#include "forms/suggestions.h"
#include "platform/failure_guard.h"

#include <QCompleter>
#include <QFocusEvent>
#include <QStringListModel>

namespace lorvo {

AutoCompleteBox::AutoCompleteBox(QWidget* parent)
    : QLineEdit(parent), suggestions_(new QStringListModel(this)) {
    auto* offer = new QCompleter(suggestions_, this);
    offer->setCaseSensitivity(Qt::CaseInsensitive);
    setCompleter(offer);
    PutSuggestionsIntoWindow(*offer);
}

void AutoCompleteBox::ClearSuggestions() {
    suggestions_->setStringList({});
}

void AutoCompleteBox::AddSuggestions(const std::vector<QString>& texts) {
    suggestions_->setStringList(suggestions_->stringList() +
                                QStringList(texts.begin(), texts.end()));
}

void AutoCompleteBox::focusInEvent(QFocusEvent* event) {
    Guarded([&] {
        QLineEdit::focusInEvent(event);
        Q_EMIT FocusEntered();
    });
}

void AutoCompleteBox::focusOutEvent(QFocusEvent* event) {
    Guarded([&] {
        QLineEdit::focusOutEvent(event);
        if (event->reason() != Qt::PopupFocusReason &&
            event->reason() != Qt::ActiveWindowFocusReason)
            Q_EMIT FocusLeft();
    });
}

} // namespace lorvo
