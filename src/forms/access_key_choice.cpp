#include "forms/access_key_choice.h"

#include <QHash>
#include <QSet>
#include <algorithm>
#include <map>

namespace lorvo {

namespace {

bool IsPlain(QChar letter) {
    return (letter >= u'A' && letter <= u'Z') || (letter >= u'0' && letter <= u'9');
}

/// The letters that a text can be reached by, the best ones first.
std::vector<QChar> Candidates(const KeyedText& keyed) {
    std::vector<QChar> first;
    std::vector<QChar> inner;
    bool inWord = false;
    for (const QChar c : keyed.text) {
        const QChar letter = c.toUpper();
        if (letter.isLetterOrNumber())
            (inWord ? inner : first).push_back(letter);
        inWord = letter.isLetterOrNumber();
    }
    first.insert(first.end(), inner.begin(), inner.end());
    std::stable_partition(first.begin(), first.end(), IsPlain);
    std::stable_partition(first.begin(), first.end(),
                          [&keyed](QChar letter) { return letter == keyed.wish; });
    return first;
}

/// Pairs the texts of one page with letters; a text that finds its letters taken makes an earlier
/// one move to another of its own where that leaves both with one.
class Pairing {
  public:
    Pairing(const std::vector<KeyedText>& texts, QSet<QChar> taken)
        : texts_(texts), taken_(std::move(taken)) {}

    bool Place(std::size_t text) {
        QSet<QChar> tried;
        return Place(text, tried);
    }
    const QHash<QChar, std::size_t>& Owners() const { return owners_; }

  private:
    bool Place(std::size_t text, QSet<QChar>& tried) {
        const std::vector<QChar> letters = Candidates(texts_[text]);
        for (const QChar letter : letters)
            if (!taken_.contains(letter) && !owners_.contains(letter)) {
                owners_.insert(letter, text);
                return true;
            }
        for (const QChar letter : letters) {
            if (taken_.contains(letter) || tried.contains(letter))
                continue;
            tried.insert(letter);
            if (Place(owners_.value(letter), tried)) {
                owners_.insert(letter, text);
                return true;
            }
        }
        return false;
    }

    const std::vector<KeyedText>& texts_;
    QSet<QChar> taken_;
    QHash<QChar, std::size_t> owners_;
};

/// The letters given to what can show together with that page.
QSet<QChar> LettersBeside(int page, const std::map<int, QSet<QChar>>& given) {
    QSet<QChar> letters;
    for (const auto& [other, ofOther] : given)
        if (page == 0 || other == 0 || other == page)
            letters.unite(ofOther);
    return letters;
}

} // namespace

QChar MarkedKey(const QString& text) {
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != u'&')
            continue;
        if (text[i + 1] != u'&')
            return text[i + 1].toUpper();
        ++i;
    }
    return {};
}

QString WithoutMark(const QString& text) {
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool pair = text[i] == u'&' && i + 1 < text.size() && text[i + 1] == u'&';
        if (pair)
            plain += text[i++];
        if (pair || text[i] != u'&' || i + 1 == text.size())
            plain += text[i];
    }
    return plain;
}

std::vector<QChar> ChooseAccessKeys(const std::vector<KeyedText>& texts) {
    std::vector<QChar> keys(texts.size());
    std::map<int, QSet<QChar>> given; // what shows with every page comes first
    for (const KeyedText& text : texts)
        given[text.page];
    for (const bool isUsers : {false, true})
        for (auto& [page, letters] : given) {
            Pairing pairing(texts, LettersBeside(page, given));
            for (const bool wishes : {true, false})
                for (std::size_t i = 0; i < texts.size(); ++i)
                    if (texts[i].page == page && texts[i].isUsers == isUsers &&
                        !texts[i].wish.isNull() == wishes)
                        pairing.Place(i);
            for (const auto& [letter, text] : pairing.Owners().asKeyValueRange()) {
                keys[text] = letter;
                letters.insert(letter);
            }
        }
    return keys;
}

} // namespace lorvo
