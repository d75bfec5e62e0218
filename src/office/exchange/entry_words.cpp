#include "office/exchange/entry_words.h"

#include "office/exchange/folded_text.h"
#include "office/texts/dog_texts.h"

#include <QStringList>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// True and false by two lists of folded words.
std::optional<bool> ByWords(const QString& text, const QStringList& yes, const QStringList& no) {
    const QString folded = FoldedText(text);
    if (yes.contains(folded))
        return true;
    if (no.contains(folded))
        return false;
    return std::nullopt;
}

QString WithoutFirstWord(const QString& folded, const QString& word) {
    return folded.startsWith(word + u' ') ? folded.mid(word.size() + 1) : folded;
}

/// Code of the class that bears the name, or of the only one that begins so.
std::optional<int> ClassNamed(const QString& folded, const TextTable& names) {
    std::optional<int> begun;
    int beginnings = 0;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const QString name = FoldedText(names[i]);
        if (name.isEmpty())
            continue;
        if (name == folded)
            return static_cast<int>(i) + 1;
        if (name.startsWith(folded)) {
            begun = static_cast<int>(i) + 1;
            ++beginnings;
        }
    }
    return beginnings == 1 ? begun : std::nullopt;
}

} // namespace

std::optional<bool> SexFromText(const QString& text) {
    return ByWords(text, {u"pes"_s, u"p"_s, u"samec"_s, u"m"_s, u"male"_s},
                   {u"fena"_s, u"f"_s, u"samice"_s, u"female"_s});
}

std::optional<bool> YesFromText(const QString& text) {
    return ByWords(text, {u"ano"_s, u"a"_s, u"1"_s, u"true"_s, u"pravda"_s, u"yes"_s},
                   {u"ne"_s, u"n"_s, u"0"_s, u"false"_s, u"nepravda"_s, u"no"_s});
}

std::optional<bool> FirstClosingFromText(const QString& text) {
    QString folded = FoldedText(text);
    if (folded.endsWith(u" uzaverka"))
        folded.chop(9);
    return ByWords(folded, {u"i"_s, u"1"_s, u"prvni"_s}, {u"ii"_s, u"2"_s, u"druha"_s});
}

std::optional<int> ClassFromText(const QString& text, ClassList list) {
    const QString folded = WithoutFirstWord(FoldedText(text), u"trida"_s);
    const TextTable& names = ClassNamesOf(list);
    bool isNumber = false;
    const int number = folded.toInt(&isNumber);
    if (isNumber && number >= 1 && number <= kTableSlots &&
        !names[static_cast<std::size_t>(number - 1)].isEmpty())
        return number;
    if (isNumber || folded.isEmpty())
        return std::nullopt;
    return ClassNamed(folded, names);
}

} // namespace lorvo
