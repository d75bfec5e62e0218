// What a clerk does on the panels: ticks, links, pictures, and going back and forth.
#include "walk/desk.h"

#include <QLabel>
#include <QTest>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

int IdOf(const QString& key) {
    return QStringView(key).mid(1).toInt();
}

QString GoBack(Desk& desk) {
    const QString target = desk.model.BackTarget();
    // A node that has gone would end the program.
    if (target.isEmpty() || !desk.model.nodes.Has(target))
        return {};
    desk.Click(u"cmdHistoryBack"_s);
    desk.model.GoBack();
    return u"back to "_s + target;
}

QString GoForward(Desk& desk) {
    const QString target = desk.model.ForwardTarget();
    if (target.isEmpty() || !desk.model.nodes.Has(target))
        return {};
    desk.Click(u"cmdHistoryFwd"_s);
    desk.model.GoForward();
    return u"forward to "_s + target;
}

QString TickEntry(Desk& desk) {
    if (!IsDogOnShow(desk))
        return {};
    const QString key = desk.OneOf({u"V1"_s, u"V2"_s, u"k1"_s, u"k2"_s});
    const QStringList ticked = desk.model.TicksAfter(key);
    desk.Tick(u"lvwSouteze"_s, key);
    TakeDogOnShow(desk);
    desk.model.WriteEntries(IdOf(desk.model.onShow), ticked);
    const QString words = u"tick "_s + key + u" of "_s + desk.model.onShow;
    desk.model.ShowNodeInfo(desk.model.selected);
    return words;
}

QString TickAward(Desk& desk) {
    if (!IsDogOnShow(desk))
        return {};
    const QString key = desk.OneOf({u"C1"_s, u"C2"_s});
    QString& ticks = desk.model.panel[u"lvwOceneni"_s];
    QStringList ticked = ticks.split(u' ', Qt::SkipEmptyParts);
    if (!ticked.removeAll(key))
        ticked << key;
    ticked.sort();
    desk.Tick(u"lvwOceneni"_s, key);
    TakeDogOnShow(desk);
    ticks = ticked.join(u' ');
    desk.model.WriteAwards(IdOf(desk.model.onShow), ticked);
    return u"award "_s + key + u" of "_s + desk.model.onShow;
}

QString GoToNeighbour(Desk& desk) {
    const bool back = desk.OneIn(2);
    const QString picture = back ? u"picPrev"_s : u"picNext"_s;
    if (!IsDogOnShow(desk) || desk.model.panel.at(picture).isEmpty())
        return {};
    const auto [before, behind] = desk.model.neighboursOnShow;
    const QString key = u"P%1"_s.arg(back ? before : behind);
    desk.Click(picture);
    if (desk.model.nodes.Has(key)) {
        desk.model.selected = key;
        desk.model.ShowNodeInfo(key);
    }
    return picture + u" to "_s + key;
}

/// The menu of the owner's dogs: one of them, or their highlighting.
QString ChooseOwnersDog(Desk& desk) {
    if (!IsDogOnShow(desk))
        return {};
    const auto [before, behind] = desk.model.neighboursOnShow;
    if (before == 0 && behind == 0)
        return {};
    const int owner = desk.model.dogs.at(IdOf(desk.model.onShow)).owner;
    const std::vector<int> family = desk.model.DogsOfOwner(owner);
    const int entry =
        desk.OneIn(4) ? -1
        : desk.OneIn(4)
            ? -3
            : family[static_cast<std::size_t>(desk.Random(static_cast<int>(family.size())))];
    desk.platform.ExpectMenu(entry);
    desk.Click(u"picList"_s);
    TakeDogOnShow(desk);
    const QString key = u"P%1"_s.arg(entry);
    if (desk.model.nodes.Has(key))
        desk.model.selected = key;
    desk.model.ShowNodeInfo(desk.model.selected);
    return u"menu of dogs: %1"_s.arg(entry);
}

QString OpenOwner(Desk& desk) {
    if (!IsDogOnShow(desk))
        return {};
    for (QLabel* label : desk.window->findChildren<QLabel*>())
        if (label->accessibleName() == u"Jméno:" && label->isVisible())
            QTest::mouseClick(label, Qt::LeftButton, {}, QPoint(3, 3));
    TakeDogOnShow(desk);
    desk.model.ShowOwner();
    return u"owner of "_s + desk.model.onShow;
}

QString ClickDogOfOwner(Desk& desk) {
    if (!desk.model.ownerOnShow)
        return {};
    auto& list = desk.Get<ReportList>(u"lvwDogs"_s);
    if (list.RowCount() == 0)
        return {};
    const int row = desk.Random(list.RowCount());
    const QString key = list.Row(row).key;
    const bool twice = desk.OneIn(2);
    const QPoint place = list.visualRect(list.model()->index(row, 0)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
    if (desk.model.nodes.Has(key))
        desk.model.selected = key;
    if (twice) {
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
        if (!desk.model.selected.isEmpty())
            desk.model.ShowNodeInfo(desk.model.selected);
    }
    return u"owner's dog "_s + key;
}

QString LeaveOwner(Desk& desk) {
    if (!desk.model.ownerOnShow)
        return {};
    desk.Click(u"Label21"_s);
    if (desk.model.selected.isEmpty())
        TakeDogOnShow(desk);
    desk.model.ShowNodeInfo(desk.model.selected);
    return u"leave owner"_s;
}

} // namespace

const std::vector<DeskStep>& StepsOnPanels() {
    static const std::vector<DeskStep> steps{
        GoBack,        GoForward,       TickEntry, TickEntry,       TickAward,
        GoToNeighbour, ChooseOwnersDog, OpenOwner, ClickDogOfOwner, LeaveOwner};
    return steps;
}

} // namespace lorvo::test
