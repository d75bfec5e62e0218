#include "office/papers/report_texts.h"

#include "app/module_values.h"
#include "platform/platform.h"
#include "platform/values/errors.h"

namespace lorvo {

QString ClassNameOf(const Psi& dog) {
    if (dog.Trida < 1 || dog.Trida > kTableSlots)
        throw RangeError(QStringLiteral("Pes „%1“ má třídu %2, ale třídy jsou jen 1 až %3.")
                             .arg(dog.Jmeno)
                             .arg(dog.Trida)
                             .arg(kTableSlots)
                             .toStdString());
    return Module().ClassNames.at(static_cast<std::size_t>(dog.Trida - 1));
}

QString FullNameOf(const Psi& dog) {
    return dog.Jmeno + u' ' + dog.ChovnaStanice;
}

QString NumberOf(const Psi& dog) {
    return dog.Cislo ? QString::number(*dog.Cislo) : QString();
}

QString BirthDateOf(const Psi& dog) {
    return dog.DatumNar ? ThePlatform().locale->DateText(*dog.DatumNar) : QString();
}

QString SexOf(const Psi& dog) {
    return dog.PohlaviPes ? QStringLiteral("Pes") : QStringLiteral("Fena");
}

QString BreedNameOf(const Plemena& breed) {
    return breed.Nazev.isEmpty() ? breed.NazevOrig : breed.Nazev;
}

} // namespace lorvo
