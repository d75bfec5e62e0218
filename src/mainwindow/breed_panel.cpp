#include "mainwindow/breed_panel.h"

#include "mainwindow/panel_builders.h"

#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

BreedPanel::BreedPanel(QWidget* parent) : QWidget(parent) {
    setObjectName(u"picPlemenoInfo"_s);
    ValueGrid grid(1);
    lblDogsCount = grid.AddText(0, u"Počet psů:"_s, u"lblDogsCount"_s);
    lblDogsCountPrc = grid.AddText(0, u"Podíl všech psů:"_s, u"lblDogsCountPrc"_s);
    lblFCIplemene = grid.AddText(0, u"Skupina FCI:"_s, u"lblFCIplemene"_s);

    auto* column = new QVBoxLayout(this);
    column->addWidget(PanelHeading(u"Detailní informace o plemeni"_s, this));
    column->addLayout(grid.Layout());
    column->addStretch();
}

void BreedPanel::ShowFigures(const BreedFigures& figures) {
    lblDogsCount->setText(figures.DogsCount);
    lblDogsCountPrc->setText(figures.DogsCountPrc);
    lblFCIplemene->setText(figures.FCI);
}

} // namespace lorvo
