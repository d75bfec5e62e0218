#include "mainwindow/class_panel.h"

#include "mainwindow/panel_builders.h"

#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

ClassPanel::ClassPanel(QWidget* parent) : QWidget(parent) {
    setObjectName(u"picTridaInfo"_s);
    ValueGrid grid(1);
    lblClassDogCount = grid.AddText(0, u"Počet psů:"_s, u"lblClassDogCount"_s);

    auto* column = new QVBoxLayout(this);
    column->addWidget(PanelHeading(u"Detailní informace o třídě"_s, this));
    column->addLayout(grid.Layout());
    column->addStretch();
}

void ClassPanel::ShowDogCount(const QString& count) {
    lblClassDogCount->setText(count);
}

} // namespace lorvo
