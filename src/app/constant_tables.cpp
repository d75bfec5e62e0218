#include "app/constant_tables.h"

namespace lorvo {

namespace {

struct ClassRow {
    const char16_t* name;
    std::int16_t from;
    std::int16_t to;
};

// Ages in whole months; 999 stands for no upper limit. The classes are those of the FCI's show
// regulations as the Czech union names them; the German shepherd's club has its own four.
constexpr ClassRow kClasses[] = {
    {u"štěňat od 3 do 6 měsíců", 3, 6},
    {u"dorostu", 6, 9},
    {u"mladých", 9, 18},
    {u"mezitřída", 15, 24},
    {u"otevřená", 15, 999},
    {u"vítězů", 15, 999},
    {u"pracovní", 15, 999},
    {u"veteránů", 96, 999},
};
constexpr ClassRow kSpecialClasses[] = {
    {u"dorostu", 6, 12},
    {u"mladých", 12, 18},
    {u"dospívajících", 18, 24},
    {u"pracovní", 24, 999},
};
constexpr const char16_t* kDogSizes[] = {u"Nezadáno", u"toy",     u"trpasličí",
                                         u"malý",     u"střední", u"velký"};
constexpr const char16_t* kCoatTypes[] = {u"Nezadáno", u"krátká", u"dlouhá", u"hrubá",
                                          u"bez srsti"};

template<std::size_t N>
void FillClasses(const ClassRow (&rows)[N], TextTable& names, NumberTable& from, NumberTable& to) {
    for (std::size_t i = 0; i < N; ++i) {
        names[i] = QString::fromUtf16(rows[i].name);
        from[i] = rows[i].from;
        to[i] = rows[i].to;
    }
}

template<std::size_t N, typename Table>
void FillTexts(const char16_t* const (&texts)[N], Table& table) {
    for (std::size_t i = 0; i < N; ++i)
        table[i] = QString::fromUtf16(texts[i]);
}

constexpr const char16_t* kPaymentModes[] = {u"převodem", u"hotově", u"složenkou"};

ConstantTables Filled() {
    ConstantTables tables;
    FillClasses(kClasses, tables.ClassNames, tables.ClassFrom, tables.ClassTo);
    FillClasses(kSpecialClasses, tables.SpecialClassNames, tables.SpecialClassFrom,
                tables.SpecialClassTo);
    FillTexts(kDogSizes, tables.DogSizes);
    FillTexts(kCoatTypes, tables.CoatTypes);
    FillTexts(kPaymentModes, tables.PaymentModes);
    return tables;
}

} // namespace

const ConstantTables& Tables() {
    static const ConstantTables tables = Filled();
    return tables;
}

} // namespace lorvo
