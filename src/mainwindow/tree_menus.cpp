#include "mainwindow/tree_menus.h"

#include "app/module_values.h"
#include "mainwindow/window_opener.h"
#include "office/texts/dog_texts.h"
#include "office/tree/tree_nodes.h"
#include "store/plemena.h"
#include "store/psi.h"

namespace lorvo {

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
        const QString text = fci ? QStringLiteral("FCI %1").arg(fci) : UnassignedText();
        entries.push_back(Entry(number, text, breed.Vlastni, breed.FCI == fci));
    }
    return entries;
}

} // namespace

std::vector<MenuEntry> RootMenu() {
    using namespace root_menu;
    return {
        Entry(kAddRing, QStringLiteral("Přidat kruh")),
        MenuEntry::Separator(),
        Entry(kHideEmpty, QStringLiteral("Skrýt prázdné")),
        Entry(kShowAll, QStringLiteral("Zobrazit vše")),
        Entry(kClearColours, QStringLiteral("Zrušit zvýraznění")),
        MenuEntry::Separator(),
        Entry(kExpandAll, QStringLiteral("Rozbalit vše")),
        Entry(kCollapseAll, QStringLiteral("Sbalit vše")),
        MenuEntry::Separator(),
        Entry(kFind, QStringLiteral("Hledat     Ctrl+F"), CanOpen(QStringLiteral("frmFind"))),
    };
}

std::vector<MenuEntry> RingMenu(const TreeNode& ring) {
    using namespace ring_menu;
    const bool isRing = ring.Kind() == NodeKind::Ring;
    return {
        Entry(kRename, QStringLiteral("Přejmenovat kruh"), isRing),
        Entry(kRemove, QStringLiteral("Odstranit kruh"), isRing),
    };
}

std::vector<MenuEntry> BreedMenu(const TreeNode& breed) {
    using namespace breed_menu;
    MenuEntry groups = Entry(kFci, QStringLiteral("FCI"));
    groups.submenu = FciMenu(BreedByID(breed.Id()).value_or(Plemena()));
    return {groups, Entry(kAddDog, QStringLiteral("Přidat psa"))};
}

std::vector<MenuEntry> DogMenu() {
    using namespace dog_menu;
    const std::optional<Psi> shown = DogByID(Module().CurrentDogID);
    const bool first = shown && shown->PrvniUzaverka;
    return {
        Entry(kRemove, QStringLiteral("Odstranit psa")),
        Entry(kTakePayment, QStringLiteral("Příjem platby")),
        Entry(kPayments, QStringLiteral("Zobrazit seznam přijatých plateb")),
        MenuEntry::Separator(),
        Entry(kHighlightOwner, QStringLiteral("Zvýraznit všechny psy stejného majitele")),
        Entry(kClearHighlight, QStringLiteral("Zrušit zvýraznění")),
        MenuEntry::Separator(),
        Entry(kFirstClosing, QStringLiteral("První uzávěrka"), shown.has_value(), first),
        Entry(kSecondClosing, QStringLiteral("Druhá uzávěrka"), shown.has_value(), !first),
        Entry(kFirstDog, QStringLiteral("První pes"), shown.has_value(), shown && shown->PrvniPes),
    };
}

} // namespace lorvo
