#pragma once
// The card of a dog: every text of the dog panel, worked out from the database without a widget.

#include "office/cards/card_line.h"
#include "platform/values/money.h"

namespace lorvo {

/// What the dog panel shows. It outlives the dogs: a line that a dog doesn't fill keeps what the
/// dog before it left there.
struct DogCard {
    int ID = 0; ///< of the dog; 0 before the first one
    int PlemenoID = 0;
    QString title;

    // Origin.
    QString Plemeno;
    InkedText Pohlavi;
    QString DatumNar;
    QString Trida;
    QString Poznamka;
    QString ChovnaStanice;
    QString PK;
    QString Otec;
    QString Matka;
    QString Chovatel;

    // Owner.
    int MajitelID = 0;
    QString JmenoMajitele;
    QString Ulice;
    QString PSC;
    QString Mesto;
    QString Stat;
    QString Telefon;
    QString Email;

    // Shows, competitions, money.
    CheckLines shows; ///< shows first, then competitions by name
    QString Uzaverka;
    QString PrvniPes;
    QString CenaCelkem;
    QString Uhrazeno;
    InkedText Rozdil;
    InkedText balanceWord;

    CheckLines awards;

    /// The owner's dogs whose names stand next to this one's; an empty key for none.
    struct Neighbour {
        QString key;
        QString name;
    };
    Neighbour previous;
    Neighbour next;
};

/// Fills the card with a dog, all figures read afresh, and sets `CurrentDogID` and `CurrentOwner`.
/// Raises Error on a dog that is not there, on a class outside the class table and
/// on a fee that the shows' table doesn't have; the card then holds what was filled up to there.
void FillDogCard(DogCard& card, int psiID);

} // namespace lorvo
