#include "office/fees/account.h"

#include <algorithm>
#include <array>

namespace lorvo {

namespace {

// Columns of the special breed's classes 1 to 4. The adolescents have the column that no ordinary
// class uses.
constexpr std::array<int, 4> kSpecialBreedColumns = {2, 3, 9, 7};

Currency SumOf(const std::vector<Account::Entry>& entries) {
    Currency sum;
    for (const Account::Entry& entry : entries)
        sum += entry.price;
    return sum;
}

} // namespace

// kept: adolescents-by-card
int FeeClassColumn(const AccountDog& dog, FeeClassRule rule) {
    const bool mapped = rule == FeeClassRule::SpecialBreedColumns && dog.specialBreed &&
                        dog.trida >= 1 &&
                        dog.trida <= static_cast<int>(kSpecialBreedColumns.size());
    return mapped ? kSpecialBreedColumns[static_cast<std::size_t>(dog.trida - 1)] : dog.trida;
}

std::optional<Currency> Account::LastFee() const {
    return shows.empty() ? std::nullopt : std::optional(shows.back().price);
}

Currency Account::CompetitionFees() const {
    return SumOf(competitions);
}

// kept: last-shows-fee-in-balance
Currency Account::Owed() const {
    const Currency showFees =
        rule == BalanceRule::LastShow ? LastFee().value_or(Currency()) : SumOf(shows);
    return showFees + CompetitionFees();
}

// kept: unentered-dog-owes-nothing
Currency Account::Balance() const {
    const bool paidCounts = rule == BalanceRule::AllShows || !shows.empty();
    return (paidCounts ? paid : Currency()) - Owed();
}

bool Account::IsInCompetition(int soutezID) const {
    return std::ranges::any_of(competitions,
                               [soutezID](const Entry& entry) { return entry.ID == soutezID; });
}

void AccountTotals::Add(const Account& account) {
    Add(AccountTotals{1, account.Owed(), account.paid});
}

void AccountTotals::Add(const AccountTotals& part) {
    dogs += part.dogs;
    owed += part.owed;
    paid += part.paid;
}

} // namespace lorvo
