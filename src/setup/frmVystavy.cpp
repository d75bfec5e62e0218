#include "setup/frmVystavy.h"

#include "forms/command_collection.h"
#include "forms/controls.h"
#include "forms/messages.h"
#include "forms/report_list.h"
#include "platform/failure_guard.h"
#include "setup/frmVystava.h"
#include "store/psi_ve_vystavach.h"
#include "store/vystavy.h"

#include <QToolBar>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

frmVystavy::frmVystavy(QWidget* parent)
    : Form("frmVystavy", u"Výstavy"_s, Border::Sizable, parent),
      commands_(new CommandCollection(u"VYSTAVY"_s, {u"VYSTAVY"_s}, this)),
      lvwList(new ReportList("lvwList", {u"Název"_s, u"Přihlášeno psů"_s}, this)) {
    lvwList->SetColumnWidths({300, 120});
    lvwList->SetLabelEdit(true);
    lvwList->SetUntouchedEdits(false);
    auto* cmdOK = Named(new QPushButton(u"Zavřít"_s, this), u"cmdOK"_s);

    auto* column = new QVBoxLayout(this);
    column->addWidget(commands_->MakeBar(u"VYSTAVY"_s, this));
    column->addWidget(lvwList);
    column->addLayout(ButtonRow({cmdOK}));
    resize(480, 340);
    lvwList->setFocus();

    Connect(commands_, &CommandCollection::CommandClick, this, &frmVystavy::CarryOut);
    Connect(lvwList, &ReportList::DoubleClick, this, &frmVystavy::EditSelectedShow);
    Connect(lvwList, &ReportList::DeletePressed, this, &frmVystavy::DeleteSelectedShow);
    Connect(lvwList, &ReportList::AfterLabelEdit, this, &frmVystavy::Rename);
    Connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
}

void frmVystavy::Load() {
    std::vector<ReportRow> rows;
    for (const Vystavy& show : Shows()) {
        const QString id = QString::number(show.ID);
        rows.push_back(
            {u"V"_s + id, id, {{show.Nazev}, {QString::number(CountDogsInShow(show.ID))}}});
    }
    lvwList->SetRows(std::move(rows));
}

void frmVystavy::CarryOut(const QString& command) {
    if (command == u"VYSTAVY:ADD")
        AddShow();
    else if (command == u"VYSTAVY:EDIT")
        EditSelectedShow();
    else if (command == u"VYSTAVY:DELETE")
        DeleteSelectedShow();
}

void frmVystavy::AddShow() {
    const QString name = u"Nová výstava"_s;
    const QString id = QString::number(InsertShow(name));
    lvwList->StartLabelEdit(lvwList->AddRow({u"C"_s + id, id, {{name}}}));
}

void frmVystavy::Rename(int position, const QString& text, bool* cancel) {
    const QString key = lvwList->Row(position).key;
    if (text.isEmpty()) {
        Refuse(*this, u"Název musí být zadán!"_s);
        *cancel = true;
    } else if (CountShowsNamed(text) > 0) {
        // kept: same-name-in-other-capitals
        // The row itself counts too: a name in other capitals is refused as well.
        Refuse(*this, u"Výstava s tímto názvem již existuje!"_s);
        *cancel = true;
        EditAgain(key);
    } else {
        RenameShow(lvwList->Row(position).tag.toInt(), text);
    }
}

// Not before the click that has ended the edit is over.
void frmVystavy::EditAgain(const QString& key) {
    Later(lvwList, [this, key] {
        const int row = lvwList->FindRow(key);
        if (row >= 0 && lvwList->isVisible())
            lvwList->StartLabelEdit(row);
    });
}

void frmVystavy::EditSelectedShow() {
    const int selected = lvwList->SelectedRow();
    if (selected < 0)
        return;
    const QString key = lvwList->Row(selected).key;
    frmVystava window(lvwList->Row(selected).tag.toInt(), this);
    OpenModal(window);
    if (window.Result())
        lvwList->SetCell(lvwList->FindRow(key), 0, *window.Result());
}

void frmVystavy::DeleteSelectedShow() {
    const int selected = lvwList->SelectedRow();
    if (selected < 0)
        return;
    const QString key = lvwList->Row(selected).key;
    const int vystavaID = key.mid(1).toInt();
    if (const int dogs = CountDogsInShow(vystavaID))
        return Refuse(
            *this,
            // kept: psu-for-every-number
            u"Tuto výstavu není možno smazat, protože je v ní přihlášeno %1 psů."_s.arg(dogs));
    if (CountShows() == 1)
        return Refuse(*this,
                      u"Tuto výstavu není možno smazat. Alespoň jedna výstava musí zůstat"_s);
    if (Ask(*this, u"Skutečně smazat?"_s, MessageButtons::YesNoCancel) != MessageAnswer::Yes)
        return;
    DeleteShow(vystavaID);
    lvwList->RemoveRow(key);
}

} // namespace lorvo
