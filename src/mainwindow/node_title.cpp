#include "mainwindow/node_title.h"

#include "forms/controls.h"
#include "forms/wrapped_label.h"
#include "mainwindow/panel_builders.h"
#include "platform/failure_guard.h"

#include <QHBoxLayout>
#include <QResizeEvent>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPictureSize = 32;

QLabel* TitleLabel(QWidget* parent) {
    auto* label = Named(new WrappedLabel(parent), u"lblItemTitle"_s);
    TakeGivenWidth(*label);
    QFont large = label->font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    large.setBold(true);
    label->setFont(large);
    return label;
}

QPushButton* HistoryButton(const QString& name, const QString& text, const QString& icon,
                           QWidget* parent) {
    auto* button = Named(new QPushButton(ProgramIcon(icon), text, parent), name);
    button->setEnabled(false);
    return button;
}

} // namespace

NodeTitle::NodeTitle(NodeHistory& history, const NodeHistory::Show& show, QWidget* parent)
    : QWidget(parent), history_(history), row_(new QWidget(this)),
      picMode(Named(new QLabel(row_), u"picMode"_s)), lblItemTitle(TitleLabel(row_)),
      cmdHistoryBack(HistoryButton(u"cmdHistoryBack"_s, u"Zpět"_s, u"back"_s, row_)),
      cmdHistoryFwd(HistoryButton(u"cmdHistoryFwd"_s, u"Vpřed"_s, u"forward"_s, row_)) {
    picMode->setFixedSize(kPictureSize, kPictureSize);
    Connect(cmdHistoryBack, &QPushButton::clicked, this, [this, show] {
        history_.GoBack(show);
        UpdateButtons();
    });
    Connect(cmdHistoryFwd, &QPushButton::clicked, this, [this, show] {
        history_.GoForward(show);
        UpdateButtons();
    });
    auto* row = new QHBoxLayout(row_);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(picMode);
    row->addWidget(lblItemTitle, 1);
    row->addWidget(cmdHistoryBack);
    row->addWidget(cmdHistoryFwd);
}

bool NodeTitle::hasHeightForWidth() const {
    return row_->hasHeightForWidth();
}

int NodeTitle::heightForWidth(int width) const {
    return row_->heightForWidth(width);
}

QSize NodeTitle::sizeHint() const {
    return row_->sizeHint();
}

QSize NodeTitle::minimumSizeHint() const {
    return row_->minimumSizeHint();
}

void NodeTitle::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    row_->resize(size());
    if (told_.ToTell(*event))
        updateGeometry();
}

bool NodeTitle::event(QEvent* event) {
    // The title above the panels differs with each node: they are laid out for a higher one alone.
    if (event->type() == QEvent::LayoutRequest && told_.ToTell(*this))
        updateGeometry();
    return QWidget::event(event);
}

void NodeTitle::SetText(const QString& text) {
    lblItemTitle->setText(text);
}

void NodeTitle::SetPicture(const QIcon& icon) {
    picMode->setPixmap(icon.pixmap(QSize(kPictureSize, kPictureSize), devicePixelRatioF()));
}

void NodeTitle::UpdateButtons() {
    cmdHistoryBack->setEnabled(history_.BackEnabled());
    cmdHistoryFwd->setEnabled(history_.ForwardEnabled());
}

} // namespace lorvo
