#include "mainwindow/breed_panel.h"

#include "mainwindow/panel_builders.h"

#include <QVBoxLayout>

namespace lorvo {

BreedPanel::BreedPanel(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picPlemenoInfo"));
    ValueGrid grid(1);
    lblDogsCount = grid.AddText(0, QStringLiteral("Počet psů:"), QStringLiteral("lblDogsCount"));
    lblDogsCountPrc =
        grid.AddText(0, QStringLiteral("Podíl všech psů:"), QStringLiteral("lblDogsCountPrc"));
    lblFCIplemene =
        grid.AddText(0, QStringLiteral("Skupina FCI:"), QStringLiteral("lblFCIplemene"));

    auto* column = new QVBoxLayout(this);
    column->addWidget(PanelHeading(QStringLiteral("Detailní informace o plemeni"), this));
    column->addLayout(grid.Layout());
    column->addStretch();
}

void BreedPanel::ShowFigures(const BreedFigures& figures) {
    lblDogsCount->setText(figures.DogsCount);
    lblDogsCountPrc->setText(figures.DogsCountPrc);
    lblFCIplemene->setText(figures.FCI);
}

} // namespace lorvo
