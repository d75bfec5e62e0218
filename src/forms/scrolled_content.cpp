#include "forms/scrolled_content.h"

#include "forms/controls.h"
#include "platform/failure_guard.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Asks for as much as its content does, where the toolkit's own asks for a part of a screen.
class ContentArea : public QScrollArea {
  public:
    using QScrollArea::QScrollArea;

    QSize sizeHint() const override {
        const int bar = verticalScrollBar()->sizeHint().width();
        return widget()->sizeHint() + QSize(bar, bar);
    }
};

/// Of a control that is higher than the place, the beginning.
void BringInSight(QScrollArea& area, QWidget& control) {
    area.ensureWidgetVisible(&control);
    if (control.height() <= area.viewport()->height())
        return;
    area.verticalScrollBar()->setValue(control.mapTo(area.widget(), QPoint()).y());
    if (const auto* list = qobject_cast<QAbstractItemView*>(&control))
        ScrollAround(*list, list->currentIndex());
}

void MoveRow(QVBoxLayout& from, QVBoxLayout& to) {
    const int stretch = from.stretch(0);
    QLayoutItem* row = from.takeAt(0);
    if (QLayout* rows = row->layout()) {
        to.addLayout(rows, stretch);
    } else if (QWidget* control = row->widget()) {
        to.addWidget(control, stretch, row->alignment());
        delete row;
    } else {
        to.addItem(row);
    }
}

} // namespace

void ScrollContent(QWidget& window) {
    auto* column = qobject_cast<QVBoxLayout*>(window.layout());
    if (!column || column->count() < 2)
        return;
    auto* area = Named(new ContentArea(&window), u"scrContent"_s);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    auto* content = new QWidget;
    auto* rows = new QVBoxLayout(content);
    rows->setContentsMargins({});
    area->setWidget(content);
    while (column->count() > 1)
        MoveRow(*column, *rows);
    column->insertWidget(0, area, 1);
    // The toolkit follows the keyboard only where it comes from within the area.
    Connect(qApp, &QApplication::focusChanged, area, [area](QWidget*, QWidget* now) {
        if (now && area->widget()->isAncestorOf(now))
            BringInSight(*area, *now);
    });
}

void ScrollAround(const QAbstractItemView& list, const QModelIndex& index) {
    const QRect row = list.visualRect(index) & list.viewport()->rect();
    if (row.isEmpty())
        return;
    for (QWidget* above = list.parentWidget(); above; above = above->parentWidget()) {
        auto* area = qobject_cast<QScrollArea*>(above);
        if (!area || !area->widget()->isAncestorOf(&list))
            continue;
        const QPoint place = list.viewport()->mapTo(area->widget(), row.center());
        area->ensureVisible(place.x(), place.y(), 0, row.height());
    }
}

} // namespace lorvo
