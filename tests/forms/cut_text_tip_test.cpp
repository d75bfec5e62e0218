#include "forms/report_list.h"

#include <QHelpEvent>
#include <QTest>
#include <QToolTip>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// What the tool tip says where the mouse stays over the cell.
QString TipOver(const ReportList& list, int row, int column) {
    const QPoint at = list.visualRect(list.model()->index(row, column)).center();
    QHelpEvent event(QEvent::ToolTip, at, list.viewport()->mapToGlobal(at));
    const bool shown = QCoreApplication::sendEvent(list.viewport(), &event);
    return shown ? QToolTip::text() : QString();
}

TEST(CutTextTip, ACellThatIsTooNarrowShowsItsWholeTextUnderTheMouse) {
    const QString name = u"Xaver Maxmilián z Údolí Modrých Hvězd nad Jizerou"_s;
    ReportList list("lvwCells", {u"Jméno"_s, u"Město"_s}, nullptr);
    list.SetRows({{u"P1"_s, {}, {{name}, {u"Brno"_s}}}});
    list.DrawColumn(0, 90);
    list.resize(300, 100);
    list.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&list));
    EXPECT_EQ(TipOver(list, 0, 0), name);
}

// The one shown last fades away when there is none to show.
TEST(CutTextTip, ACellWithRoomForItsTextShowsNone) {
    ReportList list("lvwCells", {u"Jméno"_s, u"Město"_s}, nullptr);
    list.SetRows({{u"P1"_s, {}, {{u"Alík"_s}, {u"Brno"_s}}}});
    list.DrawColumn(0, 90);
    list.resize(300, 100);
    list.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&list));
    for (const int column : {0, 1}) {
        QToolTip::showText(list.mapToGlobal(QPoint()), u"Xaver"_s);
        TipOver(list, 0, column);
        EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); })) << column;
    }
}

} // namespace
} // namespace lorvo
