#include "dogs/stored_texts_combo.h"

#include "forms/controls.h"
#include "forms/suggestions.h"
#include "platform/failure_guard.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStringListModel>

namespace lorvo {

StoredTextsCombo::StoredTextsCombo(const QString& name, QWidget* parent)
    : QComboBox(parent), texts_(new QStringListModel(this)), offer_(new QCompleter(texts_, this)) {
    setObjectName(name);
    setEditable(true);
    setInsertPolicy(NoInsert);
    // A list that opens by itself lies over the fields that the clerk goes on to.
    setCompleter(nullptr);
    setModel(texts_);
    PrepareForLongList(*this);
    // The box would put a stored text of other letter case in the place of the typed one.
    QObject::disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    offer_->setCaseSensitivity(Qt::CaseInsensitive);
    offer_->setWidget(lineEdit());
    PutSuggestionsIntoWindow(*offer_);
    Connect(offer_, qOverload<const QString&>(&QCompleter::activated), this,
            &QComboBox::setEditText);
    Connect(lineEdit(), &QLineEdit::textEdited, this, [this] {
        if (offer_->popup()->isVisible())
            Offer();
    });
}

void StoredTextsCombo::SetTexts(const std::vector<QString>& texts) {
    QStringList list;
    for (const QString& text : texts)
        if (!text.isEmpty())
            list << text;
    const QString typed = currentText();
    texts_->setStringList(list);
    setCurrentIndex(-1);
    setEditText(typed);
}

void StoredTextsCombo::keyPressEvent(QKeyEvent* event) {
    Guarded([&] {
        const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == 0;
        if (plain && event->key() == Qt::Key_Down && !currentText().isEmpty() && Offer())
            event->accept();
        else
            QComboBox::keyPressEvent(event);
    });
}

/// False when there is nothing to offer but what is typed already.
bool StoredTextsCombo::Offer() {
    offer_->setCompletionPrefix(currentText());
    const int count = offer_->completionCount();
    if (count == 0 || (count == 1 && offer_->currentCompletion() == currentText())) {
        offer_->popup()->hide();
        return false;
    }
    offer_->complete();
    return true;
}

} // namespace lorvo
