#include "payments/price_box.h"

#include "forms/controls.h"

#include <QFormLayout>
#include <QGroupBox>

namespace lorvo {

using namespace Qt::StringLiterals;

// kept: unfilled-price-box
QGroupBox* PriceBox(QWidget* parent) {
    auto* box = Named(new QGroupBox(parent), u"fraCena"_s);
    auto* form = new QFormLayout(box);
    for (const QString& caption : {u"Určená cena"_s, u"Doposud uhrazeno"_s, u"Zbývá"_s}) {
        QLabel* value = ValueLabel(caption, box);
        value->setText(u"0 Kč"_s);
        form->addRow(CaptionFor(value, caption, box), value);
    }
    return box;
}

} // namespace lorvo
