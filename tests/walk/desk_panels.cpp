// What the panels must show, and where the history leads.
#include "walk/desk_model.h"

#include <algorithm>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

constexpr int kSpecialBreed = 949;
constexpr int kDepth = 1001;

/// Columns that the special breed's classes 1 to 4 pay from.
int SpecialColumn(int trida) {
    constexpr int kColumns[] = {2, 3, 9, 7};
    return trida >= 1 && trida <= 4 ? kColumns[trida - 1] : trida;
}

int IdOf(const QString& key) {
    return QStringView(key).mid(1).toInt();
}

/// Keys of what a dog is tied to, in the order of the lists.
QStringList Keys(const DeskLinks& links, int dog, QChar letter) {
    std::vector<int> ids;
    for (const auto& [from, to] : links)
        if (from == dog)
            ids.push_back(to);
    std::ranges::sort(ids);
    QStringList keys;
    for (const int id : ids)
        keys << letter + QString::number(id);
    return keys;
}

QString ClassText(const DeskDog& dog) {
    static const QStringList ordinary{u"štěňat od 3 do 6 měsíců"_s,
                                      u"dorostu"_s,
                                      u"mladých"_s,
                                      u"mezitřída"_s,
                                      u"otevřená"_s,
                                      u"vítězů"_s,
                                      u"pracovní"_s,
                                      u"veteránů"_s};
    static const QStringList special{u"dorostu"_s, u"mladých"_s, u"dospívajících"_s, u"pracovní"_s};
    return (dog.breed == kSpecialBreed ? special : ordinary).value(dog.trida - 1);
}

} // namespace

DeskAccount AccountOf(const DeskModel& desk, int id, bool specialColumns) {
    const DeskDog& dog = desk.dogs.at(id);
    const bool special = specialColumns && dog.breed == kSpecialBreed;
    DeskAccount account;
    for (const auto& [entered, show] : desk.entries)
        if (entered == id) {
            account.inShow = true;
            account.fee =
                DeskModel::Fee(show, dog.firstClosing,
                               special ? SpecialColumn(dog.trida) : dog.trida, dog.firstDog);
        }
    for (const auto& [entered, competition] : desk.inCompetitions)
        if (entered == id)
            account.competitions += desk.competitions.at(competition);
    for (const auto& [payment, paid] : desk.payments)
        if (paid.dog == id)
            account.paid += paid.units;
    return account;
}

QString PatternAmount(int units) {
    const int size = std::abs(units);
    const QString sign = units < 0 ? u"-"_s : QString();
    if (size < 1000)
        return sign + u" %1,00 Kč"_s.arg(size);
    return sign + u"%1 %2,00 Kč"_s.arg(size / 1000).arg(size % 1000, 3, 10, QLatin1Char('0'));
}

QString PlainPrice(int units) {
    return QString::number(units) + u" Kč"_s;
}

PanelTexts DeskModel::RingTexts(int ring) const {
    int inRing = 0;
    int dogsThere = 0;
    for (const auto& [id, breed] : breeds) {
        if (breed.ring != ring)
            continue;
        ++inRing;
        dogsThere += static_cast<int>(DogsOfBreed(id).size());
    }
    return {{u"lblItemTitle"_s, nodes.Text(u"K%1"_s.arg(ring))},
            {u"lblPlemenaCnt"_s, QString::number(inRing)},
            {u"lblDogsCnt"_s, QString::number(dogsThere)}};
}

PanelTexts DeskModel::BreedTexts(int id) const {
    const DeskBreed& breed = breeds.at(id);
    return {{u"lblItemTitle"_s, breed.name + u" ()"_s},
            {u"lblDogsCount"_s, QString::number(DogsOfBreed(id).size())},
            {u"lblFCIplemene"_s, QString::number(breed.fci)}};
}

PanelTexts DeskModel::ClassTexts(const QString& key) const {
    const int breed = QStringView(key).mid(2).split(u'|').front().toInt();
    const int trida = key.last(1).toInt();
    const std::vector<int> all = DogsOfBreed(breed);
    const auto count =
        std::ranges::count_if(all, [&](int id) { return dogs.at(id).trida == trida; });
    return {{u"lblItemTitle"_s, nodes.Text(key)}, {u"lblClassDogCount"_s, QString::number(count)}};
}

PanelTexts DeskModel::DogTexts(int id) const {
    const DeskDog& dog = dogs.at(id);
    const DeskAccount account = AccountOf(*this, id, true);
    const int balance = (account.inShow ? account.paid - account.fee : 0) - account.competitions;
    const auto [before, behind] = Neighbours(id);
    return {
        {u"lblItemTitle"_s, dog.name + u' '},
        {u"Plemeno:"_s, breeds.at(dog.breed).name},
        {u"Pohlaví:"_s, dog.male ? u"Pes"_s : u"Fena"_s},
        {u"Třída:"_s, ClassText(dog)},
        {u"Jméno:"_s, owners.at(dog.owner).name},
        {u"Ulice:"_s, owners.at(dog.owner).street},
        {u"Uzávěrka:"_s, dog.firstClosing ? u"První"_s : u"Druhá"_s},
        {u"První pes:"_s, dog.firstDog ? u"Ano"_s : u"Ne"_s},
        {u"Cena celkem:"_s, PatternAmount(account.fee + account.competitions)},
        {u"Uhrazeno:"_s, PatternAmount(account.paid)},
        {u"Rozdíl:"_s, PatternAmount(balance)},
        {u"lvwSouteze"_s, (Keys(entries, id, u'V') + Keys(inCompetitions, id, u'k')).join(u' ')},
        {u"lvwOceneni"_s, Keys(won, id, u'C').join(u' ')},
        {u"picPrev"_s, before ? dogs.at(before).name + u' ' : QString()},
        {u"picNext"_s, behind ? dogs.at(behind).name + u' ' : QString()}};
}

PanelTexts DeskModel::OwnerTexts(int owner) const {
    PanelTexts texts{{u"lblItemTitle"_s, owners.at(owner).name},
                     {u"Jméno:"_s, owners.at(owner).name},
                     {u"Ulice:"_s, owners.at(owner).street}};
    int owed = 0;
    int paid = 0;
    const std::vector<int> family = DogsOfOwner(owner);
    for (const int id : family) {
        const DeskAccount account = AccountOf(*this, id, false);
        const int price = account.fee + account.competitions;
        texts[u"P%1"_s.arg(id)] = QStringList{dogs.at(id).name,
                                              dogs.at(id).firstClosing ? u"I"_s : u"II"_s,
                                              dogs.at(id).firstDog ? u"Ano"_s : QString(),
                                              account.inShow ? PlainPrice(price) : QString(),
                                              PlainPrice(account.paid),
                                              PlainPrice(account.paid - price)}
                                      .join(u'|');
        owed += price;
        paid += account.paid;
    }
    texts[u"Celkem psů:"_s] = QString::number(family.size());
    texts[u"Cena:"_s] = PlainPrice(owed);
    texts[u"Uhrazeno:"_s] = PlainPrice(paid);
    texts[u"Bilance:"_s] = PlainPrice(paid - owed);
    return texts;
}

void DeskModel::Show(const QString& key) {
    onShow = key;
    ownerOnShow = false;
    switch (key[0].unicode()) {
    case u'K':
        panel = RingTexts(IdOf(key));
        break;
    case u'R':
        panel = BreedTexts(IdOf(key));
        break;
    case u'T':
        panel = ClassTexts(key);
        break;
    default:
        panel = DogTexts(IdOf(key));
        neighboursOnShow = Neighbours(IdOf(key));
        currentDog = panelDog_ = IdOf(key);
        ownerShown_ = dogs.at(currentDog).owner;
    }
}

void DeskModel::ShowNodeInfo(const QString& key) {
    history_.push_front(key);
    if (history_.size() > kDepth)
        history_.pop_back();
    backEnabled = history_.size() > 1;
    Show(key);
}

void DeskModel::ShowOwner() {
    ownerOnShow = true;
    RefillOwner();
}

void DeskModel::RefillOwner() {
    panel = OwnerTexts(ownerShown_);
    if (const std::vector<int> family = DogsOfOwner(ownerShown_); !family.empty())
        currentDog = family.back();
    panelDog_ = currentDog;
}

void DeskModel::Refresh() {
    if (ownerOnShow)
        RefillOwner();
    else if (!onShow.isEmpty())
        Show(onShow);
}

void DeskModel::Return(bool dirty) {
    currentDog = panelDog_;
    const QString key = selected;
    if (dirty)
        LoadTree();
    if (nodes.Has(key))
        ShowNodeInfo(key);
    else
        Refresh();
}

QString DeskModel::HistoryEntry(int position) const {
    const bool stored = position >= 0 && position < static_cast<int>(history_.size());
    return stored ? history_[static_cast<std::size_t>(position)] : QString();
}

QString DeskModel::BackTarget() const {
    return backEnabled ? HistoryEntry(historyPosition_ + 1) : QString();
}

QString DeskModel::ForwardTarget() const {
    return forwardEnabled ? HistoryEntry(historyPosition_ - 1) : QString();
}

void DeskModel::GoBack() {
    Show(HistoryEntry(++historyPosition_));
    backEnabled = !HistoryEntry(historyPosition_ + 1).isEmpty();
    forwardEnabled = !HistoryEntry(historyPosition_ - 1).isEmpty();
}

void DeskModel::GoForward() {
    Show(HistoryEntry(--historyPosition_));
    backEnabled = !HistoryEntry(historyPosition_ + 1).isEmpty();
    forwardEnabled = historyPosition_ >= 1 && !HistoryEntry(historyPosition_ - 1).isEmpty();
}

} // namespace lorvo::test
