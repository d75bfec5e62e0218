#include "dogs/stored_texts_combo.h"

#include "forms/controls.h"
#include "forms/suggestions.h"
#include "platform/failure_guard.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>
#include <QStringListModel>

namespace lorvo {

namespace {

/// A list that offers nothing but what is typed already is only in the way.
void HideIdleOffer(QCompleter& completer, const QString& typed) {
    if (completer.completionCount() == 1 && completer.currentCompletion() == typed)
        completer.popup()->hide();
}

} // namespace

QComboBox* StoredTextsCombo(const QString& name, QWidget* parent) {
    auto* combo = new QComboBox(parent);
    combo->setObjectName(name);
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setModel(new QStringListModel(combo));
    PrepareForLongList(*combo);
    // The box would put a stored text of other letter case in the place of the typed one.
    QObject::disconnect(combo->lineEdit(), &QLineEdit::editingFinished, combo, nullptr);
    QCompleter* completer = combo->completer();
    completer->setCompletionMode(QCompleter::PopupCompletion);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    PutSuggestionsIntoWindow(*completer);
    Connect(
        combo->lineEdit(), &QLineEdit::textEdited, completer,
        [completer](const QString& typed) { HideIdleOffer(*completer, typed); },
        Qt::QueuedConnection);
    return combo;
}

void SetStoredTexts(QComboBox& combo, const std::vector<QString>& texts) {
    QStringList list;
    for (const QString& text : texts)
        if (!text.isEmpty())
            list << text;
    const QString typed = combo.currentText();
    static_cast<QStringListModel*>(combo.model())->setStringList(list);
    combo.setCurrentIndex(-1);
    combo.setEditText(typed);
}

} // namespace lorvo
