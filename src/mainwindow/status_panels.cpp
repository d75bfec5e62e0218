#include "mainwindow/status_panels.h"

#include "forms/controls.h"
#include "forms/elided_label.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

namespace lorvo {

using namespace Qt::StringLiterals;

StatusPanels::StatusPanels(const QString& name, QWidget* parent) : QStatusBar(parent) {
    setObjectName(name);
    for (int number = 1; number <= kCount; ++number) {
        PanelAt(number) = MakePanel(number);
        SetPanel(number, QString());
        addWidget(PanelAt(number).text, 1);
    }
    ShowPanels(0);
}

StatusPanels::Panel StatusPanels::MakePanel(int number) {
    const QString name = u"%1(%2)"_s.arg(objectName()).arg(number);
    auto* text = Named(new ElidedLabel(this), name);
    // The panels share the bar: a long name is cut, and no other panel pays for it.
    text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    text->setAccessibleName(u"Cesta %1"_s.arg(number));
    auto* picture = Named(new QLabel(text), name + u".picture"_s);
    auto* row = new QHBoxLayout(text);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(picture);
    row->addStretch();
    return {text, picture};
}

void StatusPanels::SetPanel(int number, const QString& text, const QIcon& icon) {
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    const int gap = size / 4;
    Panel& panel = PanelAt(number);
    panel.picture->setPixmap(icon.pixmap(QSize(size, size), devicePixelRatioF()));
    panel.text->setText(text);
    panel.text->setIndent(icon.isNull() ? gap : size + gap);
}

void StatusPanels::SetPanelVisible(int number, bool visible) {
    PanelAt(number).text->setVisible(visible);
}

void StatusPanels::ShowPanels(int count) {
    for (int number = 1; number <= kCount; ++number)
        SetPanelVisible(number, number <= count);
}

void StatusPanels::Clear() {
    for (int number = 1; number <= kCount; ++number)
        SetPanel(number, QString());
}

} // namespace lorvo
