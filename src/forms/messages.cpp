#include "forms/messages.h"

#include "platform/platform.h"

#include <QWidget>

namespace lorvo {

namespace {

MessageAnswer Show(const QWidget& window, const QString& text, MessageIcon icon,
                   MessageButtons buttons = MessageButtons::Ok) {
    return ThePlatform().messages->Show(text, icon, buttons, window.window()->windowTitle());
}

} // namespace

void Inform(const QWidget& window, const QString& text) {
    Show(window, text, MessageIcon::Information);
}

void Refuse(const QWidget& window, const QString& text) {
    Show(window, text, MessageIcon::Stop);
}

void Warn(const QWidget& window, const QString& text) {
    Show(window, text, MessageIcon::Exclamation);
}

MessageAnswer Ask(const QWidget& window, const QString& question, MessageButtons buttons) {
    return Show(window, question, MessageIcon::Question, buttons);
}

} // namespace lorvo
