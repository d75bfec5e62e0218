#include "mainwindow/ring_panel.h"

#include "forms/controls.h"
#include "mainwindow/panel_builders.h"
#include "platform/failure_guard.h"

#include <QVBoxLayout>

namespace lorvo {

RingPanel::RingPanel(QWidget* parent)
    : QWidget(parent), lblEditKruh(Named(new LinkLabel(QStringLiteral("Přejmenovat kruh"), this),
                                         QStringLiteral("lblEditKruh"))) {
    setObjectName(QStringLiteral("picKruhInfo"));
    ValueGrid grid(1);
    lblPlemenaCnt =
        grid.AddText(0, QStringLiteral("Počet plemen:"), QStringLiteral("lblPlemenaCnt"));
    lblPlemenaCntPrc =
        grid.AddText(0, QStringLiteral("Podíl všech plemen:"), QStringLiteral("lblPlemenaCntPrc"));
    lblDogsCnt = grid.AddText(0, QStringLiteral("Počet psů:"), QStringLiteral("lblDogsCnt"));
    lblDogsCntPrc =
        grid.AddText(0, QStringLiteral("Podíl všech psů:"), QStringLiteral("lblDogsCntPrc"));

    auto* column = new QVBoxLayout(this);
    column->addWidget(PanelHeading(QStringLiteral("Souhrnné informace o kruhu"), this));
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
