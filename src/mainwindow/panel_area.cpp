#include "mainwindow/panel_area.h"

#include "platform/failure_guard.h"

#include <QEvent>
#include <QScrollBar>
#include <utility>

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

bool PanelArea::event(QEvent* event) {
    return GuardedAnswer(false, [&]() -> bool {
        // What the content asks of its viewport comes here too.
        if (event->type() == QEvent::LayoutRequest)
            TellLeastWidth();
        return QScrollArea::event(event);
    });
}

// The toolkit's own area ends the content's wishes here. Only a change goes on, since being told
// makes the content lay itself out once more.
void PanelArea::TellLeastWidth() {
    const int least = minimumSizeHint().width();
    if (std::exchange(toldWidth_, least) != least)
        updateGeometry();
}

} // namespace lorvo
