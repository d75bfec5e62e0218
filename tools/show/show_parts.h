#pragma once
// The steps of filling a show, and what each hands on to the next.

#include "office/fees/account.h"
#include "platform/values/date_value.h"
#include "show/dice.h"
#include "show/show_size.h"
#include "store/meny.h"

#include <vector>

namespace lorvo::show {

/// What is settled before entries begin.
struct ShowSetUp {
    DateValue day;
    std::vector<int> breeds; ///< those that dogs may be entered for, the special breed first
    std::vector<int> colours;
    std::vector<int> shows;
    std::vector<int> competitions;
    std::vector<int> awards;
    std::vector<Meny> currencies; ///< the main one first
};

struct EnteredOwner {
    int ID = 0;
    int currency = 0; ///< position in ShowSetUp::currencies of what the owner pays with
};

struct EnteredDog {
    AccountDog account;
    int owner = 0; ///< position among the owners
};

ShowSetUp SettleShow(const ShowSize& size, Dice& dice);
std::vector<EnteredOwner> EnterOwners(const ShowSize& size, Dice& dice);
/// Every owner has a dog, and the first one bears the mark.
std::vector<EnteredDog> EnterDogs(const ShowSize& size, const ShowSetUp& setUp,
                                  const std::vector<EnteredOwner>& owners, Dice& dice);
void TakePayments(const ShowSize& size, const ShowSetUp& setUp,
                  const std::vector<EnteredOwner>& owners, const std::vector<EnteredDog>& dogs,
                  Dice& dice);
/// Numbers in the order of the tree; Some leaves out the last third.
void NumberEnteredDogs(Numbers numbers);

} // namespace lorvo::show
