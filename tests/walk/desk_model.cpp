#include "walk/desk_model.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

constexpr int kSpecialBreed = 949;

const QStringList kClasses{u"Třída štěňat od 3 do 6 měsíců"_s,
                           u"Třída dorostu"_s,
                           u"Třída mladých"_s,
                           u"Mezitřída"_s,
                           u"Třída otevřená"_s,
                           u"Třída vítězů"_s,
                           u"Třída pracovní"_s,
                           u"Třída veteránů"_s};
const QStringList kSpecialClasses{u"Třída dorostu"_s, u"Třída mladých"_s, u"Třída dospívajících"_s,
                                  u"Třída pracovní"_s};

/// First names in the order of the Czech alphabet.
constexpr std::array kAlphabet = {u"Alík", u"Bára", u"Cézar", u"Čert", u"Dag",
                                  u"Hára", u"Chán", u"Iris",  u"Řek",  u"Žula"};
constexpr std::array kBreedAlphabet = {u"Boxer", u"Čuvač", u"Pudl", u"Vipet", u"Vlastní", u"Vlčák"};

template<class Alphabet>
std::pair<int, QString> Place(const Alphabet& alphabet, const QString& name) {
    for (std::size_t i = 0; i < alphabet.size(); ++i)
        if (name.section(u' ', 0, 0) == QString::fromUtf16(alphabet[i]))
            return {static_cast<int>(i), name};
    return {-1, name};
}

int IdOf(const QString& key) {
    return QStringView(key).mid(1).toInt();
}

/// The node that the numbering goes to next. A climb to a node below the first one, without a
/// sibling there, ends it.
std::optional<std::size_t> NextNumbered(const NodeList& nodes, std::size_t at) {
    if (const auto child = nodes.FirstChild(at))
        return child;
    if (const auto sibling = nodes.NextSibling(at))
        return sibling;
    for (auto above = nodes.Parent(at); above; above = nodes.Parent(*above)) {
        if (const auto sibling = nodes.NextSibling(*above))
            return sibling;
        if (nodes.Parent(*above) == std::optional<std::size_t>(0))
            return std::nullopt;
    }
    return std::nullopt;
}

} // namespace

DeskModel::DeskModel(bool classes)
    : rings{{1, u"Kruh A"_s}, {2, u"Kruh B"_s}}, breeds{{10, {u"Boxer"_s, 1, 2, false}},
                                                        {11, {u"Pudl"_s, 1, 9, false}},
                                                        {12, {u"Vipet"_s, 2, 10, false}},
                                                        {13, {u"Vlastní"_s, 0, 0, true}},
                                                        {14, {u"Čuvač"_s, 0, 1, false}},
                                                        {kSpecialBreed, {u"Vlčák"_s, 2, 1, false}}},
      owners{{50, {u"Cibulka"_s, u"Horní 1"_s}},
             {51, {u"Čada"_s, u"Dolní 2"_s}},
             {52, {u"Hora"_s, u"Krátká 3"_s}}},
      shows{{1, u"Hlavní výstava"_s}, {2, u"Druhá výstava"_s}},
      competitions{{1, 150}, {2, 80}}, awards{{1, u"CAC"_s}, {2, u"CACIB"_s}}, lastRing(2),
      lastDog(10), lastPayment(0), withClasses(classes) {
    constexpr std::array kBreedOf = {10, 10, 10, 11, 11, 12, kSpecialBreed, 13, 14, 12};
    for (int id = 1; id <= lastDog; ++id) {
        DeskDog& dog = dogs[id];
        dog.name = QString::fromUtf16(kAlphabet[static_cast<std::size_t>(id * 7 % 10)]) +
                   u" %1"_s.arg(id, 3, 10, QLatin1Char('0'));
        dog.breed = kBreedOf[static_cast<std::size_t>(id - 1)];
        dog.owner = 50 + id % 3;
        dog.male = id % 2 != 0;
        dog.trida = dog.breed == kSpecialBreed ? 4 : 5;
        dog.firstDog = id <= 3;
        if (id % 4 != 0)
            entries.emplace_back(id, 1);
    }
    LoadTree();
}

int DeskModel::Fee(int show, bool firstClosing, int column, bool firstDog) {
    return show * 400 + column * 20 + (firstClosing ? 0 : 7) + (firstDog ? 0 : 3);
}

std::vector<int> DeskModel::DogsOfOwner(int owner) const {
    std::vector<int> found;
    for (const auto& [id, dog] : dogs)
        if (dog.owner == owner)
            found.push_back(id);
    std::ranges::stable_sort(found, {},
                             [this](int id) { return Place(kAlphabet, dogs.at(id).name); });
    return found;
}

std::vector<int> DeskModel::DogsOfBreed(int breed) const {
    std::vector<int> found;
    for (const auto& [id, dog] : dogs)
        if (dog.breed == breed)
            found.push_back(id);
    std::ranges::stable_sort(found, {}, [this](int id) {
        const DeskDog& dog = dogs.at(id);
        return std::tuple(!dog.male, dog.trida, Place(kAlphabet, dog.name));
    });
    return found;
}

// Of dogs that bear one name, the last one counts.
std::pair<int, int> DeskModel::Neighbours(int dog) const {
    std::pair<int, int> neighbours{0, 0};
    const auto place = Place(kAlphabet, dogs.at(dog).name);
    for (const int id : DogsOfOwner(dogs.at(dog).owner)) {
        const auto other = Place(kAlphabet, dogs.at(id).name);
        if (other < place)
            neighbours.first = id;
        else if (other > place &&
                 (neighbours.second == 0 || dogs.at(neighbours.second).name == dogs.at(id).name))
            neighbours.second = id;
    }
    return neighbours;
}

bool DeskModel::AnyNumbered() const {
    return std::ranges::any_of(dogs,
                               [](const auto& dog) { return dog.second.number.value_or(0) > 0; });
}

bool DeskModel::OffersClassOf(int dog) const {
    return dogs.at(dog).breed != kSpecialBreed || editorBreed == kSpecialBreed;
}

void DeskModel::Clear() {
    dogs.clear();
    rings.clear();
    entries.clear();
    inCompetitions.clear();
}

void DeskModel::AddBreedNodes(int breed, const QString& name) {
    const QString key = u"R%1"_s.arg(breed);
    nodes.Add(key, name, 1);
    const QStringList classes = breed == kSpecialBreed ? kSpecialClasses : kClasses;
    for (int trida = 1; withClasses && trida <= classes.size(); ++trida)
        nodes.AddBelow(key, u"T%1|%2"_s.arg(key).arg(trida), classes[trida - 1]);
    for (const int id : DogsOfBreed(breed)) {
        const DeskDog& dog = dogs.at(id);
        const QString number =
            dog.number.value_or(0) > 0 ? QString::number(*dog.number) + u' ' : QString();
        nodes.AddBelow(withClasses ? u"T%1|%2"_s.arg(key).arg(dog.trida) : key, u"P%1"_s.arg(id),
                       number + dog.name);
    }
}

void DeskModel::LoadTree() {
    nodes.Clear();
    selected.clear();
    std::vector<std::pair<QString, int>> inOrder;
    for (const auto& [id, name] : rings)
        inOrder.emplace_back(name, id);
    std::ranges::sort(inOrder);
    inOrder.insert(inOrder.begin(), {u"Nezařazeno v kruhu"_s, 0});
    for (const auto& [name, ring] : inOrder) {
        nodes.Add(u"K%1"_s.arg(ring), name, 0);
        std::vector<std::pair<std::pair<int, QString>, int>> inRing;
        for (const auto& [id, breed] : breeds)
            if (breed.ring == ring)
                inRing.emplace_back(Place(kBreedAlphabet, breed.name), id);
        std::ranges::sort(inRing);
        for (const auto& [place, breed] : inRing)
            AddBreedNodes(breed, place.second);
    }
    if (!onShow.isEmpty() && !nodes.Has(onShow))
        NodeGone({});
}

void DeskModel::NodeGone(const QString& nowSelected) {
    selected = nowSelected;
    if (onShow.isEmpty() || nodes.Has(onShow))
        return;
    onShow.clear();
    ownerOnShow = false;
    panel.clear();
    currentDog = panelDog_ = 0;
}

void DeskModel::NumberDogs() {
    int number = 0;
    for (auto at = std::optional<std::size_t>(0); at; at = NextNumbered(nodes, *at)) {
        const NodeList::Node node = nodes.All()[*at];
        if (!node.key.startsWith(u'P'))
            continue;
        dogs.at(IdOf(node.key)).number = ++number;
        nodes.SetText(node.key, QString::number(number) + u' ' + node.text);
    }
}

QStringList DeskModel::TicksAfter(const QString& clicked) const {
    QStringList ticked = panel.at(u"lvwSouteze"_s).split(u' ', Qt::SkipEmptyParts);
    const bool wasTicked = ticked.contains(clicked);
    if (wasTicked)
        ticked.removeAll(clicked);
    if (!wasTicked && clicked.startsWith(u'V'))
        ticked.removeIf([](const QString& key) { return key.startsWith(u'V'); });
    if (!wasTicked)
        ticked << clicked;
    const bool inShow =
        std::ranges::any_of(ticked, [](const QString& key) { return key.startsWith(u'V'); });
    if (wasTicked && !inShow)
        ticked << clicked;
    return ticked;
}

void DeskModel::WriteEntries(int dog, const QStringList& ticked) {
    const auto ofDog = [dog](const auto& link) {
        return link.first == dog;
    };
    std::erase_if(inCompetitions, ofDog);
    std::erase_if(entries, ofDog);
    for (const auto& [id, name] : shows)
        if (ticked.contains(u"V%1"_s.arg(id)))
            entries.emplace_back(dog, id);
    for (const auto& [id, price] : competitions)
        if (ticked.contains(u"k%1"_s.arg(id)))
            inCompetitions.emplace_back(dog, id);
}

void DeskModel::WriteAwards(int dog, const QStringList& ticked) {
    std::erase_if(won, [dog](const auto& link) { return link.first == dog; });
    for (const auto& [id, name] : awards)
        if (ticked.contains(u"C%1"_s.arg(id)))
            won.emplace_back(dog, id);
}

} // namespace lorvo::test
