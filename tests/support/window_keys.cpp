#include "support/window_keys.h"

#include "forms/access_keys.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QTest>
#include <gtest/gtest.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

bool IsField(const QWidget& widget) {
    return qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QAbstractSpinBox*>(&widget) ||
           qobject_cast<const QAbstractItemView*>(&widget);
}

/// Fields that take part in the window, each without the lines and lists that it is made of.
QList<QWidget*> FieldsOf(const QWidget& window) {
    QList<QWidget*> fields;
    for (QWidget* widget : window.findChildren<QWidget*>())
        if (IsField(*widget) && widget->isVisible() && widget->isEnabled() &&
            widget->window() == &window && (widget->focusPolicy() & Qt::TabFocus) &&
            !IsField(*widget->parentWidget()))
            fields.push_back(widget);
    return fields;
}

void TypeInto(QWidget& field) {
    if (const auto* line = qobject_cast<QLineEdit*>(&field); line && !line->isReadOnly())
        QTest::keyClicks(&field, u"12"_s);
    else if (qobject_cast<QAbstractSpinBox*>(&field))
        QTest::keyClicks(&field, u"3"_s);
    else if (qobject_cast<QComboBox*>(&field) || qobject_cast<QAbstractItemView*>(&field))
        QTest::keyClick(&field, Qt::Key_Down);
}

} // namespace

void FillByKeys(QWidget& window) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_TRUE(QTest::qWaitFor([&window] { return window.focusWidget() != nullptr; }));
    const QString name = window.objectName();
    QSet<const QWidget*> come;
    for (QWidget* at = window.focusWidget(); at && !come.contains(at); at = window.focusWidget()) {
        come.insert(at);
        EXPECT_FALSE(at->visibleRegion().isEmpty())
            << name.toStdString() << ": the keyboard is out of sight at "
            << at->objectName().toStdString();
        TypeInto(*at);
        QCoreApplication::processEvents(); // a clerk's keys come one by one
        if (!window.isVisible())
            return;
        QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    }
    for (const QWidget* field : FieldsOf(window))
        EXPECT_TRUE(come.contains(field) || come.contains(field->focusProxy()))
            << name.toStdString() << ": Tab doesn't come to " << field->objectName().toStdString();
}

bool ConfirmByKeys(QWidget& window) {
    for (const QPushButton* button : window.findChildren<QPushButton*>())
        if (button->isDefault() && button->isVisible() && button->isEnabled()) {
            const QChar key = AccessKeyOf(*button);
            EXPECT_FALSE(key.isNull()) << button->objectName().toStdString();
            QTest::keyClick(window.windowHandle(), static_cast<Qt::Key>(key.unicode()),
                            Qt::AltModifier);
            return true;
        }
    return false;
}

} // namespace lorvo::test
