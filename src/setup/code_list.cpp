#include "setup/code_list.h"

#include "forms/controls.h"
#include "forms/messages.h"
#include "forms/report_list.h"
#include "platform/failure_guard.h"
#include "platform/values/errors.h"

#include <QAction>
#include <QToolBar>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// The key of a row that isn't stored yet; every other key is "C" and the row's ID.
const QString kNewKey = u"Cnew"_s;

} // namespace

QToolBar* CodeListToolBar(const char* name, QWidget* parent) {
    struct Button {
        QStringView key, caption, picture;
    };
    constexpr Button kButtons[] = {{u"Add", u"Přidat", u"add"},
                                   {u"Edit", u"Přejmenovat", u"edit"},
                                   {u"Remove", u"Smazat", u"delete"}};
    auto* bar = Named(new QToolBar(parent), QString::fromLatin1(name));
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (const Button& button : kButtons)
        bar->addAction(ProgramIcon(button.picture.toString()), button.caption.toString())
            ->setObjectName(button.key.toString());
    return bar;
}

CodeListForm::CodeListForm(const CodeListTexts& texts, CodeListStore store, QWidget* parent)
    : Form(texts.window, texts.caption.toString(), Border::Sizable, parent), texts_(texts),
      store_(std::move(store)),
      list_(new ReportList(texts.list, {u"Barva"_s, texts.usedHeading.toString()}, this)) {
    list_->SetColumnWidths({260, 90});
    list_->SetLabelEdit(true);
    QToolBar* bar = CodeListToolBar(texts.toolBar, this);
    auto* column = new QVBoxLayout(this);
    column->addWidget(bar);
    column->addWidget(list_);
    resize(400, 360);
    list_->setFocus();

    Connect(bar->findChild<QAction*>(u"Add"_s), &QAction::triggered, this, &CodeListForm::AddEntry);
    Connect(bar->findChild<QAction*>(u"Edit"_s), &QAction::triggered, this,
            &CodeListForm::EditEntry);
    Connect(bar->findChild<QAction*>(u"Remove"_s), &QAction::triggered, this,
            &CodeListForm::RemoveEntry);
    Connect(list_, &ReportList::DeletePressed, this, &CodeListForm::RemoveEntry);
    Connect(list_, &ReportList::AfterLabelEdit, this, &CodeListForm::StoreEntry);
    Connect(list_, &ReportList::LabelEditGivenUp, this, &CodeListForm::GiveUpEntry);
}

void CodeListForm::Load() {
    std::vector<ReportRow> rows;
    for (const CodeListRow& row : store_.rows())
        rows.push_back({u"C"_s + QString::number(row.ID),
                        {},
                        {{row.Nazev}, {QString::number(store_.countUses(row.ID))}}});
    list_->SetRows(std::move(rows));
}

void CodeListForm::AddEntry() {
    list_->StartLabelEdit(list_->AddRow({kNewKey, {}, {{texts_.newName.toString()}}}));
}

void CodeListForm::EditEntry() {
    if (list_->SelectedRow() >= 0)
        list_->StartLabelEdit(list_->SelectedRow());
}

// kept: untouched-edit-commits
void CodeListForm::StoreEntry(int position, const QString& text, bool* cancel) {
    if (text.isEmpty()) {
        // The list keeps the empty text, the store what it has.
        Refuse(*this, u"Název musí být zadán!"_s);
        return;
    }
    if (store_.countNamed(text) > 0)
        return RefuseDuplicate(position, cancel);
    const QString key = list_->Row(position).key;
    if (key == kNewKey)
        list_->SetKey(position, u"C"_s + QString::number(store_.insert(text)));
    else
        store_.rename(key.mid(1).toInt(), text);
}

void CodeListForm::GiveUpEntry(int position) {
    if (list_->Row(position).key == kNewKey)
        list_->RemoveRowAt(position);
}

void CodeListForm::RefuseDuplicate(int position, bool* cancel) {
    Refuse(*this, texts_.duplicate.toString());
    if (list_->Row(position).key != kNewKey)
        return;
    list_->RemoveRowAt(position);
    *cancel = true;
}

int CodeListForm::SelectedID() const {
    const QString key = list_->Row(list_->SelectedRow()).key;
    if (key == kNewKey)
        throw StoreError("Záznam ještě není uložen, v databázi nemá číslo.");
    return key.mid(1).toInt();
}

void CodeListForm::RemoveEntry() {
    if (list_->SelectedRow() < 0)
        return;
    const int ID = SelectedID();
    if (const int uses = store_.countUses(ID)) {
        Refuse(*this, texts_.inUse.toString().arg(uses));
    } else if (Ask(*this, texts_.deleteQuestion.toString(), MessageButtons::YesNoCancel) ==
               MessageAnswer::Yes) {
        store_.remove(ID);
        list_->RemoveRow(u"C"_s + QString::number(ID));
    }
}

} // namespace lorvo
