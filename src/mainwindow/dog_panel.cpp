#include "mainwindow/dog_panel.h"

#include "forms/controls.h"
#include "mainwindow/awards_section.h"
#include "mainwindow/entries_section.h"
#include "mainwindow/origin_section.h"
#include "mainwindow/owner_section.h"
#include "mainwindow/panel_area.h"
#include "mainwindow/panel_builders.h"
#include "platform/failure_guard.h"

#include <QHBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Between two sections.
constexpr int kGapUnits = 105;

} // namespace

DogPanel::DogPanel(QWidget* parent)
    : QWidget(parent), lblEdit(Named(new LinkLabel(u"Editovat"_s, this), u"lblEdit"_s)) {
    setObjectName(u"picPesInfo"_s);
    auto* top = new QHBoxLayout;
    top->addWidget(PanelHeading(u"Detailní informace o psovi"_s, this));
    top->addStretch();
    top->addWidget(lblEdit);

    auto* column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addWidget(Sections(), 1);
    Connect(lblEdit, &LinkLabel::Clicked, this, &DogPanel::EditClicked);
}

QScrollArea* DogPanel::Sections() {
    auto* area = new PanelArea(u"areaSections"_s, this);
    auto* sections = new AreaContent(area);
    fraPuvod = new OriginSection(sections);
    fraMajitel = new OwnerSection(sections);
    fraVystavy = new EntriesSection(sections);
    fraOceneni = new AwardsSection(sections);
    auto* column = new QVBoxLayout(sections);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(CollapsibleFrame::Pixels(*this, kGapUnits));
    column->addWidget(fraPuvod);
    column->addWidget(fraMajitel);
    column->addWidget(fraVystavy, 2);
    column->addWidget(fraOceneni, 1);
    // Takes the rest when both lists are collapsed.
    column->addStretch();
    area->setWidget(sections);
    return area;
}

void DogPanel::ShowCard(const DogCard& card) {
    fraPuvod->ShowCard(card);
    fraMajitel->ShowCard(card);
    fraVystavy->ShowCard(card);
    fraOceneni->ShowCard(card);
}

} // namespace lorvo
