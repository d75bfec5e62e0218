#pragma once
// The office's lists as tables. Each reads the database by the routines of the window of that name,
// so that rows and totals are those of the window. Raise StoreError when the store refuses.

#include "office/exchange/list_table.h"

#include <array>

namespace lorvo {

enum class OfficeList { Dogs, Exhibitors, Payments, Parents, Breeds, Entries };

struct OfficeListName {
    OfficeList list;
    const char* command; ///< as a script names it
    const char16_t* title;
};
inline constexpr std::array kOfficeLists = {
    OfficeListName{OfficeList::Dogs, "psi", u"Seznam psů"},
    OfficeListName{OfficeList::Exhibitors, "vystavovatele", u"Vystavovatelé"},
    OfficeListName{OfficeList::Payments, "platby", u"Přehled plateb"},
    OfficeListName{OfficeList::Parents, "rodice", u"Rodiče"},
    OfficeListName{OfficeList::Breeds, "plemena", u"Plemena"},
    OfficeListName{OfficeList::Entries, "prihlasky", u"Přihlášky"},
};

ListTable ReadOfficeList(OfficeList list);

/// The parts of ReadOfficeList, a list each.
ListTable DogTable();
/// Totals: dogs, fees, paid, balance.
ListTable ExhibitorTable();
/// Totals: the sum in the main currency.
ListTable PaymentTable();
ListTable ParentTable();
/// Breeds in use with the number of dogs. Totals: breeds and dogs.
ListTable BreedTable();
/// Every dog with its owner, entries and payments, in the columns that entries are taken in by.
ListTable EntryTable();

} // namespace lorvo
