#include "support/window_look.h"

#include "support/spoken_cells.h"
#include "support/window_pixels.h"
#include "support/window_walk.h"

#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <gtest/gtest.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

/// What a layout asks of the one around it comes a round of the event loop later.
void Settle() {
    for (int round = 0; round < 6; ++round)
        QCoreApplication::processEvents();
}

/// Whether the next page comes from wherever the keyboard is.
void ExpectPagesByKeys(QWidget& window, QTabWidget& tabs) {
    for (QWidget* field : tabs.currentWidget()->findChildren<QWidget*>())
        if (field->isVisible() && field->isEnabled() && (field->focusPolicy() & Qt::TabFocus)) {
            const int page = tabs.currentIndex();
            field->setFocus();
            QTest::keyClick(window.windowHandle(), Qt::Key_Tab, Qt::ControlModifier);
            EXPECT_NE(tabs.currentIndex(), page) << field->objectName().toStdString();
            tabs.setCurrentIndex(page);
        }
}

} // namespace

void LookAt(QWidget& window, const QString& part, DesktopLook look) {
    Settle();
    CheckOnTheScreen(window);
    WalkWindow(window);
    CheckLegible(window);
    CheckSpokenCells(window);
    TakePicture(window, window.objectName() + part + u'-' + NameOf(look));
}

void LookAtEachPage(QWidget& window, DesktopLook look) {
    LookAt(window, {}, look);
    auto* tabs = window.findChild<QTabWidget*>();
    if (tabs)
        ExpectPagesByKeys(window, *tabs);
    for (int page = 1; tabs && page < tabs->count(); ++page) {
        QTest::keyClick(window.windowHandle(), Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(tabs->currentIndex(), page);
        LookAt(window, u"-%1"_s.arg(page + 1), look);
        ExpectPagesByKeys(window, *tabs);
    }
    auto* forward = window.findChild<QPushButton*>(u"cmdFwd"_s);
    for (int page = 1; forward && page < 5; ++page) {
        forward->click();
        LookAt(window, u"-%1"_s.arg(page + 1), look);
    }
}

} // namespace lorvo::test
