#pragma once
// Vystavy: the shows and their tables of entry fees. Every routine raises StoreError when the
// store refuses.

#include "platform/values/date_value.h"
#include "platform/values/money.h"

#include <QString>
#include <array>
#include <optional>
#include <string>
#include <vector>

namespace lorvo {

/// A Null Nazev reads as empty.
struct Vystavy {
    int ID = 0;
    QString Nazev;
    std::optional<DateValue> Uzaverka1;
    std::optional<DateValue> Uzaverka2;
};

/// Name of the fee field of a closing, a class column and the dog's position with its owner, such
/// as PoplatkyIClass4D1. The class is not checked: one outside 1 to 9 names a field that isn't
/// there, and the statement that asks for it fails.
std::string FeeColumn(bool firstClosing, int classColumn, bool firstDog);

std::optional<Vystavy> ShowByID(int vystavaID);
/// All shows in ID order; the first is the main show.
std::vector<Vystavy> Shows();
int CountShows();

/// The fee in one column; nullopt when it is Null. StoreError when the column or the show is
/// missing.
std::optional<Currency> FindShowFee(int vystavaID, const std::string& column);
/// The same, but a Null fee is a StoreError too, since it can't take part in a sum.
Currency ShowFee(int vystavaID, const std::string& column);

/// Stores a new show with no field set but the name, and returns its ID.
int InsertShow(const QString& nazev);

} // namespace lorvo
