// What a clerk does on the panels: ticks, links, pictures, and going back and forth.
#include "walk/desk.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

int IdOf(const QString& key) {
    return QStringView(key).mid(1).toInt();
}

bool IsDogOnShow(const Desk& desk) {
    return desk.model.onShow.startsWith(u'P') && !desk.model.ownerOnShow;
}

/// What is done on the panel of a dog selects its node if the tree has none selected.
void TakeDogOnShow(Desk& desk) {
    if (desk.model.selected.isEmpty())
        desk.model.selected = desk.model.onShow;
    desk.model.currentDog = IdOf(desk.model.onShow);
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

/// Takes a payment or leaves the window; how much was taken, 0 for nothing.
int Pay(Desk& desk, const std::function<void()>& open) {
    const bool sure = !desk.OneIn(3);
    const int units = 1 + desk.Random(1500);
    WhileOpen(open, [&](QWidget& window) {
        auto& amount = Control<QLineEdit>(window, "txtCastka");
        amount.selectAll();
        QTest::keyClicks(&amount, QString::number(units));
        QTest::keyClick(&amount, sure ? Qt::Key_Return : Qt::Key_Escape);
    });
    return sure ? units : 0;
}

void Book(Desk& desk, int dog, int units) {
    if (units > 0)
        desk.model.payments[++desk.model.lastPayment] = {dog, units};
}

QString TakePayment(Desk& desk) {
    if (!IsDogOnShow(desk))
        return {};
    const int dog = IdOf(desk.model.onShow);
    const int units = Pay(desk, [&] { desk.Click(u"lblNovaPlatba"_s); });
    TakeDogOnShow(desk);
    Book(desk, dog, units);
    desk.model.Return();
    return u"pay %1 for %2"_s.arg(units).arg(dog);
}

QString TakePaymentByMenu(Desk& desk) {
    const QString key = desk.OneOf(desk.model.nodes.Keys(u'P'));
    if (key.isEmpty())
        return {};
    const int units = Pay(desk, [&] { desk.Choose(key, 602); });
    desk.model.selected = key;
    Book(desk, IdOf(key), units);
    desk.model.Return();
    desk.model.ShowNodeInfo(key);
    return u"pay %1 by menu for "_s.arg(units) + key;
}

QString DeletePayment(Desk& desk) {
    if (!IsDogOnShow(desk))
        return {};
    const int dog = IdOf(desk.model.onShow);
    const auto first = std::ranges::find_if(
        desk.model.payments, [&](const auto& payment) { return payment.second.dog == dog; });
    const bool any = first != desk.model.payments.end();
    const bool sure = desk.OneIn(2);
    WhileOpen([&] { desk.Click(u"lblSeznamPlateb"_s); },
              [&](QWidget& window) {
                  auto& list = Control<ReportList>(window, "lvwUhrady");
                  if (any) {
                      list.SelectRow(0);
                      desk.platform.ExpectMessage(u"Skutečně smazat platbu?"_s,
                                                  sure ? MessageAnswer::Ok : MessageAnswer::Cancel);
                      QTest::keyClick(&list, Qt::Key_Delete);
                  }
                  QTest::keyClick(&list, Qt::Key_Escape);
              });
    TakeDogOnShow(desk);
    if (any && sure)
        desk.model.payments.erase(first);
    desk.model.Return();
    return u"payments of %1"_s.arg(dog);
}

QString EditDog(Desk& desk) {
    if (!IsDogOnShow(desk))
        return {};
    const QString key = desk.model.onShow;
    DeskDog& dog = desk.model.dogs.at(IdOf(key));
    const bool sure = !desk.OneIn(3);
    const QString digits = u"%1"_s.arg(desk.Random(1000), 3, 10, QLatin1Char('0'));
    WhileOpen([&] { desk.Click(u"lblEdit"_s); },
              [&](QWidget& window) {
                  auto& name = Control<QLineEdit>(window, "txtbox(0)");
                  QTest::keyClick(&name, Qt::Key_End);
                  for (int i = 0; i < 3; ++i)
                      QTest::keyClick(&name, Qt::Key_Backspace);
                  QTest::keyClicks(&name, digits);
                  QTest::keyClick(&name, sure ? Qt::Key_Return : Qt::Key_Escape);
              });
    desk.model.selected = key;
    if (sure) {
        dog.name = dog.name.section(u' ', 0, 0) + u' ' + digits;
        std::erase_if(desk.model.entries,
                      [&](const auto& entry) { return entry.first == IdOf(key); });
        desk.model.ShowNodeInfo(key);
        const int number = dog.number.value_or(0);
        desk.model.nodes.SetText(key,
                                 number > 0 ? dog.name + u' ' + QString::number(number) : dog.name);
    }
    desk.model.Return();
    return (sure ? u"edit "_s : u"nearly edit "_s) + key;
}

QString EditOwner(Desk& desk) {
    if (!IsDogOnShow(desk))
        return {};
    const int owner = desk.model.dogs.at(IdOf(desk.model.onShow)).owner;
    const bool sure = desk.OneIn(2);
    const QString street = u"Ulice %1"_s.arg(desk.Random(1000));
    WhileOpen([&] { desk.Click(u"picEditMajitele"_s); },
              [&](QWidget& window) {
                  auto& box = Control<QLineEdit>(window, "txtItem(1)");
                  box.selectAll();
                  QTest::keyClicks(&box, street);
                  QTest::keyClick(&box, sure ? Qt::Key_Return : Qt::Key_Escape);
              });
    TakeDogOnShow(desk);
    if (sure)
        desk.model.owners.at(owner).street = street;
    desk.model.Return();
    return u"edit owner %1"_s.arg(owner);
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

QString PaymentsOfOwner(Desk& desk) {
    if (!desk.model.ownerOnShow)
        return {};
    WhileOpen([&] { desk.Click(u"lblSeznamPlateb1"_s); },
              [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    desk.model.RefillOwner();
    return u"payments of owner"_s;
}

} // namespace

const std::vector<DeskStep>& StepsOnPanels() {
    static const std::vector<DeskStep> steps{
        GoBack,          GoForward,       TickEntry,         TickEntry,
        TickAward,       TakePayment,     TakePaymentByMenu, DeletePayment,
        EditDog,         EditOwner,       GoToNeighbour,     OpenOwner,
        ClickDogOfOwner, ClickDogOfOwner, LeaveOwner,        PaymentsOfOwner};
    return steps;
}

} // namespace lorvo::test
