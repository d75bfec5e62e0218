#include "dogs/frmParents.h"

#include "app/main_window_services.h"
#include "forms/controls.h"
#include "forms/report_list.h"
#include "office/tree/node_key.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "store/psi_lists.h"

#include <QAction>
#include <QToolBar>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

// The colour is what tells a father from a mother of the same name.
constexpr QColor kFatherColour(0, 0, 255);
constexpr QColor kMotherColour(255, 0, 0);

QString ParentWord(QColor colour) {
    return colour == kFatherColour ? u"otec"_s : u"matka"_s;
}

void AddNames(std::vector<ReportRow>& rows, const std::vector<QString>& names, QColor colour) {
    for (const QString& name : names)
        if (!name.isEmpty())
            rows.push_back({{}, {}, {{name, colour, -1, ParentWord(colour)}}});
}

std::vector<Psi> OffspringOf(const ReportCell& parent) {
    return parent.colour == kFatherColour ? DogsOfFather(parent.text) : DogsOfMother(parent.text);
}

} // namespace

frmParents::frmParents(QWidget* parent)
    : Form("frmParents", u"Rodiče"_s, Border::Sizable, parent),
      tbrSouteze(Named(new QToolBar(this), u"tbrSouteze"_s)),
      both_(AddToggle(u"Add"_s, u"Obojí"_s, u"parents"_s)),
      males_(AddToggle(u"Edit"_s, u"Psi"_s, u"dog"_s)),
      females_(AddToggle(u"Remove"_s, u"Feny"_s, u"dog"_s)),
      lvwList(new ReportList("lvwList", {u"Jméno"_s}, this)) {
    tbrSouteze->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    lvwList->setAccessibleName(windowTitle());
    lvwList->SetColumnWidths({360});
    auto* cmdOK = Named(new QPushButton(u"Zavřít"_s, this), u"cmdOK"_s);
    auto* column = new QVBoxLayout(this);
    column->addWidget(tbrSouteze);
    column->addWidget(lvwList);
    column->addLayout(ButtonRow({cmdOK}));
    resize(420, 460);
    lvwList->setFocus();

    Connect(lvwList, &ReportList::RightClick, this, &frmParents::ShowOffspringMenu);
    Connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
}

QAction* frmParents::AddToggle(const QString& key, const QString& caption, const QString& picture) {
    QAction* toggle = Named(tbrSouteze->addAction(ProgramIcon(picture), caption), key);
    toggle->setCheckable(true);
    Connect(toggle, &QAction::triggered, this, &frmParents::ShowToggled);
    return toggle;
}

void frmParents::Load() {
    ShowParents(true, true);
}

void frmParents::ShowToggled() {
    const bool both = both_->isChecked();
    ShowParents(both || males_->isChecked(), both || females_->isChecked());
}

void frmParents::ShowParents(bool fathers, bool mothers) {
    std::vector<ReportRow> rows;
    if (fathers)
        AddNames(rows, DistinctFathers(), kFatherColour);
    if (mothers)
        AddNames(rows, DistinctMothers(), kMotherColour);
    lvwList->SetRows(std::move(rows));
}

void frmParents::ShowOffspringMenu(int position) {
    if (position < 0)
        return;
    std::vector<MenuEntry> menu;
    for (const Psi& dog : OffspringOf(lvwList->Row(position).cells.front())) {
        MenuEntry& entry = menu.emplace_back();
        entry.number = dog.ID;
        entry.text = dog.Jmeno;
    }
    const int chosen = menu.empty() ? 0 : ThePlatform().menus->TrackPopup(menu);
    const QString node = NodeKey::Dog(chosen).ToText();
    // A breed that is not in use has no place in the tree, nor have its dogs.
    if (chosen > 0 && TheMainWindow().NodeExists(node))
        TheMainWindow().SelectNode(node);
}

} // namespace lorvo
