#include "mainwindow/ring_panel.h"

#include "forms/controls.h"
#include "mainwindow/panel_builders.h"
#include "platform/failure_guard.h"

#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

RingPanel::RingPanel(QWidget* parent)
    : QWidget(parent),
      lblEditKruh(Named(new LinkLabel(u"Přejmenovat kruh"_s, this), u"lblEditKruh"_s)) {
    setObjectName(u"picKruhInfo"_s);
    ValueGrid grid(1);
    lblPlemenaCnt = grid.AddText(0, u"Počet plemen:"_s, u"lblPlemenaCnt"_s);
    lblPlemenaCntPrc = grid.AddText(0, u"Podíl všech plemen:"_s, u"lblPlemenaCntPrc"_s);
    lblDogsCnt = grid.AddText(0, u"Počet psů:"_s, u"lblDogsCnt"_s);
    lblDogsCntPrc = grid.AddText(0, u"Podíl všech psů:"_s, u"lblDogsCntPrc"_s);

    auto* column = new QVBoxLayout(this);
    column->addWidget(PanelHeading(u"Souhrnné informace o kruhu"_s, this));
    column->addLayout(grid.Layout());
    column->addWidget(lblEditKruh, 0, Qt::AlignLeft);
    column->addStretch();
    Connect(lblEditKruh, &LinkLabel::Clicked, this, &RingPanel::EditClicked);
}

void RingPanel::ShowFigures(const RingFigures& figures) {
    lblPlemenaCnt->setText(figures.PlemenaCnt);
    lblPlemenaCntPrc->setText(figures.PlemenaCntPrc);
    lblDogsCnt->setText(figures.DogsCnt);
    lblDogsCntPrc->setText(figures.DogsCntPrc);
}

void RingPanel::SetEditable(bool editable) {
    lblEditKruh->setEnabled(editable);
}

} // namespace lorvo
