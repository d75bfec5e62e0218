#pragma once
// What the windows of the code lists say, side by side: all that sets them apart on the screen.

#include <QStringView>

namespace lorvo {

struct CodeListTexts {
    const char* window;
    const char* list;
    const char* toolBar;
    QStringView caption;
    QStringView usedHeading;
    QStringView newName;
    QStringView duplicate;
    QStringView deleteQuestion;
    QStringView inUse; ///< with %1 for the count
};

inline constexpr CodeListTexts kColourTexts = {
    .window = "fm_Colors",
    .list = "lvwColors",
    .toolBar = "tbrColors",
    .caption = u"Barvy",
    .usedHeading = u"Použita",
    .newName = u"Nová barva",
    .duplicate = u"Barva s tímto názvem již existuje!",
    .deleteQuestion = u"Skutečně smazat barvu?",
    .inUse = u"Tuto barvu není možno smazat, protože je použita (%1x)",
};

inline constexpr CodeListTexts kAwardTexts = {
    .window = "frmOceneni",
    .list = "lvwOceneni",
    .toolBar = "tbrOceneni",
    .caption = u"Ocenění ve výstavních třídách",
    .usedHeading = u"Použito",
    .newName = u"Nové ocenění",
    .duplicate = u"Ocenění s tímto názvem již existuje!",
    .deleteQuestion = u"Skutečně smazat ocenění?",
    .inUse = u"Toto ocenění není možno smazat, protože je použito (%1x)",
};

} // namespace lorvo
