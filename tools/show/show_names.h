#pragma once
// Names that a made-up show is filled with.

#include "show/dice.h"

#include <QString>

namespace lorvo::show {

struct Person {
    QString firstName;
    QString surname;
};

struct Town {
    const char16_t* name;
    int postCode;
    const char16_t* country; ///< empty at home
};

Person AnyPerson(Dice& dice);
/// Towns at home for the most part, each with a post code of its own.
const Town& AnyTown(Dice& dice);
QString AnyStreet(Dice& dice); ///< with the house's number
QString AnyPhone(Dice& dice);
/// An address of the person at a host that doesn't exist; `number` keeps namesakes apart.
QString EmailOf(const Person& person, int number);

QString AnyDogName(Dice& dice, bool male);
QString AnyKennel(Dice& dice);
/// Stud-book entry of a dog born in the year.
QString AnyStudBookEntry(Dice& dice, int year);
QString AnyNote(Dice& dice);

} // namespace lorvo::show
