#include "mainwindow/fci_panel.h"

#include "mainwindow/panel_builders.h"

#include <QVBoxLayout>

namespace lorvo {

FciPanel::FciPanel(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picFCIInfo"));
    ValueGrid grid(1);
    lblPlemenaInFCICount =
        grid.AddText(0, QStringLiteral("Počet plemen:"), QStringLiteral("lblPlemenaInFCICount"));
    lblDogsInFCICount =
        grid.AddText(0, QStringLiteral("Počet psů:"), QStringLiteral("lblDogsInFCICount"));

    auto* column = new QVBoxLayout(this);
    column->addWidget(PanelHeading(QStringLiteral("Detailní informace o FCI"), this));
    column->addLayout(grid.Layout());
    column->addStretch();
}

void FciPanel::ShowFigures(const FciFigures& figures) {
    lblPlemenaInFCICount->setText(figures.PlemenaInFCICount);
    lblDogsInFCICount->setText(figures.DogsInFCICount);
}

} // namespace lorvo
