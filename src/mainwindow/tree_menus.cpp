#include "mainwindow/tree_menus.h"

#include "app/module_values.h"
#include "office/texts/dog_texts.h"
#include "office/tree/tree_nodes.h"
#include "store/plemena.h"
#include "store/psi.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

MenuEntry Entry(int number, const QString& text, bool enabled = true, bool checked = false) {
    MenuEntry entry;
    entry.number = number;
    entry.text = text;
    entry.enabled = enabled;
    entry.checked = checked;
    return entry;
}

std::vector<MenuEntry> FciMenu(const Plemena& breed) {
    using namespace breed_menu;
    std::vector<MenuEntry> entries;
    for (int number = kFciNone; number <= kFciLast; ++number) {
        const int fci = number - kFciNone;
        const QString text = fci ? u"FCI %1"_s.arg(fci) : UnassignedText();
        entries.push_back(Entry(number, text, breed.Vlastni, breed.FCI == fci));
    }
    return entries;
}

} // namespace

std::vector<MenuEntry> RootMenu() {
    using namespace root_menu;
    return {
        Entry(kAddRing, u"Přidat kruh"_s),
        MenuEntry::Separator(),
        Entry(kHideEmpty, u"Skrýt prázdné"_s),
        Entry(kShowAll, u"Zobrazit vše"_s),
        Entry(kClearColours, u"Zrušit zvýraznění"_s),
        MenuEntry::Separator(),
        Entry(kExpandAll, u"Rozbalit vše"_s),
        Entry(kCollapseAll, u"Sbalit vše"_s),
        MenuEntry::Separator(),
        Entry(kFind, u"Hledat     Ctrl+F"_s),
    };
}

std::vector<MenuEntry> RingMenu(const TreeNode& ring) {
    using namespace ring_menu;
    const bool isRing = ring.Kind() == NodeKind::Ring;
    return {
        Entry(kRename, u"Přejmenovat kruh"_s, isRing),
        Entry(kRemove, u"Odstranit kruh"_s, isRing),
    };
}

std::vector<MenuEntry> BreedMenu(const TreeNode& breed) {
    using namespace breed_menu;
    MenuEntry groups = Entry(kFci, u"FCI"_s);
    groups.submenu = FciMenu(BreedByID(breed.Id()).value_or(Plemena()));
    return {groups, Entry(kAddDog, u"Přidat psa"_s)};
}

std::vector<MenuEntry> DogMenu() {
    using namespace dog_menu;
    const std::optional<Psi> shown = DogByID(Module().CurrentDogID);
    const bool first = shown && shown->PrvniUzaverka;
    return {
        Entry(kRemove, u"Odstranit psa"_s),
        Entry(kTakePayment, u"Příjem platby"_s),
        Entry(kPayments, u"Zobrazit seznam přijatých plateb"_s),
        MenuEntry::Separator(),
        Entry(kHighlightOwner, u"Zvýraznit všechny psy stejného majitele"_s),
        Entry(kClearHighlight, u"Zrušit zvýraznění"_s),
        MenuEntry::Separator(),
        Entry(kFirstClosing, u"První uzávěrka"_s, shown.has_value(), first),
        Entry(kSecondClosing, u"Druhá uzávěrka"_s, shown.has_value(), !first),
        Entry(kFirstDog, u"První pes"_s, shown.has_value(), shown && shown->PrvniPes),
    };
}

} // namespace lorvo
