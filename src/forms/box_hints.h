#pragma once
// What a text box has to say while it is typed into.

#include <QString>
#include <functional>

class QLineEdit;

namespace lorvo {

/// Shows a hint below the box, which goes by itself.
void HintAt(QLineEdit& box, const QString& hint);

/// Says how many characters the box takes when more are typed or pasted.
void TellItsLimit(QLineEdit& box);

/// Says what is expected as soon as what is typed isn't.
void TellWhatFits(QLineEdit& box, const std::function<bool(const QString&)>& fits,
                  const QString& expected);

} // namespace lorvo
