#include "app/start_up.h"

#include "app/common_routines.h"
#include "app/module_values.h"
#include "platform/platform.h"
#include "store/data_module.h"
#include "store/meny.h"
#include "store/vystavy.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const QString kSys = u"Sys"_s;
const QString kRememberTree = u"RememberTree"_s;

/// Rows of a statement that may fail; a failed one counts as none.
std::vector<Meny> RowsIfReadable(std::vector<Meny> (*read)()) {
    std::vector<Meny> rows;
    SkipFailure([&] { rows = read(); });
    return rows;
}

/// The currency that becomes the main one when none is marked.
std::optional<Meny> CurrencyToMark() {
    // The locale has no item 0, so that this finds only a currency without an abbreviation.
    std::vector<Meny> rows;
    SkipFailure([&] { rows = CurrenciesAbbreviated(GetLocaleText(0)); });
    if (rows.empty())
        rows = RowsIfReadable(Currencies);
    if (rows.empty())
        return std::nullopt;
    return rows.front();
}

void MarkSomeCurrency() {
    if (const std::optional<Meny> money = CurrencyToMark())
        SkipFailure([&] { SetMainMark(money->ID, true); });
}

/// Puts the first main currency's name where amounts find it; returns all that are marked.
std::vector<Meny> NameMainCurrency() {
    std::vector<Meny> marked = RowsIfReadable(MainCurrencies);
    Module().MainCurrency = marked.empty() ? u"Kč"_s : marked.front().Zkratka;
    return marked;
}

} // namespace

void OpenDatabase() {
    TheDataModule().Conn1.Open(ThePlatform().programFolder + u"/data.mdb"_s);
}

bool ShowClassesPreferred() {
    return ReadRegValue(kSys, u"ShowClasses"_s) == u"1";
}

bool ShowGridPreferred() {
    return ReadRegValue(kSys, u"ShowGrid"_s) == u"1";
}

void EnsureShow() {
    if (CountShows() == 0)
        InsertShow(u"Hlavní výstava"_s);
}

void ReadMainCurrency() {
    NameMainCurrency();
}

// kept: first-mark-wins
void EnsureMainCurrency() {
    if (RowsIfReadable(MainCurrencies).empty())
        MarkSomeCurrency();
    const std::vector<Meny> marked = NameMainCurrency();
    for (const Meny& money : marked)
        if (money.Zkratka != Module().MainCurrency)
            SkipFailure([&] { SetMainMark(money.ID, false); });
}

QString RememberedNode() {
    return ReadRegValue(kSys, kRememberTree);
}

void RememberTree(const QString& selected, const QStringList& expanded) {
    if (!selected.isEmpty())
        WriteRegValue(kSys, kRememberTree, selected);
    WriteRegValue(kSys, u"ExpandedItems"_s, expanded.join(u'|'));
}

void ForgetTree() {
    WriteRegValue(kSys, kRememberTree, QString());
}

} // namespace lorvo
