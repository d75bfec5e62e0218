#include "mainwindow/panel_area.h"

#include <QScrollBar>

namespace lorvo {

PanelArea::PanelArea(const QString& name, QWidget* parent) : QScrollArea(parent) {
    setObjectName(name);
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
}

QSize PanelArea::minimumSizeHint() const {
    QSize least = QScrollArea::minimumSizeHint();
    if (widget())
        least.setWidth(widget()->minimumSizeHint().width() +
                       verticalScrollBar()->sizeHint().width());
    return least;
}

} // namespace lorvo
