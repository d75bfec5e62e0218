#include "walk/desk.h"

#include "office/tree/tree_model.h"

#include <QAbstractButton>
#include <QAction>
#include <QDropEvent>
#include <QMimeData>
#include <QStyleOptionViewItem>
#include <QTest>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

std::string Quoted(const QString& text) {
    return "'" + text.toStdString() + "'";
}

std::string Fees(int show) {
    std::string fields;
    for (const bool first : {true, false})
        for (int column = 1; column <= 9; ++column)
            for (const bool firstDog : {true, false})
                fields += ", Poplatky" + std::string(first ? "I" : "II") + "Class" +
                          std::to_string(column) + "D" + (firstDog ? "1" : "2") + " = " +
                          std::to_string(DeskModel::Fee(show, first, column, firstDog) * 10000);
    return fields;
}

} // namespace

Desk::Desk(unsigned seed) : model(seed % 2 == 0), chance_(seed) {
    Module() = {};
    platform.settings[u"Sys\\ShowClasses"_s] = model.withClasses ? u"1"_s : u"0"_s;
    platform.now = DateValue::FromCalendar(2005, 4, 1).WithSecondOfDay(8 * 3600);
    StoreModel();
    window = std::make_unique<fm_main>();
    window->Start();
    QCoreApplication::processEvents();
}

Desk::~Desk() {
    window->close();
    window.reset();
    Module() = {};
}

void Desk::StoreModel() {
    std::string sql =
        "INSERT INTO Meny (ID, Nazev, Zkratka, Kurs, Hlavni) VALUES (1, 'Koruna', 'Kč', "
        "10000, -1); INSERT INTO Ostatni VALUES ('2005-05-14T00:00:00');";
    for (const auto& [id, name] : model.rings)
        sql += "INSERT INTO Kruhy (ID, Nazev) VALUES (" + std::to_string(id) + ", " + Quoted(name) +
               ");";
    for (const auto& [id, breed] : model.breeds)
        sql += "INSERT INTO Plemena (ID, Nazev, NazevOrig, FCI, Vlastni, Pouzivat, ID_Kruhu) "
               "VALUES (" +
               std::to_string(id) + ", " + Quoted(breed.name) + ", '', " +
               std::to_string(breed.fci) + (breed.own ? ", -1" : ", 0") + ", -1, " +
               std::to_string(breed.ring) + ");";
    for (const auto& [id, owner] : model.owners)
        sql += "INSERT INTO Majitele (ID, Jmeno, Prijmeni, Ulice, Mesto, Telefon, Email, Stat) "
               "VALUES (" +
               std::to_string(id) + ", " + Quoted(owner.name) + ", '', " + Quoted(owner.street) +
               ", 'Brno', '', '', '');";
    for (const auto& [id, dog] : model.dogs)
        sql += "INSERT INTO Psi (ID, Jmeno, ChovnaStanice, PlemenoID, MajitelID, PohlaviPes, "
               "DatumNar, "
               "Trida, PrvniUzaverka, PrvniPes) VALUES (" +
               std::to_string(id) + ", " + Quoted(dog.name) + ", '', " + std::to_string(dog.breed) +
               ", " + std::to_string(dog.owner) + (dog.male ? ", -1" : ", 0") +
               ", '2002-01-01T00:00:00', " + std::to_string(dog.trida) +
               (dog.firstClosing ? ", -1" : ", 0") + (dog.firstDog ? ", -1" : ", 0") + ");";
    for (const auto& [id, name] : model.shows)
        sql += "INSERT INTO Vystavy (ID, Nazev) VALUES (" + std::to_string(id) + ", " +
               Quoted(name) + "); UPDATE Vystavy SET Nazev = Nazev" + Fees(id) +
               " WHERE ID = " + std::to_string(id) + ";";
    for (const auto& [id, price] : model.competitions)
        sql += "INSERT INTO Souteze (ID, Nazev, Cena) VALUES (" + std::to_string(id) +
               ", 'Soutěž " + std::to_string(id) + "', " + std::to_string(price * 10000) + ");";
    for (const auto& [id, name] : model.awards)
        sql += "INSERT INTO Oceneni (ID, Nazev) VALUES (" + std::to_string(id) + ", " +
               Quoted(name) + ");";
    for (const auto& [dog, show] : model.entries)
        sql += "INSERT INTO PsiVeVystavach VALUES (" + std::to_string(dog) + ", " +
               std::to_string(show) + ");";
    database.Execute(sql);
}

void Desk::Click(const QString& name) {
    QTest::mouseClick(&Get<QWidget>(name), Qt::LeftButton);
}

QPoint Desk::PlaceOf(const QString& key) {
    const TreeNode& node = window->Nodes().Get(key);
    Tree().EnsureVisible(&node);
    const auto& nodes = static_cast<const TreeModel&>(*Tree().model());
    const QRect rect = Tree().visualRect(nodes.IndexOf(&node));
    return {rect.left() + 24, rect.center().y()};
}

void Desk::ClickNode(const QString& key, Qt::MouseButton button) {
    QTest::mouseClick(Tree().viewport(), button, {}, PlaceOf(key));
}

void Desk::ClickBesideTree(Qt::MouseButton button) {
    const QAbstractItemView& tree = Tree();
    QPoint place(tree.viewport()->width() - 3, 5);
    // A long name may take the whole width of its row.
    while (tree.indexAt(place).isValid() && place.y() < tree.viewport()->height())
        place.ry() += 5;
    QTest::mouseClick(tree.viewport(), button, {}, place);
}

void Desk::Choose(const QString& key, int entry) {
    platform.ExpectMenu(entry);
    if (key.isEmpty())
        ClickBesideTree(Qt::RightButton);
    else
        ClickNode(key, Qt::RightButton);
}

void Desk::PressInTree(Qt::Key key) {
    QTest::keyClick(&Tree(), key);
}

void Desk::Drop(const QString& key, const QString& target) {
    auto& nodes = static_cast<TreeModel&>(*Tree().model());
    const std::unique_ptr<QMimeData> data(
        nodes.mimeData({nodes.IndexOf(&window->Nodes().Get(key))}));
    const QPoint place = PlaceOf(target);
    QDragEnterEvent enter(place, Qt::MoveAction, data.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(Tree().viewport(), &enter);
    QDragMoveEvent move(place, Qt::MoveAction, data.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(Tree().viewport(), &move);
    QDropEvent drop(place, Qt::MoveAction, data.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(Tree().viewport(), &drop);
}

void Desk::Tick(const QString& list, const QString& key) {
    auto& view = Get<ReportList>(list);
    const int row = view.FindRow(key);
    ASSERT_GE(row, 0) << key.toStdString();
    const QModelIndex index = view.model()->index(row, 0);
    view.scrollTo(index);
    QStyleOptionViewItem option;
    option.initFrom(&view);
    option.rect = view.visualRect(index);
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    const QRect box =
        view.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &view);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, box.center());
}

void Desk::Trigger(const QString& command) {
    Get<QAction>(command).trigger();
}

bool IsDogOnShow(const Desk& desk) {
    return desk.model.onShow.startsWith(u'P') && !desk.model.ownerOnShow;
}

void TakeDogOnShow(Desk& desk) {
    if (desk.model.selected.isEmpty())
        desk.model.selected = desk.model.onShow;
    desk.model.currentDog = QStringView(desk.model.onShow).mid(1).toInt();
}

} // namespace lorvo::test
