#include "support/window_walk.h"

#include "forms/access_keys.h"
#include "forms/elided_label.h"
#include "forms/wrapped_label.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QHash>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>
#include <algorithm>
#include <gtest/gtest.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

std::string Describe(const QWidget& widget) {
    QString text = QString::fromLatin1(widget.metaObject()->className()) + u' ';
    text += widget.objectName();
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        text += u" \"%1\""_s.arg(label->text());
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        text += u" \"%1\""_s.arg(button->text());
    return text.toStdString();
}

/// Whether the widget is a part that another control is made of, such as the line of a combo box.
bool IsPart(const QWidget& widget) {
    for (const QWidget* above = widget.parentWidget(); above && !widget.isWindow();
         above = above->parentWidget()) {
        if (qobject_cast<const QComboBox*>(above) || qobject_cast<const QAbstractSpinBox*>(above) ||
            qobject_cast<const QAbstractItemView*>(above) || above->inherits("QCalendarWidget") ||
            above->inherits("QTabBar") || above->inherits("QToolBar") ||
            above->inherits("QLineEdit"))
            return true;
        if (above->isWindow())
            break;
    }
    return widget.objectName().startsWith(u"qt_");
}

QList<QWidget*> ControlsOf(const QWidget& window) {
    QList<QWidget*> result;
    for (QWidget* widget : window.findChildren<QWidget*>())
        if (widget->isVisible() && widget->window() == &window && !IsPart(*widget))
            result.push_back(widget);
    return result;
}

bool IsField(const QWidget& widget) {
    return qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QAbstractSpinBox*>(&widget) || widget.inherits("QPlainTextEdit") ||
           widget.inherits("QTextEdit");
}

bool IsControl(const QWidget& widget) {
    return IsField(widget) || qobject_cast<const QAbstractButton*>(&widget) ||
           qobject_cast<const QAbstractItemView*>(&widget);
}

bool HasCaption(const QWidget& field, const QList<QWidget*>& controls) {
    if (!field.accessibleName().isEmpty())
        return true;
    return std::any_of(controls.begin(), controls.end(), [&](const QWidget* widget) {
        const auto* label = qobject_cast<const QLabel*>(widget);
        return label && label->buddy() == &field;
    });
}

/// Whether `right` is read after `left`: they are compared as parts of the innermost box that
/// holds both, line by line.
bool ReadsAfter(const QWidget* left, const QWidget* right) {
    const QWidget* box = left->parentWidget();
    while (box && !box->isAncestorOf(right))
        box = box->parentWidget();
    while (left->parentWidget() != box)
        left = left->parentWidget();
    while (right->parentWidget() != box)
        right = right->parentWidget();
    const QRect first = left->geometry();
    const QRect second = right->geometry();
    const bool sameLine = second.top() < first.center().y() && first.top() < second.center().y();
    return sameLine ? second.left() >= first.left() : second.top() >= first.top();
}

void WalkTabOrder(const QWidget& window, const QList<QWidget*>& controls) {
    QList<const QWidget*> order;
    const QWidget* widget = &window;
    do {
        if (controls.contains(widget) && (widget->focusPolicy() & Qt::TabFocus) &&
            !widget->focusProxy())
            order.push_back(widget);
        widget = widget->nextInFocusChain();
    } while (widget != &window);
    for (qsizetype i = 1; i < order.size(); ++i)
        EXPECT_TRUE(ReadsAfter(order[i - 1], order[i]))
            << "Tab goes from " << Describe(*order[i - 1]) << " to " << Describe(*order[i]);
}

/// Buttons and captions of fields lead somewhere by a letter of their own.
void CheckAccessKeys(const QList<QWidget*>& controls) {
    QHash<QChar, const QWidget*> owners;
    for (const QWidget* widget : controls) {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const auto* label = qobject_cast<const QLabel*>(widget);
        const QString text = button                    ? button->text()
                             : label && label->buddy() ? label->text()
                                                       : QString();
        const bool speaks =
            std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
        if (!speaks || qobject_cast<const QToolButton*>(widget))
            continue;
        const QChar key = AccessKeyOf(*widget);
        EXPECT_FALSE(key.isNull()) << Describe(*widget) << " has no access key";
        EXPECT_FALSE(owners.contains(key))
            << Describe(*widget) << " shares its access key with " << Describe(*owners.value(key));
        if (!key.isNull())
            owners.insert(key, widget);
    }
}

/// Whether the label has no room for its text and shows it whole under the mouse.
bool EndsInEllipsis(const QLabel& label) {
    const_cast<QLabel&>(label).grab(); // it is when it is painted that a label knows
    return label.toolTip() == PlainToolTip(label.text());
}

/// How far the ink reaches in a label of that width.
int EndOfInk(QLabel& label, int width) {
    label.resize(width, label.height());
    const QImage picture = label.grab().toImage();
    for (int x = picture.width() - 1; x >= 0; --x)
        for (int y = 0; y < picture.height(); ++y)
            if (picture.pixel(x, y) != picture.pixel(picture.width() - 1, 0))
                return x;
    return -1;
}

/// Texts may be painted wider than they have been measured.
void CheckInkFits(QLabel& label) {
    const QSize size = label.size();
    const int end = EndOfInk(label, size.width());
    EXPECT_EQ(end, EndOfInk(label, size.width() + 10)) << Describe(label) << ": its ink is cut";
    label.resize(size);
}

void CheckTextFits(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    if (!(label && !label->text().isEmpty()) && !(button && !button->text().isEmpty()))
        return;
    if (label && label->wordWrap()) {
        EXPECT_TRUE(qobject_cast<const WrappedLabel*>(label) ||
                    label->width() >= label->minimumSizeHint().width())
            << Describe(widget) << " is cut within a word";
        EXPECT_GE(label->height(), label->heightForWidth(label->width()))
            << Describe(widget) << " is cut";
        return;
    }
    // A link may ask for more than its text, so that it is easy to hit.
    const int asked = widget.sizeHint().width();
    const int needed =
        label ? std::min(asked, label->fontMetrics().horizontalAdvance(label->text())) : asked;
    EXPECT_TRUE(widget.width() >= needed || (label && EndsInEllipsis(*label)))
        << Describe(widget) << " is cut";
    EXPECT_GE(widget.height(), widget.minimumSizeHint().height()) << Describe(widget) << " is cut";
    const bool leftAligned = label && (label->alignment() & Qt::AlignLeft);
    if (leftAligned && label->frameShape() == QFrame::NoFrame && !EndsInEllipsis(*label))
        CheckInkFits(const_cast<QLabel&>(*label));
}

} // namespace

void WalkWindow(QWidget& window) {
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    const QList<QWidget*> controls = ControlsOf(window);
    EXPECT_FALSE(window.objectName().isEmpty()) << "the window has no name";
    for (const QWidget* widget : controls) {
        if (IsControl(*widget)) {
            EXPECT_FALSE(widget->objectName().isEmpty()) << Describe(*widget) << " has no name";
        }
        if (IsField(*widget)) {
            EXPECT_TRUE(HasCaption(*widget, controls)) << Describe(*widget) << " has no caption";
        }
        CheckTextFits(*widget);
    }
    WalkTabOrder(window, controls);
    if (window.findChild<AccessKeys*>())
        CheckAccessKeys(controls);
}

} // namespace lorvo::test
