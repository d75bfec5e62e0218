#pragma once
// Which letters a window's controls get.

#include <QChar>
#include <QString>
#include <vector>

namespace lorvo {

struct KeyedText {
    QString text;
    QChar wish = {}; ///< the letter that its window would like it to have
    int page = 0; ///< texts of different pages never show together; page 0 shows with every other
    bool isUsers = false; ///< a user's text, which changes; it leaves the letters to the others
};
/// A letter for each text, no two alike, for as many of the texts as can have one; a null character
/// for the rest. After the letter wished for, first letters of words are preferred to others, and
/// plain ones to those with accents.
std::vector<QChar> ChooseAccessKeys(const std::vector<KeyedText>& texts);

/// The letter that the text itself marks by an ampersand, in capitals; null for none.
QChar MarkedKey(const QString& text);
/// The text without that mark. Two ampersands, which stand for one, stay.
QString WithoutMark(const QString& text);

} // namespace lorvo
