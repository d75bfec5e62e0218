#include "forms/box_hints.h"

#include "platform/failure_guard.h"

#include <QLineEdit>
#include <QToolTip>

namespace lorvo {

using namespace Qt::StringLiterals;

void HintAt(QLineEdit& box, const QString& hint) {
    QToolTip::showText(box.mapToGlobal(QPoint(0, box.height())), hint, &box);
}

void TellItsLimit(QLineEdit& box) {
    Connect(&box, &QLineEdit::inputRejected, &box,
            [&box] { HintAt(box, u"Do pole se vejde nejvýš %1 znaků."_s.arg(box.maxLength())); });
}

void TellWhatFits(QLineEdit& box, const std::function<bool(const QString&)>& fits,
                  const QString& expected) {
    Connect(&box, &QLineEdit::textEdited, &box, [&box, fits, expected](const QString& text) {
        if (text.isEmpty() || fits(text))
            QToolTip::hideText();
        else
            HintAt(box, expected);
    });
}

} // namespace lorvo
