#include "dogs/totals_bar.h"

#include "forms/controls.h"

namespace lorvo {

using namespace Qt::StringLiterals;

TotalsBar::TotalsBar(const char* name, QWidget* parent)
    : QStatusBar(parent), panels_{ValueLabel(u"Počet"_s, this), ValueLabel(u"Součty"_s, this)} {
    setObjectName(QString::fromLatin1(name));
    for (int index = 0; index < static_cast<int>(panels_.size()); ++index) {
        QLabel* panel = panels_.at(static_cast<size_t>(index));
        addWidget(Named(panel, ElementName(name, index + 1)), index);
    }
}

void TotalsBar::SetPanel(int number, const QString& text) {
    panels_.at(static_cast<size_t>(number - 1))->setText(text);
}

} // namespace lorvo
