#include "office/dogs/dog_counts_line.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// The forms of a noun after 1, after 2 to 4, and after any other number.
struct Forms {
    const char16_t* one;
    const char16_t* few;
    const char16_t* many;
};

constexpr Forms kMales = {u"je %1 pes", u"jsou %1 psi", u"je %1 psů"};
constexpr Forms kFemales = {u"%1 fena", u"%1 feny", u"%1 fen"};

QString Counted(const Forms& forms, int count) {
    const char16_t* form = forms.many;
    if (count == 1)
        form = forms.one;
    else if (count >= 2 && count <= 4)
        form = forms.few;
    return QString::fromUtf16(form).arg(count);
}

} // namespace

QString DogCountsLine(int males, int females) {
    return u"V seznamu  %1 a %2, celkem %3."_s.arg(
        Counted(kMales, males), Counted(kFemales, females), QString::number(males + females));
}

} // namespace lorvo
