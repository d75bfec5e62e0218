#pragma once
// Vystavy: the shows and their tables of entry fees. Every routine raises StoreError when the
// store refuses.

#include "platform/values/date_value.h"
#include "platform/values/money.h"

#include <QString>
#include <array>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace lorvo {

/// A Null Nazev reads as empty. The fees are read apart.
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

inline constexpr int kFeeClasses = 9;
inline constexpr int kFeeColumns = kFeeClasses * 4;

/// All fee fields: the first closing's, then the second's; in each by class, D1 before D2.
const std::array<std::string, kFeeColumns>& FeeColumns();
/// The fees of one show in the order of FeeColumns; nullopt for Null.
using FeeRow = std::array<std::optional<Currency>, kFeeColumns>;

[[nodiscard]] std::optional<Vystavy> ShowByID(int vystavaID);
/// All shows in ID order; the first is the main show.
std::vector<Vystavy> Shows();
int CountShows();
/// How many shows bear this name, whatever the letter case.
int CountShowsNamed(const QString& nazev);

/// The fee in one column; nullopt when it is Null. StoreError when the column or the show is
/// missing.
[[nodiscard]] std::optional<Currency> FindShowFee(int vystavaID, const std::string& column);
/// The same, but a Null fee is a StoreError too, since it can't take part in a sum.
Currency ShowFee(int vystavaID, const std::string& column);
/// All fees of a show. StoreError when the show is missing.
FeeRow ShowFees(int vystavaID);

/// Names and fees of all shows, read at once.
class FeeTables {
  public:
    FeeTables();

    /// What ShowFee gives for the same column, failures included.
    Currency Fee(int vystavaID, bool firstClosing, int classColumn, bool firstDog) const;
    /// StoreError when the show is missing.
    const QString& ShowName(int vystavaID) const;

  private:
    struct Show {
        QString Nazev;
        FeeRow fees;
    };
    const Show& At(int vystavaID) const;
    std::unordered_map<int, Show> shows_;
};

/// Stores a new show with no field set but the name, and returns its ID.
int InsertShow(const QString& nazev);
void RenameShow(int vystavaID, const QString& nazev);
/// Writes the name and all fees, in the order of FeeColumns.
void UpdateShow(int vystavaID, const QString& nazev, const std::array<Currency, kFeeColumns>& fees);
/// Writes the closings of the first show; nothing when there is no show.
void SetClosingsOfFirstShow(DateValue uzaverka1, DateValue uzaverka2);
/// Sets all fees of the first show to 0. StoreError when there is no show.
void ClearFeesOfFirstShow();
void DeleteShow(int vystavaID);
/// Leaves the show with the lowest ID alone.
void DeleteShowsButOldest();

} // namespace lorvo
