#pragma once
// Message boxes that bear the caption of their window as title.

#include "platform/message_boxes.h"

class QWidget;

namespace lorvo {

/// With the information mark.
void Inform(const QWidget& window, const QString& text);
/// With the stop mark.
void Refuse(const QWidget& window, const QString& text);
/// With the exclamation mark.
void Warn(const QWidget& window, const QString& text);
/// With the question mark.
MessageAnswer Ask(const QWidget& window, const QString& question, MessageButtons buttons);

} // namespace lorvo
