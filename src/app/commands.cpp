#include "app/commands.h"

#include <algorithm>

namespace lorvo {

namespace {

using enum CommandStyle;

constexpr int kNoIcon = -1;

constexpr Command kCommands[] = {
    {u"ADD", 0, u"Přidat"},
    {u"TABLES", 1, u"Tabulky"},
    {u"EXPORT", 2, u"Export"},
    {u"SETTINGS", 3, u"Nastavení"},
    {u"HELP", 5, u"Nápověda"},

    {u"CURRENCIESLIST:ADD", 0, u"Přidat měnu"},
    {u"CURRENCIESLIST:EDIT", 1, u"Upravit měnu"},
    {u"CURRENCIESLIST:DELETE", 2, u"Smazat měnu"},
    {u"DOGLIST:FILTER", 0, u"Filtr"},
    {u"PLEMENA:ADD", 0, u"Přidat plemeno"},
    {u"PLEMENA:EDIT", 1, u"Přejmenovat plemeno"},
    {u"PLEMENA:DELETE", 2, u"Smazat plemeno"},
    {u"PLEMENA:HIDEUNUSED", 3, u"Skrýt nepoužitá", CheckBox},
    {u"PLEMENA:HELP", 4, u"Nápověda", Plain, u"Nápověda"},
    {u"VYSTAVY:ADD", 0, u"Přidat výstavu"},
    {u"VYSTAVY:EDIT", 1, u"Editovat výstavu"},
    {u"VYSTAVY:DELETE", 2, u"Smazat výstavu"},

    {u"ADD:CIRCLE", 0, u"Přidat &kruh"},
    {u"ADD:RACE", 2, u"Přidat &plemeno"},
    {u"ADD:DOG", 1, u"Přidat p&sa"},

    {u"TABLES:PSI", 1, u"Seznam psů"},
    {u"TABLES:PLEMENA", 2, u"Seznam plemen"},
    {u"TABLES:VYSTAVY", 3, u"Výstavy"},
    {u"TABLES:SOUTEZE", 4, u"Soutěže"},
    {u"TABLES:VYSTAVOVATELE", 5, u"Vystavovatelé"},
    {u"TABLES:PLATBY", 6, u"Přehled plateb"},
    {u"TABLES:OCENENI", 9, u"Ocenění ve výstavních třídách"},
    {u"TABLES:RODICE", 7, u"Rodiče"},
    {u"TABLES:BARVY", 8, u"Barvy psů"},
    {u"TABLES:SEP1", kNoIcon, u"", Separator},
    {u"TABLES:SEP2", kNoIcon, u"", Separator},

    {u"EXPORT:KATALOG", kNoIcon, u"Katalog"},
    {u"EXPORT:SEP3", kNoIcon, u"", Separator},
    {u"EXPORT:SEZNAMPSU", kNoIcon, u"Seznam psů"},
    {u"EXPORT:PREHLEDPLEMEN", kNoIcon, u"Přehled plemen"},
    {u"EXPORT:SEZNAMVYSTAVOVATELU", kNoIcon, u"Seznam vystavovatelů"},
    {u"EXPORT:PLATBY", kNoIcon, u"Přehled plateb"},
    {u"EXPORT:DIPLOMY", kNoIcon, u"Diplomy"},
    {u"EXPORT:POSUDKOVELISTY", kNoIcon, u"Posudkové listy"},
    {u"EXPORT:POZVANKY", kNoIcon, u"Pozvánky"},

    {u"COLORS:ADD", kNoIcon, u"Přidat"},
    {u"COLORS:EDIT", kNoIcon, u"Přejmenovat"},
    {u"COLORS:REMOVE", kNoIcon, u"Odstranit"},

    {u"HELP:GENERAL", kNoIcon, u"Nápověda"},
    {u"HELP:CONTEXT", kNoIcon, u"Zapnout kontextovou nápovědu", CheckBox},
    {u"HELP:ABOUT", kNoIcon, u"O programu"},
};

constexpr QStringView kStandard[] = {u"ADD", u"TABLES", u"EXPORT", u"SETTINGS", u"HELP"};
constexpr QStringView kAdd[] = {u"ADD:CIRCLE", u"ADD:DOG"};
constexpr QStringView kTables[] = {u"TABLES:PSI",     u"TABLES:PLEMENA", u"TABLES:SEP1",
                                   u"TABLES:VYSTAVY", u"TABLES:SOUTEZE", u"TABLES:VYSTAVOVATELE",
                                   u"TABLES:PLATBY",  u"TABLES:OCENENI", u"TABLES:SEP2",
                                   u"TABLES:RODICE"};
constexpr QStringView kExport[] = {u"EXPORT:KATALOG",
                                   u"EXPORT:SEZNAMPSU",
                                   u"EXPORT:DIPLOMY",
                                   u"EXPORT:PREHLEDPLEMEN",
                                   u"EXPORT:SEZNAMVYSTAVOVATELU",
                                   u"EXPORT:POSUDKOVELISTY",
                                   u"EXPORT:POZVANKY",
                                   u"EXPORT:PLATBY"};
constexpr QStringView kHelp[] = {u"HELP:GENERAL", u"HELP:ABOUT"};
constexpr QStringView kPlemena[] = {u"PLEMENA:ADD", u"PLEMENA:EDIT", u"PLEMENA:DELETE",
                                    u"PLEMENA:HELP"};
constexpr QStringView kVystavy[] = {u"VYSTAVY:ADD", u"VYSTAVY:EDIT", u"VYSTAVY:DELETE"};
constexpr QStringView kCurrenciesList[] = {u"CURRENCIESLIST:ADD", u"CURRENCIESLIST:EDIT",
                                           u"CURRENCIESLIST:DELETE"};
constexpr QStringView kDogList[] = {u"DOGLIST:FILTER"};

constexpr CommandBar kBars[] = {
    {u"STANDARD", kStandard}, {u"ADD", kAdd},         {u"TABLES", kTables},
    {u"EXPORT", kExport},     {u"HELP", kHelp},       {u"PLEMENA", kPlemena},
    {u"VYSTAVY", kVystavy},   {u"DOGLIST", kDogList}, {u"CURRENCIESLIST", kCurrenciesList},
};

} // namespace

std::span<const Command> AllCommands() {
    return kCommands;
}

const Command* FindCommand(QStringView key) {
    const auto* found = std::ranges::find(kCommands, key, &Command::key);
    return found == std::end(kCommands) ? nullptr : found;
}

const CommandBar* FindCommandBar(QStringView name) {
    const auto* found = std::ranges::find(kBars, name, &CommandBar::name);
    return found == std::end(kBars) ? nullptr : found;
}

} // namespace lorvo
