#include "forms/controls.h"
#include "forms/elided_label.h"

#include "platform/failure_guard.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace lorvo {

LinkLabel::LinkLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
    setTextFormat(Qt::PlainText);
    setForegroundRole(QPalette::Link);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
}

void LinkLabel::SetReach(int width) {
    reach_ = width;
    updateGeometry();
}

QSize LinkLabel::sizeHint() const {
    return QLabel::sizeHint().expandedTo({reach_, 0});
}

void LinkLabel::Underline(bool on) {
    QFont underlined = font();
    underlined.setUnderline(on);
    setFont(underlined);
}

void LinkLabel::enterEvent(QEnterEvent* event) {
    QLabel::enterEvent(event);
    Underline(true);
}

void LinkLabel::leaveEvent(QEvent* event) {
    QLabel::leaveEvent(event);
    Underline(false);
}

// What can have the keyboard is a whole document for the toolkit's label, laid out for each text
// and each painting of it, and bears no mark of its access key. A link's one line needs none of it.
void LinkLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(),
                          isEnabled(), text(), isEnabled() ? foregroundRole() : QPalette::Text);
    PaintFocusFrame(*this);
}

void LinkLabel::mousePressEvent(QMouseEvent* event) {
    event->accept(); // a label would let the press through to what lies below
}

void LinkLabel::mouseReleaseEvent(QMouseEvent* event) {
    Guarded([&] {
        if (rect().contains(event->position().toPoint()))
            Q_EMIT Clicked(event->button());
    });
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
    Guarded([&] {
        if (event->isAutoRepeat()) // a key held too long asks for nothing twice
            return;
        switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            Q_EMIT Clicked(Qt::LeftButton);
            return;
        default:
            QLabel::keyPressEvent(event);
        }
    });
}

} // namespace lorvo
