#include "mainwindow/fci_panel.h"

#include "mainwindow/panel_builders.h"

#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

FciPanel::FciPanel(QWidget* parent) : QWidget(parent) {
    setObjectName(u"picFCIInfo"_s);
    ValueGrid grid(1);
    lblPlemenaInFCICount = grid.AddText(0, u"Počet plemen:"_s, u"lblPlemenaInFCICount"_s);
    lblDogsInFCICount = grid.AddText(0, u"Počet psů:"_s, u"lblDogsInFCICount"_s);

    auto* column = new QVBoxLayout(this);
    column->addWidget(PanelHeading(u"Detailní informace o FCI"_s, this));
    column->addLayout(grid.Layout());
    column->addStretch();
}

void FciPanel::ShowFigures(const FciFigures& figures) {
    lblPlemenaInFCICount->setText(figures.PlemenaInFCICount);
    lblDogsInFCICount->setText(figures.DogsInFCICount);
}

} // namespace lorvo
