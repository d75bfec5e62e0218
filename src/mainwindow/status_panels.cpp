#include "mainwindow/status_panels.h"

#include "forms/controls.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

namespace lorvo {

StatusPanels::StatusPanels(const QString& name, QWidget* parent) : QStatusBar(parent) {
    setObjectName(name);
    for (int number = 1; number <= kCount; ++number) {
        PanelAt(number) = MakePanel(number);
        addWidget(PanelAt(number).box);
    }
    ShowPanels(0);
}

StatusPanels::Panel StatusPanels::MakePanel(int number) {
    const QString name = QStringLiteral("%1(%2)").arg(objectName()).arg(number);
    auto* box = new QWidget(this);
    auto* picture = Named(new QLabel(box), name + QStringLiteral(".picture"));
    auto* text = Named(new QLabel(box), name);
    // A name is shown as it is, whatever signs it holds.
    text->setTextFormat(Qt::PlainText);
    text->setAccessibleName(QStringLiteral("Cesta %1").arg(number));
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing), 0);
    row->addWidget(picture);
    row->addWidget(text);
    return {box, picture, text};
}

void StatusPanels::SetPanel(int number, const QString& text, const QIcon& icon) {
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    Panel& panel = PanelAt(number);
    panel.text->setText(text);
    panel.picture->setPixmap(icon.pixmap(QSize(size, size), devicePixelRatioF()));
}

void StatusPanels::SetPanelVisible(int number, bool visible) {
    PanelAt(number).box->setVisible(visible);
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
