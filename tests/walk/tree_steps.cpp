// What a clerk does in the tree: goes about in it, by its menus, keys and by dragging.
#include "walk/desk.h"

#include <QLineEdit>
#include <QTest>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t kMostRings = 5;
constexpr std::size_t kFewestDogs = 4;

int IdOf(const QString& key) {
    return QStringView(key).mid(1).toInt();
}

QString RandomDog(Desk& desk) {
    return desk.OneOf(desk.model.nodes.Keys(u'P'));
}

/// A breed with ordinary classes.
QString RandomBreed(Desk& desk) {
    QStringList breeds = desk.model.nodes.Keys(u'R');
    breeds.removeAll(u"R949"_s);
    return desk.OneOf(breeds);
}

void ShowSelected(Desk& desk) {
    if (!desk.model.selected.isEmpty())
        desk.model.ShowNodeInfo(desk.model.selected);
}

QString ClickNode(Desk& desk) {
    const QString key = desk.OneOf(desk.model.nodes.Keys());
    desk.ClickNode(key);
    desk.model.selected = key;
    desk.model.ShowNodeInfo(key);
    return u"click "_s + key;
}

QString PressArrow(Desk& desk) {
    const Qt::Key key = std::array{Qt::Key_Up, Qt::Key_Down, Qt::Key_Right}[desk.Random(3)];
    if (desk.model.selected.isEmpty())
        return {};
    desk.PressInTree(key);
    desk.model.selected = desk.Selected();
    ShowSelected(desk);
    return u"arrow to "_s + desk.model.selected;
}

QString Drag(Desk& desk) {
    const bool breed = desk.OneIn(3);
    const QString key = breed ? RandomBreed(desk) : RandomDog(desk);
    const QString target = breed ? desk.OneOf(desk.model.nodes.Keys(u'K')) : RandomBreed(desk);
    if (key.isEmpty() || target.isEmpty())
        return {};
    if (!breed && desk.model.dogs.at(IdOf(key)).breed == 949)
        return {};
    desk.Drop(key, target);
    desk.model.nodes.Move(key, target);
    if (breed)
        desk.model.breeds.at(IdOf(key)).ring = IdOf(target);
    else
        desk.model.dogs.at(IdOf(key)).breed = IdOf(target);
    return u"drag "_s + key + u" to "_s + target;
}

/// The menu's marks are set on the dog that the panel shows.
QString MarkDog(Desk& desk) {
    const QString key = RandomDog(desk);
    if (key.isEmpty())
        return {};
    const int entry = 606 + desk.Random(3);
    desk.ClickNode(key);
    desk.model.selected = key;
    desk.model.ShowNodeInfo(key);
    desk.Choose(key, entry);
    DeskDog& dog = desk.model.dogs.at(IdOf(key));
    if (entry == 608)
        for (const int id : desk.model.DogsOfOwner(dog.owner))
            desk.model.dogs.at(id).firstDog = id == IdOf(key);
    else
        dog.firstClosing = entry == 606;
    desk.model.ShowNodeInfo(key);
    return u"mark %1 on "_s.arg(entry) + key;
}

QString RemoveDog(Desk& desk) {
    const QString key = RandomDog(desk);
    if (key.isEmpty() || desk.model.dogs.size() <= kFewestDogs)
        return {};
    const bool sure = desk.OneIn(2);
    const bool byKey = desk.OneIn(2);
    desk.ClickNode(key);
    desk.model.selected = key;
    desk.model.ShowNodeInfo(key);
    desk.platform.ExpectMessage(
        u"Určitě chcete ze seznamu odstranit psa %1?"_s.arg(desk.model.nodes.Text(key)),
        sure ? MessageAnswer::Yes : MessageAnswer::No);
    if (byKey)
        desk.PressInTree(Qt::Key_Delete);
    else
        desk.Choose(key, 601);
    if (sure) {
        desk.model.dogs.erase(IdOf(key));
        desk.model.nodes.Remove(key);
        desk.model.NodeGone(desk.Selected());
    }
    if (sure || byKey)
        ShowSelected(desk);
    return (sure ? u"remove "_s : u"nearly remove "_s) + key;
}

QString SetFci(Desk& desk) {
    if (!desk.model.nodes.Has(u"R13"_s))
        return {};
    const int group = desk.Random(11);
    desk.Choose(u"R13"_s, 500 + group);
    desk.model.breeds.at(13).fci = group;
    desk.model.selected = u"R13"_s;
    ShowSelected(desk);
    return u"FCI group %1"_s.arg(group);
}

QString AddRing(Desk& desk) {
    if (desk.model.rings.size() >= kMostRings)
        return {};
    const QString key = u"K%1"_s.arg(++desk.model.lastRing);
    desk.Choose({}, 601);
    auto& editor = desk.Get<QLineEdit>(u"tvwMain.editor"_s);
    QString name = u"Nový kruh"_s;
    if (desk.OneIn(2)) {
        name = u"Kruh %1"_s.arg(desk.Random(1000), 3, 10, QLatin1Char('0'));
        editor.selectAll();
        QTest::keyClicks(&editor, name);
        QTest::keyClick(&editor, Qt::Key_Return);
    } else {
        QTest::keyClick(&editor, Qt::Key_Escape);
    }
    desk.model.rings[desk.model.lastRing] = name;
    desk.model.nodes.Add(key, name, 0);
    desk.model.selected = key;
    ShowSelected(desk);
    return u"add ring "_s + name;
}

QString RenameRing(Desk& desk) {
    QStringList rings = desk.model.nodes.Keys(u'K');
    rings.removeAll(u"K0"_s);
    const QString key = desk.OneOf(rings);
    if (key.isEmpty())
        return {};
    const bool sure = desk.OneIn(2);
    const QString name = u"Kruh %1"_s.arg(desk.Random(1000), 3, 10, QLatin1Char('0'));
    WhileOpen([&] { desk.Choose(key, 601); },
              [&](QWidget& window) {
                  auto& box = Control<QLineEdit>(window, "txtName");
                  box.selectAll();
                  QTest::keyClicks(&box, name);
                  QTest::keyClick(&box, sure ? Qt::Key_Return : Qt::Key_Escape);
              });
    desk.model.selected = key;
    if (sure) {
        desk.model.rings.at(IdOf(key)) = name;
        desk.model.nodes.SetText(key, name);
    }
    desk.model.Return();
    return u"rename ring "_s + key;
}

QString RemoveRing(Desk& desk) {
    QStringList rings = desk.model.nodes.Keys(u'K');
    rings.removeAll(u"K0"_s);
    const QString key = desk.OneOf(rings);
    if (key.isEmpty())
        return {};
    const bool used = std::ranges::any_of(
        desk.model.breeds, [&](const auto& breed) { return breed.second.ring == IdOf(key); });
    if (used)
        desk.platform.ExpectMessage(u"Tento kruh nelze odstranit, obsahuje položky"_s);
    else
        desk.platform.ExpectMessage(
            u"Určitě chcete odstranit kruh %1?"_s.arg(desk.model.nodes.Text(key)),
            MessageAnswer::Yes);
    desk.Choose(key, 602);
    desk.model.selected = key;
    if (!used) {
        desk.model.rings.erase(IdOf(key));
        desk.model.nodes.Remove(key);
        desk.model.NodeGone(desk.Selected());
        ShowSelected(desk);
    }
    return u"remove ring "_s + key;
}

QString HideEmpty(Desk& desk) {
    const QString before = desk.model.selected;
    desk.Choose({}, 602);
    desk.model.nodes.RemoveEmpty();
    desk.model.NodeGone(desk.Selected());
    if (desk.model.selected != before)
        ShowSelected(desk);
    return u"hide empty"_s;
}

QString ShowAll(Desk& desk) {
    desk.Choose({}, 603);
    desk.model.LoadTree();
    return u"show all"_s;
}

/// Colours, opening and closing change nothing that the model knows.
QString ChangeLooks(Desk& desk) {
    const int entry = std::array{607, 604, 605}[desk.Random(3)];
    desk.Choose({}, entry);
    return u"look %1"_s.arg(entry);
}

} // namespace

const std::vector<DeskStep>& StepsInTree() {
    static const std::vector<DeskStep> steps{
        ClickNode, ClickNode, ClickNode,  PressArrow, Drag,      MarkDog, RemoveDog,
        SetFci,    AddRing,   RenameRing, RemoveRing, HideEmpty, ShowAll, ChangeLooks};
    return steps;
}

} // namespace lorvo::test
