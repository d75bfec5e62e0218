#include "setup/fm_Souteze.h"

#include "app/common_routines.h"
#include "dogs/frmPsiVSoutezi.h"
#include "forms/controls.h"
#include "forms/messages.h"
#include "forms/report_list.h"
#include "platform/failure_guard.h"
#include "setup/frmSoutez.h"
#include "store/souteze.h"
#include "store/vazby_souteze.h"

#include <QAction>
#include <QToolBar>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Why a competition with that many dogs can't be removed; empty when it can. Goes by the text as
/// it stands in the list.
QString RemovalRefusal(const QString& count) {
    if (count == u"0")
        return {};
    if (count == u"1")
        return u"Soutěž nelze odstranit, je v ní přihlášen 1 pes."_s;
    if (count == u"2" || count == u"3" || count == u"4")
        return u"Soutěž nelze odstranit, jsou v ní přihlášeni %1 psi."_s.arg(count);
    return u"Soutěž nelze odstranit, je v ní přihlášeno %1 psů."_s.arg(count);
}

} // namespace

fm_Souteze::fm_Souteze(QWidget* parent)
    : Form("fm_Souteze", u"Soutěže"_s, Border::Sizable, parent), logged_(nullptr),
      lvwSouteze(new ReportList("lvwSouteze", {u"Název soutěže"_s, u"Cena"_s, u"Přihlášeno psů"_s},
                                this)) {
    BuildControls();
    Connect(lvwSouteze, &ReportList::DoubleClick, this, &fm_Souteze::EditSelected);
    Connect(lvwSouteze, &ReportList::SelectionChanged, this, &fm_Souteze::OfferEntries);
    Connect(lvwSouteze, &ReportList::DeletePressed, this, &fm_Souteze::RemoveSelected);
    Connect(lvwSouteze, &ReportList::AfterLabelEdit, this, &fm_Souteze::Rename);
}

void fm_Souteze::BuildControls() {
    auto* bar = Named(new QToolBar(this), u"tbrSouteze"_s);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const auto button = [&](const QString& key, const QString& caption, const QString& picture,
                            void (fm_Souteze::*act)()) {
        QAction* action = bar->addAction(ProgramIcon(picture), caption);
        action->setObjectName(key);
        Connect(action, &QAction::triggered, this, act);
        return action;
    };
    button(u"Add"_s, u"Přidat"_s, u"add"_s, &fm_Souteze::AddCompetition);
    button(u"Edit"_s, u"Upravit"_s, u"edit"_s, &fm_Souteze::EditSelected);
    button(u"Remove"_s, u"Smazat"_s, u"delete"_s, &fm_Souteze::RemoveSelected);
    logged_ = button(u"Logged"_s, u"Přihlášení"_s, u"dog"_s, &fm_Souteze::ShowEntries);
    logged_->setEnabled(false);

    lvwSouteze->SetColumnWidths({280, 80, 120});
    lvwSouteze->SetLabelEdit(true);
    lvwSouteze->SetUntouchedEdits(false);
    lvwSouteze->SetSorting(true);
    auto* column = new QVBoxLayout(this);
    column->addWidget(bar);
    column->addWidget(lvwSouteze);
    resize(540, 380);
    lvwSouteze->setFocus();
}

void fm_Souteze::Load() {
    Fill();
    if (lvwSouteze->RowCount() > 0)
        logged_->setEnabled(true);
}

void fm_Souteze::Fill() {
    std::vector<ReportRow> rows;
    for (const Souteze& competition : Competitions()) {
        const QString price = competition.Cena ? PlainAmount(*competition.Cena) : QString();
        rows.push_back({u"C"_s + QString::number(competition.ID),
                        {},
                        {{competition.Nazev},
                         {price},
                         {QString::number(CountDogsInCompetition(competition.ID))}}});
    }
    lvwSouteze->SetRows(std::move(rows));
    if (lvwSouteze->RowCount() > 0)
        lvwSouteze->SelectRow(0);
}

// After a deletion no row is chosen; the next choice brings back what the deletion has greyed.
void fm_Souteze::OfferEntries() {
    if (greyedByDeletion_ && lvwSouteze->SelectedRow() >= 0)
        logged_->setEnabled(true);
}

int fm_Souteze::CompetitionAt(int position) const {
    return lvwSouteze->Row(position).key.mid(1).toInt();
}

// kept: rename-without-duplicates
void fm_Souteze::Rename(int position, const QString& text, bool* cancel) {
    if (text.isEmpty()) {
        Refuse(*this, u"Název musí být zadán!"_s);
        *cancel = true;
        return;
    }
    RenameCompetition(CompetitionAt(position), text);
}

void fm_Souteze::AddCompetition() {
    frmSoutez editor(0, this);
    OpenModal(editor);
    Fill();
}

void fm_Souteze::EditSelected() {
    const int selected = lvwSouteze->SelectedRow();
    if (selected < 0)
        return;
    const QString text = lvwSouteze->CellText(selected, 0);
    frmSoutez editor(CompetitionAt(selected), this);
    OpenModal(editor);
    FillAndReselect(text);
}

void fm_Souteze::ShowEntries() {
    const int selected = lvwSouteze->SelectedRow();
    if (selected < 0)
        return;
    const QString text = lvwSouteze->CellText(selected, 0);
    frmPsiVSoutezi entries(CompetitionAt(selected), this);
    OpenModal(entries);
    FillAndReselect(text);
}

void fm_Souteze::FillAndReselect(const QString& text) {
    Fill();
    if (const int row = lvwSouteze->FindText(text); row >= 0)
        lvwSouteze->SelectRow(row);
}

// kept: refusal-by-the-list
void fm_Souteze::RemoveSelected() {
    const int selected = lvwSouteze->SelectedRow();
    if (selected < 0)
        return;
    const QString refusal = RemovalRefusal(lvwSouteze->CellText(selected, 2));
    if (!refusal.isEmpty()) {
        Inform(*this, refusal);
        return;
    }
    const QString question =
        u"Určitě chcete odstranit soutěž "_s + lvwSouteze->CellText(selected, 0) + u'?';
    if (Ask(*this, question, MessageButtons::YesNo) != MessageAnswer::Yes)
        return;
    DeleteCompetition(CompetitionAt(selected));
    lvwSouteze->RemoveRow(QString(lvwSouteze->Row(selected).key));
    greyedByDeletion_ = lvwSouteze->SelectedRow() < 0;
    logged_->setEnabled(!greyedByDeletion_);
}

} // namespace lorvo
