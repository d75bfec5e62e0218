#include "mainwindow/class_panel.h"

#include "mainwindow/panel_builders.h"

#include <QVBoxLayout>

namespace lorvo {

ClassPanel::ClassPanel(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picTridaInfo"));
    ValueGrid grid(1);
    lblClassDogCount =
        grid.AddText(0, QStringLiteral("Počet psů:"), QStringLiteral("lblClassDogCount"));

    auto* column = new QVBoxLayout(this);
    column->addWidget(PanelHeading(QStringLiteral("Detailní informace o třídě"), this));
    column->addLayout(grid.Layout());
    column->addStretch();
}

void ClassPanel::ShowDogCount(const QString& count) {
    lblClassDogCount->setText(count);
}

} // namespace lorvo
