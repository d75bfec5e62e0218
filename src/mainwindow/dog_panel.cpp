#include "mainwindow/dog_panel.h"

#include "forms/controls.h"
#include "mainwindow/awards_section.h"
#include "mainwindow/entries_section.h"
#include "mainwindow/origin_section.h"
#include "mainwindow/owner_section.h"
#include "mainwindow/panel_builders.h"
#include "mainwindow/window_opener.h"
#include "platform/failure_guard.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QScrollArea>

namespace lorvo {

namespace {
/// Between two sections.
constexpr int kGapUnits = 105;
} // namespace

DogPanel::DogPanel(QWidget* parent)
    : QWidget(parent),
      lblEdit(Named(new LinkLabel(QStringLiteral("Editovat"), this), QStringLiteral("lblEdit"))) {
    setObjectName(QStringLiteral("picPesInfo"));
    auto* top = new QHBoxLayout;
    top->addWidget(PanelHeading(QStringLiteral("Detailní informace o psovi"), this));
    top->addStretch();
    top->addWidget(lblEdit);

    auto* column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addWidget(Sections(), 1);
    Connect(lblEdit, &LinkLabel::Clicked, this, &DogPanel::EditClicked);
}

QScrollArea* DogPanel::Sections() {
    auto* area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* sections = new QWidget(area);
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
    lblEdit->setEnabled(CanOpen(QStringLiteral("fm_Dog")));
    fraPuvod->ShowCard(card);
    fraMajitel->ShowCard(card);
    fraVystavy->ShowCard(card);
    fraOceneni->ShowCard(card);
    // A text that wraps makes its section higher: lay out at once, so that it is never painted cut.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

} // namespace lorvo
