#include "support/window_pixels.h"

#include "forms/legible_colour.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QHash>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScreen>
#include <QStyleOption>
#include <QTabBar>
#include <QTreeView>
#include <algorithm>
#include <gtest/gtest.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

/// Pixels for each of the window's, so that strokes of letters show the whole ink.
constexpr int kZoom = 3;
constexpr int kCellEdge = 2;
constexpr int kFrame = 4;

QImage ZoomedPicture(QWidget& window) {
    QImage picture(window.size() * kZoom, QImage::Format_RGB32);
    picture.setDevicePixelRatio(kZoom);
    window.render(&picture);
    return picture;
}

/// Between the colour of most pixels and the one that stands farthest from it; 21 for an empty
/// place.
double ContrastIn(const QImage& picture, const QRect& place) {
    const QRect pixels = QRect(place.topLeft() * kZoom, place.size() * kZoom) & picture.rect();
    QHash<QRgb, int> counts;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = pixels.left(); x <= pixels.right(); ++x)
            ++counts[line[x]];
    }
    if (counts.isEmpty())
        return 21;
    const auto ground = std::max_element(counts.begin(), counts.end()).key();
    double farthest = 1;
    for (auto it = counts.begin(); it != counts.end(); ++it)
        farthest = std::max(farthest, Contrast(QColor(it.key()), QColor(ground)));
    return farthest;
}

class Inspection {
  public:
    explicit Inspection(QWidget& window) : window_(window), picture_(ZoomedPicture(window)) {}

    /// At an edge that tells where a box or a tick is.
    void LookAtOutline(const QWidget& widget, const QRect& place) const {
        if (widget.hasFocus() || !widget.visibleRegion().contains(place & widget.rect()))
            return;
        EXPECT_GE(ContrastIn(picture_, {widget.mapTo(&window_, place.topLeft()), place.size()}),
                  kOutlineContrast - 0.05)
            << window_.objectName().toStdString() << ", " << widget.objectName().toStdString()
            << ": its outline";
    }

    void Look(const QWidget& widget, const QRect& place, const QString& text) const {
        const QRect seen = place & widget.visibleRegion().boundingRect();
        // What a scroll bar brings in sight shows its beginning or end only.
        if (text.trimmed().isEmpty() || seen.isEmpty() || seen.height() < place.height() ||
            (seen.width() < place.width() && seen.width() < widget.width()))
            return;
        const double contrast =
            ContrastIn(picture_, {widget.mapTo(&window_, seen.topLeft()), seen.size()});
        // The rounding of colours to whole steps may cost a little.
        EXPECT_GE(contrast, kLegibleContrast - 0.05)
            << window_.objectName().toStdString() << ", " << widget.metaObject()->className() << ' '
            << widget.objectName().toStdString() << ": \"" << text.toStdString() << '"';
    }

  private:
    QWidget& window_;
    QImage picture_;
};

void LookAtCells(const Inspection& inspection, const QTreeView& view) {
    const QWidget& port = *view.viewport();
    for (QModelIndex row = view.indexAt({1, 1}); row.isValid(); row = view.indexBelow(row)) {
        if (view.visualRect(row).top() > port.height())
            break;
        for (int column = 0; column < view.model()->columnCount(row.parent()); ++column) {
            const QModelIndex cell = row.siblingAtColumn(column);
            QStyleOptionViewItem option;
            option.initFrom(&view);
            option.rect = view.visualRect(cell);
            option.decorationSize = view.iconSize().isValid() ? view.iconSize() : QSize(16, 16);
            option.features.setFlag(QStyleOptionViewItem::HasDisplay);
            option.features.setFlag(QStyleOptionViewItem::HasDecoration,
                                    cell.data(Qt::DecorationRole).isValid());
            option.features.setFlag(QStyleOptionViewItem::HasCheckIndicator,
                                    cell.data(Qt::CheckStateRole).isValid());
            option.text = cell.data().toString();
            QRect text = view.style()->subElementRect(QStyle::SE_ItemViewItemText, &option, &view);
            text.setRight(option.rect.right());
            inspection.Look(port, text.adjusted(kCellEdge, kCellEdge, -kCellEdge, -kCellEdge),
                            option.text);
        }
    }
}

void LookAtHeadings(const Inspection& inspection, const QHeaderView& header) {
    if (!header.isVisible())
        return;
    for (int section = 0; section < header.count(); ++section)
        inspection.Look(*header.viewport(),
                        QRect(header.sectionViewportPosition(section) + kCellEdge, kCellEdge,
                              header.sectionSize(section) - 2 * kCellEdge,
                              header.height() - 2 * kCellEdge),
                        header.model()->headerData(section, Qt::Horizontal).toString());
}

/// Where that text stands, without frames and ticks.
QRect PlaceOf(const QWidget& widget) {
    QStyleOptionButton option;
    option.initFrom(&widget);
    if (qobject_cast<const QCheckBox*>(&widget))
        return widget.style()->subElementRect(QStyle::SE_CheckBoxContents, &option, &widget);
    if (qobject_cast<const QRadioButton*>(&widget))
        return widget.style()->subElementRect(QStyle::SE_RadioButtonContents, &option, &widget);
    const int frame = qobject_cast<const QLabel*>(&widget) ? 0 : kFrame;
    return widget.rect().adjusted(frame, frame, -frame, -frame);
}

/// Where the outline of a box or a tick runs; empty for what has none.
QRect PlaceOfOutline(const QWidget& widget) {
    QStyleOptionButton option;
    option.initFrom(&widget);
    if (qobject_cast<const QCheckBox*>(&widget))
        return widget.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &widget);
    if (qobject_cast<const QRadioButton*>(&widget))
        return widget.style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, &widget);
    const bool within = qobject_cast<const QComboBox*>(widget.parentWidget()) ||
                        qobject_cast<const QAbstractSpinBox*>(widget.parentWidget());
    const bool field = qobject_cast<const QLineEdit*>(&widget) ||
                       qobject_cast<const QComboBox*>(&widget) ||
                       qobject_cast<const QAbstractSpinBox*>(&widget);
    return field && !within ? QRect(0, widget.height() / 4, kFrame, widget.height() / 2) : QRect();
}

/// Where a frame's heading stands.
QRect PlaceOfTitle(const QGroupBox& frame) {
    QStyleOptionGroupBox option;
    option.initFrom(&frame);
    option.text = frame.title();
    option.lineWidth = 1;
    option.textAlignment = frame.alignment();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    return frame.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel,
                                         &frame);
}

/// The text that the widget shows of itself.
QString TextOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text();
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return line->text();
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
        return combo->isEditable() ? QString() : combo->currentText();
    return {};
}

} // namespace

void CheckLegible(QWidget& window) {
    const Inspection inspection(window);
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->window() != &window || !widget->isEnabled())
            continue;
        inspection.Look(*widget, PlaceOf(*widget), TextOf(*widget));
        if (const QRect outline = PlaceOfOutline(*widget); !outline.isEmpty())
            inspection.LookAtOutline(*widget, outline);
        if (const auto* view = qobject_cast<const QTreeView*>(widget); view && view->model())
            LookAtCells(inspection, *view);
        if (const auto* header = qobject_cast<const QHeaderView*>(widget))
            LookAtHeadings(inspection, *header);
        if (const auto* frame = qobject_cast<const QGroupBox*>(widget))
            inspection.Look(*frame, PlaceOfTitle(*frame), frame->title());
        if (const auto* tabs = qobject_cast<const QTabBar*>(widget))
            for (int tab = 0; tab < tabs->count(); ++tab)
                inspection.Look(*tabs, tabs->tabRect(tab), tabs->tabText(tab));
    }
}

void CheckOnTheScreen(const QWidget& window) {
    const QRect space = window.screen()->availableGeometry();
    const QRect place = window.frameGeometry();
    EXPECT_TRUE(space.contains(place))
        << window.objectName().toStdString() << ": " << place.width() << " x " << place.height()
        << " at " << place.x() << ", " << place.y() << " on " << space.width() << " x "
        << space.height();
}

void TakePicture(QWidget& window, const QString& name) {
    const QString folder = qEnvironmentVariable("LORVO_PICTURES");
    if (folder.isEmpty())
        return;
    EXPECT_TRUE(QDir().mkpath(folder) && window.grab().save(folder + u'/' + name + u".png"_s));
}

} // namespace lorvo::test
