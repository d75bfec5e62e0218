// What a clerk opens from the panels: payments, and the editors of dogs and owners.
#include "walk/desk.h"

#include <QLineEdit>
#include <QTest>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

int IdOf(const QString& key) {
    return QStringView(key).mid(1).toInt();
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

QString PaymentsOfOwner(Desk& desk) {
    if (!desk.model.ownerOnShow)
        return {};
    WhileOpen([&] { desk.Click(u"lblSeznamPlateb1"_s); },
              [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    desk.model.RefillOwner();
    return u"payments of owner"_s;
}

QString EditDog(Desk& desk) {
    if (!IsDogOnShow(desk))
        return {};
    const QString key = desk.model.onShow;
    DeskDog& dog = desk.model.dogs.at(IdOf(key));
    const bool wanted = !desk.OneIn(3);
    const bool sure = wanted && desk.model.OffersClassOf(IdOf(key));
    const QString digits = u"%1"_s.arg(desk.Random(1000), 3, 10, QLatin1Char('0'));
    WhileOpen([&] { desk.Click(u"lblEdit"_s); },
              [&](QWidget& window) {
                  auto& name = Control<QLineEdit>(window, "txtbox(0)");
                  QTest::keyClick(&name, Qt::Key_End);
                  for (int i = 0; i < 3; ++i)
                      QTest::keyClick(&name, Qt::Key_Backspace);
                  QTest::keyClicks(&name, digits);
                  if (wanted)
                      QTest::keyClick(&name, Qt::Key_Return);
                  if (!sure)
                      QTest::keyClick(&name, Qt::Key_Escape);
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

} // namespace

const std::vector<DeskStep>& StepsInEditors() {
    static const std::vector<DeskStep> steps{TakePayment,     TakePaymentByMenu, DeletePayment,
                                             PaymentsOfOwner, EditDog,           EditDog,
                                             EditOwner};
    return steps;
}

} // namespace lorvo::test
