#include "mainwindow/awards_section.h"

#include "forms/report_list.h"
#include "mainwindow/panel_builders.h"
#include "platform/failure_guard.h"

#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {
constexpr int kOpenUnits = 1400;
}

AwardsSection::AwardsSection(QWidget* parent)
    : CollapsibleFrame("fraOceneni", u"Ocenění"_s, kOpenUnits, Growth::TakesRest, parent),
      lvwOceneni(new ReportList("lvwOceneni", {u"Název"_s}, Content())) {
    lvwOceneni->setAccessibleName(u"Ocenění psa"_s);
    lvwOceneni->SetCheckBoxes(true);
    lvwOceneni->SetLabelEdit(false);
    lvwOceneni->SetColumnWidths({360});
    SetFirstControl(*lvwOceneni);
    auto* column = new QVBoxLayout(Content());
    column->addWidget(lvwOceneni, 1);
    Connect(lvwOceneni, &ReportList::ItemCheck, this, &AwardsSection::Tick);
}

void AwardsSection::ShowCard(const DogCard& card) {
    awards_ = card.awards;
    ShowLines(*lvwOceneni, awards_);
}

void AwardsSection::Tick(int position) {
    awards_[static_cast<std::size_t>(position)].checked = lvwOceneni->Row(position).checked;
    Q_EMIT AwardsTicked(awards_);
}

} // namespace lorvo
