#include "office/tree/tree_loader.h"

#include "app/constant_tables.h"
#include "office/texts/dog_texts.h"
#include "platform/values/errors.h"
#include "store/data_module.h"
#include "store/kruhy.h"
#include "store/plemena.h"
#include "store/psi.h"

#include <algorithm>
#include <span>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr const char16_t* kClassCaptions[] = {
    u"Třída štěňat od 3 do 6 měsíců",
    u"Třída dorostu",
    u"Třída mladých",
    u"Mezitřída",
    u"Třída otevřená",
    u"Třída vítězů",
    u"Třída pracovní",
    u"Třída veteránů",
};
constexpr const char16_t* kSpecialClassCaptions[] = {
    u"Třída dorostu",
    u"Třída mladých",
    u"Třída dospívajících",
    u"Třída pracovní",
};

std::span<const char16_t* const> ClassCaptions(int plemenoID) {
    if (plemenoID == kSpecialBreedID)
        return kSpecialClassCaptions;
    return kClassCaptions;
}

QString DetailText(const TreeDog& dog) {
    return u" (%1. uzávěrka%2)"_s.arg(ClosingText(dog.PrvniUzaverka),
                                      dog.PrvniPes ? u", 1.pes majitele"_s : QString());
}

QString DogText(const TreeDog& dog, bool inDetail) {
    const QString text = inDetail ? dog.Jmeno + DetailText(dog) : dog.Jmeno;
    return dog.Cislo > 0 ? QString::number(dog.Cislo) + u' ' + text : text;
}

/// The rows whose `number` is `wanted`, of rows that stand in the order of that number.
template<typename Row>
std::span<const Row> RowsOf(const std::vector<Row>& rows, int Row::*number, int wanted) {
    const auto first =
        std::lower_bound(rows.begin(), rows.end(), wanted,
                         [number](const Row& row, int value) { return row.*number < value; });
    const auto last = std::find_if(
        first, rows.end(), [number, wanted](const Row& row) { return row.*number != wanted; });
    return {first, last};
}

/// Adds one breed after the other; the dogs of all breeds have been read beforehand.
class BreedBuilder {
  public:
    BreedBuilder(TreeNodes& nodes, bool withClasses)
        : nodes_(nodes), withClasses_(withClasses), dogs_(TreeDogsByBreed()) {}

    void Add(TreeNode* ring, const Plemena& breed, const QString& text, bool inDetail);

  private:
    TreeNode* ParentOf(const TreeDog& dog, TreeNode* breed) const;

    TreeNodes& nodes_;
    bool withClasses_;
    std::vector<TreeDog> dogs_; ///< by breed
};

TreeNode* BreedBuilder::ParentOf(const TreeDog& dog, TreeNode* breed) const {
    if (!withClasses_)
        return breed;
    const NodeKey key = NodeKey::Class(breed->Id(), dog.Trida);
    if (TreeNode* classNode = nodes_.Find(key))
        return classNode;
    throw Error(
        u"Pes \"%1\" má třídu, kterou jeho plemeno nemá (%2)."_s.arg(dog.Jmeno, key.ToText())
            .toStdString());
}

void BreedBuilder::Add(TreeNode* ring, const Plemena& breed, const QString& text, bool inDetail) {
    TreeNode* node = nodes_.AddBreed(ring, breed.ID, text);
    if (withClasses_) {
        int trida = 0;
        for (const char16_t* caption : ClassCaptions(breed.ID))
            nodes_.AddClass(node, ++trida, QString::fromUtf16(caption));
    }
    for (const TreeDog& dog : RowsOf(dogs_, &TreeDog::PlemenoID, breed.ID))
        nodes_.AddDog(ParentOf(dog, node), dog.ID, DogText(dog, inDetail), dog.PohlaviPes);
}

} // namespace

QString UnassignedRootText() {
    return u"Nezařazeno v kruhu"_s;
}

// kept: two-halves-of-the-tree
void LoadTree(TreeNodes& nodes, const ViewPreferences& look) {
    const TreeNodes::Rebuilding rebuilding(nodes);
    TreeNode* unassigned = nodes.AddUnassignedRoot(UnassignedRootText());

    const ReadRun run(TheDataModule().Conn1);
    BreedBuilder builder(nodes, look.showClasses);
    for (const Plemena& breed : UsedBreedsOutsideRings())
        builder.Add(unassigned, breed, breed.Nazev, look.dogDetailInTree);

    const std::vector<Plemena> breeds = BreedsByRing();
    for (const Kruhy& row : RingsByName()) {
        TreeNode* ring = nodes.AddRing(row.ID, row.Nazev);
        for (const Plemena& breed : RowsOf(breeds, &Plemena::ID_Kruhu, row.ID))
            builder.Add(ring, breed, BreedName(breed), false);
    }
}

// kept: class-nodes-collapsed
std::vector<TreeNode*> NodesToExpand(const TreeNodes& nodes, const QString& expandedItems) {
    std::vector<TreeNode*> found;
    for (const QString& piece : expandedItems.split(u'|'))
        if (TreeNode* node = nodes.Find(piece); node && node->Kind() != NodeKind::Class)
            found.push_back(node);
    return found;
}

} // namespace lorvo
