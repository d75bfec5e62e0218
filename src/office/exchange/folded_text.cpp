#include "office/exchange/folded_text.h"

namespace lorvo {

QString FoldedText(const QString& text) {
    QString folded;
    for (const QChar letter : text.normalized(QString::NormalizationForm_KD)) {
        if (letter.isLetterOrNumber())
            folded += letter.toLower();
        else if (!letter.isMark())
            folded += u' ';
    }
    return folded.simplified();
}

} // namespace lorvo
