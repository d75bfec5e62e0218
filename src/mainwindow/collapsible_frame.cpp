#include "mainwindow/collapsible_frame.h"

#include "forms/access_keys.h"
#include "platform/failure_guard.h"

#include <QEvent>
#include <QLayout>
#include <QResizeEvent>
#include <QToolButton>
#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {
constexpr int kCollapsedUnits = 260;
constexpr int kStepUnits = 50;
/// Line height of the design font.
constexpr int kUnitsPerLine = 195;
} // namespace

CollapsibleFrame::CollapsibleFrame(const char* name, const QString& title, int openUnits,
                                   Growth growth, QWidget* parent)
    : QFrame(parent), openUnits_(openUnits), growth_(growth), header_(new QToolButton(this)),
      content_(new QWidget(this)) {
    setObjectName(QString::fromLatin1(name));
    setAccessibleName(title);
    setFrameShape(QFrame::StyledPanel);
    const bool fixed = growth == Growth::Fixed;
    QSizePolicy policy(QSizePolicy::Preferred,
                       fixed ? QSizePolicy::Minimum : QSizePolicy::MinimumExpanding);
    policy.setHeightForWidth(fixed);
    setSizePolicy(policy);

    header_->setObjectName(objectName() + u".header"_s);
    header_->setText(title);
    header_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    header_->setArrowType(Qt::DownArrow);
    header_->setAutoRaise(true);
    header_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    QFont font = header_->font();
    font.setBold(true);
    header_->setFont(font);
    Connect(header_, &QToolButton::clicked, this, &CollapsibleFrame::Toggle);
}

void CollapsibleFrame::SetFirstControl(QWidget& control) {
    LeadByAccessKey(*header_, control);
}

int CollapsibleFrame::Pixels(const QWidget& widget, int units) {
    return units * widget.fontMetrics().height() / kUnitsPerLine;
}

int CollapsibleFrame::HeaderHeight() const {
    return std::max(Pixels(*this, kCollapsedUnits), header_->minimumSizeHint().height());
}

int CollapsibleFrame::OpenHeight(int contentHeight) const {
    return std::max(Pixels(*this, openUnits_), HeaderHeight() + contentHeight);
}

bool CollapsibleFrame::hasHeightForWidth() const {
    return growth_ == Growth::Fixed && !collapsed_;
}

int CollapsibleFrame::heightForWidth(int width) const {
    const QLayout* layout = content_->layout();
    if (collapsed_ || !layout)
        return HeaderHeight();
    return OpenHeight(layout->hasHeightForWidth() ? layout->totalHeightForWidth(width)
                                                  : layout->totalSizeHint().height());
}

// A frame asks for no more than it needs, so that nothing scrolls for its sake. What a text that
// wraps needs beside that is known by the width alone.
QSize CollapsibleFrame::sizeHint() const {
    return minimumSizeHint();
}

QSize CollapsibleFrame::minimumSizeHint() const {
    const QSize content = content_->minimumSizeHint();
    return {content.width(), collapsed_ ? HeaderHeight() : OpenHeight(content.height())};
}

void CollapsibleFrame::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    PlaceContent();
    if (told_.ToTell(*event))
        updateGeometry();
}

bool CollapsibleFrame::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) {
        if (told_.ToTell(*this))
            updateGeometry();
        PlaceContent();
    }
    return QFrame::event(event);
}

// While the frame is lower than its content, the content keeps its height and is cut off below, so
// that nothing in it moves.
void CollapsibleFrame::PlaceContent() {
    const int top = HeaderHeight();
    header_->setGeometry(0, 0, width(), top);
    const int needed = content_->minimumSizeHint().height();
    content_->setGeometry(0, top, width(), std::max(height() - top, needed));
}

void CollapsibleFrame::ShowHeight(int height) {
    setFixedHeight(height);
    if (QWidget* panel = parentWidget()) {
        if (panel->layout())
            panel->layout()->activate();
        panel->repaint();
    }
}

void CollapsibleFrame::StepTo(int target) {
    const int step = std::max(1, Pixels(*this, kStepUnits));
    int current = height();
    while (isVisible() && current != target) {
        current =
            current < target ? std::min(current + step, target) : std::max(current - step, target);
        ShowHeight(current);
    }
}

void CollapsibleFrame::Toggle() {
    const int before = height();
    collapsed_ = !collapsed_;
    header_->setArrowType(collapsed_ ? Qt::RightArrow : Qt::DownArrow);
    content_->setVisible(true);
    int target = HeaderHeight();
    if (!collapsed_) {
        // Let the layout say how high the open frame will stand, then start from where it is.
        setMinimumHeight(0);
        setMaximumHeight(QWIDGETSIZE_MAX);
        updateGeometry();
        parentWidget()->layout()->activate();
        target = height();
        setFixedHeight(before);
    }
    StepTo(target);
    content_->setVisible(!collapsed_);
    setMinimumHeight(collapsed_ ? target : 0);
    setMaximumHeight(collapsed_ ? target : QWIDGETSIZE_MAX);
    updateGeometry();
    told_.Forget();
}

} // namespace lorvo
