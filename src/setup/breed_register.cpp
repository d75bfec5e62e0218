#include "setup/breed_register.h"

#include "office/texts/dog_texts.h"
#include "store/data_module.h"
#include "store/kruhy.h"
#include "store/plemena.h"
#include "store/psi_lists.h"

#include <QHash>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// What the cells of a breed's row take from other tables.
class RegisterReader {
  public:
    RegisterReader() : dogs_(DogCountsByBreed()) {
        for (const Kruhy& ring : Rings())
            rings_.insert(ring.ID, ring.Nazev);
    }

    std::unique_ptr<BreedNode> Read(const Plemena& breed) const {
        auto node = MakeBreedNode(breed);
        node->cells[kBreedRing] =
            breed.ID_Kruhu == 0 ? UnassignedText() : rings_.value(breed.ID_Kruhu);
        const auto dogs = dogs_.find(breed.ID);
        node->cells[kBreedDogs] = QString::number(dogs == dogs_.end() ? 0 : dogs->second);
        node->cells[kBreedUsed] = YesNo(breed.Pouzivat);
        node->cells[kBreedOwn] = YesNo(breed.Vlastni);
        node->checked = breed.Pouzivat;
        node->inUse = breed.Pouzivat;
        return node;
    }

  private:
    std::unordered_map<int, int> dogs_;
    QHash<int, QString> rings_;
};

std::vector<MenuEntry> FciEntries(const BreedNode& node, int current) {
    const bool own = node.cells[kBreedOwn] != YesNo(false);
    std::vector<MenuEntry> entries;
    for (int fci = 0; fci <= kFciGroups; ++fci) {
        MenuEntry entry;
        entry.number = kMenuFci + fci;
        entry.text = fci == 0 ? FciText(0) : u"FCI %1"_s.arg(fci);
        entry.enabled = own;
        // The present group can be chosen for any breed, and does nothing.
        if (fci == current) {
            entry.number = 0;
            entry.checked = true;
            entry.enabled = true;
        }
        entries.push_back(std::move(entry));
    }
    return entries;
}

std::vector<MenuEntry> RingEntries(int current) {
    std::vector<MenuEntry> entries;
    for (const Kruhy& ring : Rings()) {
        MenuEntry entry;
        entry.number = kMenuRing + ring.ID;
        entry.text = ring.Nazev;
        entry.checked = ring.ID == current;
        entries.push_back(std::move(entry));
    }
    return entries;
}

} // namespace

std::vector<std::unique_ptr<BreedNode>> ReadRegister(bool usedOnly) {
    const ReadRun run(TheDataModule().Conn1);
    const BreedFilter filter = usedOnly ? BreedFilter::Used : BreedFilter::All;
    const RegisterReader reader;
    std::vector<std::unique_ptr<BreedNode>> top;
    for (const Plemena& breed : TopBreeds(filter))
        top.push_back(reader.Read(breed));
    std::vector<std::pair<int, std::unique_ptr<BreedNode>>> subgroups;
    for (const Plemena& breed : Subgroups(filter))
        subgroups.emplace_back(breed.Parent, reader.Read(breed));
    return JoinSubgroups(std::move(top), std::move(subgroups));
}

QString RegisterStatus(int breeds, int used) {
    const QStringView word = breeds == 1                  ? u" plemeno, "
                             : breeds >= 2 && breeds <= 4 ? u" plemena, "
                                                          : u" plemen, ";
    return u"Celkem %1%2z toho %3 použito."_s.arg(breeds).arg(word).arg(used);
}

std::vector<MenuEntry> RegisterMenu(const BreedNode& node) {
    const auto breed = BreedByID(node.ID);
    const bool own = node.cells[kBreedOwn] != YesNo(false);
    MenuEntry fci, ring, remove, jump;
    fci.text = u"Zařadit do FCI"_s;
    fci.submenu = FciEntries(node, breed ? breed->FCI : -1);
    ring.text = u"Zařadit do kruhu"_s;
    ring.submenu = RingEntries(breed ? breed->ID_Kruhu : 0);
    remove.number = kMenuDelete;
    remove.text = u"Odstranit plemeno"_s;
    remove.enabled = own;
    jump.number = kMenuJump;
    jump.text = u"Přejít na plemeno ve stromečku"_s;
    jump.enabled = node.checked;
    return {fci, ring, remove, jump};
}

QString RingName(int kruhID) {
    const auto ring = RingByID(kruhID);
    return ring ? ring->Nazev : QString();
}

} // namespace lorvo
