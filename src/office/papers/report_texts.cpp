#include "office/papers/report_texts.h"

#include "office/texts/dog_texts.h"

namespace lorvo {

QString ClassNameOf(const Psi& dog) {
    return ClassName(dog.Trida, ClassNamesOf(ClassList::Standard), dog.Jmeno);
}

QString FullNameOf(const Psi& dog) {
    return FullName(dog);
}

QString NumberOf(const Psi& dog) {
    return NumberOrEmpty(dog.Cislo);
}

QString BirthDateOf(const Psi& dog) {
    return DateOrEmpty(dog.DatumNar);
}

QString SexOf(const Psi& dog) {
    return SexText(dog.PohlaviPes);
}

QString BreedNameOf(const Plemena& breed) {
    return BreedName(breed);
}

} // namespace lorvo
