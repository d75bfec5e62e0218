#include "app/commands.h"

#include <algorithm>

namespace lorvo {

namespace {

using enum CommandStyle;

constexpr int kNoIcon = -1;

constexpr Command kCommands[] = {
    {u"ADD", u"Přidat", 0},
    {u"TABLES", u"Tabulky", 1},
    {u"EXPORT", u"Export", 2},
    {u"SETTINGS", u"Nastavení", 3},
    {u"HELP", u"Nápověda", 5},

    {u"CURRENCIESLIST:ADD", u"Přidat měnu", 0},
    {u"CURRENCIESLIST:EDIT", u"Upravit měnu", 1},
    {u"CURRENCIESLIST:DELETE", u"Smazat měnu", 2},
    {u"DOGLIST:FILTER", u"Filtr", 0},
    {u"PLEMENA:ADD", u"Přidat plemeno", 0},
    {u"PLEMENA:EDIT", u"Přejmenovat plemeno", 1},
    {u"PLEMENA:DELETE", u"Smazat plemeno", 2},
    {u"PLEMENA:HIDEUNUSED", u"Skrýt nepoužitá", 3, CheckBox},
    {u"PLEMENA:HELP", u"Nápověda", 4, Plain, u"Nápověda"},
    {u"VYSTAVY:ADD", u"Přidat výstavu", 0},
    {u"VYSTAVY:EDIT", u"Editovat výstavu", 1},
    {u"VYSTAVY:DELETE", u"Smazat výstavu", 2},

    {u"ADD:CIRCLE", u"Přidat &kruh", 0},
    {u"ADD:RACE", u"Přidat &plemeno", 2},
    {u"ADD:DOG", u"Přidat p&sa", 1},

    {u"TABLES:PSI", u"Seznam psů", 1},
    {u"TABLES:PLEMENA", u"Seznam plemen", 2},
    {u"TABLES:VYSTAVY", u"Výstavy", 3},
    {u"TABLES:SOUTEZE", u"Soutěže", 4},
    {u"TABLES:VYSTAVOVATELE", u"Vystavovatelé", 5},
    {u"TABLES:PLATBY", u"Přehled plateb", 6},
    {u"TABLES:OCENENI", u"Ocenění ve výstavních třídách", 9},
    {u"TABLES:RODICE", u"Rodiče", 7},
    {u"TABLES:BARVY", u"Barvy psů", 8},
    {u"TABLES:SEP1", u"", kNoIcon, Separator},
    {u"TABLES:SEP2", u"", kNoIcon, Separator},

    {u"EXPORT:KATALOG", u"Katalog", kNoIcon},
    {u"EXPORT:SEP3", u"", kNoIcon, Separator},
    {u"EXPORT:SEZNAMPSU", u"Seznam psů", kNoIcon},
    {u"EXPORT:PREHLEDPLEMEN", u"Přehled plemen", kNoIcon},
    {u"EXPORT:SEZNAMVYSTAVOVATELU", u"Seznam vystavovatelů", kNoIcon},
    {u"EXPORT:PLATBY", u"Přehled plateb", kNoIcon},
    {u"EXPORT:DIPLOMY", u"Diplomy", kNoIcon},
    {u"EXPORT:POSUDKOVELISTY", u"Posudkové listy", kNoIcon},
    {u"EXPORT:POZVANKY", u"Pozvánky", kNoIcon},

    {u"COLORS:ADD", u"Přidat", kNoIcon},
    {u"COLORS:EDIT", u"Přejmenovat", kNoIcon},
    {u"COLORS:REMOVE", u"Odstranit", kNoIcon},

    {u"HELP:GENERAL", u"Nápověda", kNoIcon},
    {u"HELP:CONTEXT", u"Zapnout kontextovou nápovědu", kNoIcon, CheckBox},
    {u"HELP:ABOUT", u"O programu", kNoIcon},
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

const CommandBar* FindCommandBar(QStringView name) {
    const auto* found = std::ranges::find(kBars, name, &CommandBar::name);
    return found == std::end(kBars) ? nullptr : found;
}

} // namespace lorvo
