#include "reports/document_message.h"

#include "platform/platform.h"

#include <QDir>

namespace lorvo {

using namespace Qt::StringLiterals;

void TellWhenNotOpened(const ShownDocument& document, const QString& title) {
    if (document.opened)
        return;
    ThePlatform().messages->Show(
        u"Dokument je uložen v souboru „%1“, ale na tomto počítači jej nemá co "
        "otevřít. Otevřete jej na kterémkoli počítači s textovým procesorem "
        "(Microsoft Word, LibreOffice Writer)."_s.arg(QDir::toNativeSeparators(document.path)),
        MessageIcon::Information, MessageButtons::Ok, title);
}

} // namespace lorvo
