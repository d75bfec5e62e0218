// The lists of dogs, exhibitors and payments, the search, and windows that are looked at and left.
#include "walk/desk.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QTest>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

int IdOf(const QString& key) {
    return QStringView(key).mid(1).toInt();
}

void RightClickRow(ReportList& list, int row) {
    const QModelIndex index = list.model()->index(row, 0);
    list.scrollTo(index);
    QTest::mouseClick(list.viewport(), Qt::RightButton, {}, list.visualRect(index).center());
}

QString JumpFromList(Desk& desk) {
    QString key;
    WhileOpen([&] { desk.Trigger(u"TABLES:PSI"_s); },
              [&](QWidget& window) {
                  auto& list = Control<ReportList>(window, "lvwList");
                  EXPECT_EQ(list.RowCount(), std::ssize(desk.model.dogs));
                  const int row = desk.Random(list.RowCount());
                  key = list.Row(row).key;
                  const QModelIndex index = list.model()->index(row, 0);
                  list.scrollTo(index);
                  const QPoint place = list.visualRect(index).center();
                  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
                  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
                  if (window.isVisible())
                      QTest::keyClick(&window, Qt::Key_Escape);
              });
    const bool found = desk.model.nodes.Has(key);
    if (found)
        desk.model.selected = key;
    desk.model.Return();
    if (found)
        desk.model.ShowNodeInfo(key);
    return u"jump to "_s + key;
}

/// A dog from the menu of an exhibitor; the list stays open over the tree.
QString JumpFromExhibitor(Desk& desk) {
    const int owner = 50 + desk.Random(3);
    const std::vector<int> family = desk.model.DogsOfOwner(owner);
    if (family.empty())
        return {};
    const int dog = family[static_cast<std::size_t>(desk.Random(static_cast<int>(family.size())))];
    const QString key = u"P%1"_s.arg(dog);
    WhileOpen([&] { desk.Trigger(u"TABLES:VYSTAVOVATELE"_s); },
              [&](QWidget& window) {
                  auto& list = Control<ReportList>(window, "lvwList");
                  desk.platform.ExpectMenu(dog);
                  RightClickRow(list, list.FindRow(u"M%1"_s.arg(owner)));
                  QTest::keyClick(&window, Qt::Key_Escape);
              });
    if (desk.model.nodes.Has(key))
        desk.model.selected = key;
    desk.model.Return();
    return u"exhibitor's "_s + key;
}

QString MarkPrinted(Desk& desk) {
    // Payments of dogs that have gone aren't listed.
    QStringList keys;
    for (const auto& [id, payment] : desk.model.payments)
        if (desk.model.dogs.contains(payment.dog))
            keys << u"P%1"_s.arg(id);
    const QString key = desk.OneOf(keys);
    if (key.isEmpty())
        return {};
    const bool printed = desk.OneIn(2);
    WhileOpen([&] { desk.Trigger(u"TABLES:PLATBY"_s); },
              [&](QWidget& window) {
                  auto& list = Control<ReportList>(window, "lvwUhrady");
                  EXPECT_EQ(list.RowCount(), keys.size());
                  desk.platform.ExpectMenu(printed ? 100 : 101);
                  RightClickRow(list, list.FindRow(key));
                  QTest::keyClick(&window, Qt::Key_Escape);
              });
    desk.model.payments.at(IdOf(key)).printed = printed;
    desk.model.Return();
    return (printed ? u"printed "_s : u"not printed "_s) + key;
}

/// Ctrl+F in the tree; the first breed or dog whose text has the searched one in it.
QString Find(Desk& desk) {
    const QString text = desk.OneOf({u"dag"_s, u"iris"_s, u"p"_s, u"00"_s, u"nikdo"_s});
    auto& tree = desk.Get<MainTree>(u"tvwMain"_s);
    WhileOpen([&] { QTest::keyClick(&tree, Qt::Key_F, Qt::ControlModifier); },
              [&](QWidget& window) {
                  QTest::keyClicks(&Control<QLineEdit>(window, "txtFind"), text);
                  QTest::mouseClick(&Control<QAbstractButton>(window, "cdmOK"), Qt::LeftButton);
                  QTest::keyClick(&window, Qt::Key_Escape);
              });
    // Each key in the tree shows the selected node again: Ctrl by itself, then F when the search
    // ends.
    if (!desk.model.selected.isEmpty())
        desk.model.ShowNodeInfo(desk.model.selected);
    for (const NodeList::Node& node : desk.model.nodes.All()) {
        const bool isSearched = node.key.startsWith(u'P') || node.key.startsWith(u'R');
        if (isSearched && node.text.contains(text, Qt::CaseInsensitive)) {
            desk.model.selected = node.key;
            break;
        }
    }
    desk.model.Return();
    if (!desk.model.selected.isEmpty())
        desk.model.ShowNodeInfo(desk.model.selected);
    return u"find "_s + text;
}

/// Windows that are looked at and left.
QString LookAt(Desk& desk) {
    const QString command = desk.OneOf({u"TABLES:VYSTAVOVATELE"_s, u"TABLES:PLATBY"_s,
                                        u"TABLES:RODICE"_s, u"TABLES:VYSTAVY"_s, u"SETTINGS"_s});
    WhileOpen([&] { desk.Trigger(command); },
              [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    desk.model.Return();
    return u"look at "_s + command;
}

} // namespace

const std::vector<DeskStep>& StepsInLists() {
    static const std::vector<DeskStep> steps{JumpFromList, JumpFromExhibitor, MarkPrinted, Find,
                                             LookAt};
    return steps;
}

} // namespace lorvo::test
