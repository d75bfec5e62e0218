#include "payments/auto_complete_box.h"

#include "forms/suggestions.h"
#include "platform/failure_guard.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFocusEvent>
#include <QStringListModel>

namespace lorvo {

namespace {

/// A list that offers nothing but what is typed already only lies in the way.
void HideIdleOffer(QCompleter& offer, const QString& typed) {
    const QAbstractItemModel& texts = *offer.completionModel();
    for (int row = 0; row < texts.rowCount(); ++row)
        if (texts.index(row, 0).data().toString() != typed)
            return;
    offer.popup()->hide();
}

} // namespace

AutoCompleteBox::AutoCompleteBox(QWidget* parent)
    : QLineEdit(parent), suggestions_(new QStringListModel(this)) {
    auto* offer = new QCompleter(suggestions_, this);
    offer->setCaseSensitivity(Qt::CaseInsensitive);
    setCompleter(offer);
    PutSuggestionsIntoWindow(*offer);
    // The toolkit opens the list only after it has told of the letter.
    Connect(
        this, &QLineEdit::textEdited, offer,
        [offer](const QString& typed) { HideIdleOffer(*offer, typed); }, Qt::QueuedConnection);
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
