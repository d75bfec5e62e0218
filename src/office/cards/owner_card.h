#pragma once
// The card of an owner: the owner's lines, the list of his dogs with their fees and payments, and
// the totals.

#include "office/cards/card_line.h"
#include "platform/values/money.h"

namespace lorvo {

/// A line of the owner's dogs: the name in the colour of the dog's sex, then eight sub-items.
struct OwnerDogLine {
    QString key;
    QString tag;
    InkedText name;
    QString show;
    QString closing;
    QString firstDog;
    QString competitions;
    QString price;
    QString paid;
    InkedText balance;
    QString note;
};

/// What the owner panel shows.
struct OwnerCard {
    int ID = 0; ///< of the owner; 0 before the first one
    QString title;

    QString Jmeno;
    QString Ulice;
    QString PSC;
    QString Mesto;
    QString Telefon;
    QString Email;

    std::vector<OwnerDogLine> dogs;
    QString dogCount;
    QString price;
    QString paid;
    InkedText balance;
};

/// Fills title and lines of the owner; the dogs stay as they are. Raises StoreError when there is
/// no such owner.
void FillOwnerLines(OwnerCard& card, int ownerID);

/// Refills the dogs of the owner and the totals. Leaves `CurrentDogID` at the last dog listed.
/// Raises StoreError on a fee that the shows' table doesn't have.
void FillOwnerDogs(OwnerCard& card, int ownerID);

} // namespace lorvo
