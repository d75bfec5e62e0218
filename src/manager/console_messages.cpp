#include "manager/console_messages.h"

#include <cstdio>

namespace lorvo {

MessageAnswer ConsoleMessages::Show(const QString& text, MessageIcon, MessageButtons buttons,
                                    const QString&) {
    std::fprintf(stderr, "%s\n", text.toUtf8().constData());
    switch (buttons) {
    case MessageButtons::YesNo:
        return MessageAnswer::No;
    case MessageButtons::OkCancel:
    case MessageButtons::YesNoCancel:
        return MessageAnswer::Cancel;
    case MessageButtons::Ok:
        break;
    }
    return MessageAnswer::Ok;
}

} // namespace lorvo
