#pragma once
// Everything that the logic asks of the desktop, in one place. The entry fills it with the real
// services, a test with recording ones.

#include "platform/clock.h"
#include "platform/file_choice.h"
#include "platform/ini_files.h"
#include "platform/locale_info.h"
#include "platform/message_boxes.h"
#include "platform/open_service.h"
#include "platform/popup_menus.h"
#include "platform/settings_tree.h"
#include "platform/user_interface.h"
#include "platform/word_processor.h"

#include <memory>

namespace lorvo {

struct Platform {
    /// The program's own folder, without a separator at its end.
    QString programFolder;

    std::unique_ptr<MessageBoxes> messages;
    std::unique_ptr<PopupMenus> menus;
    std::unique_ptr<FileChoice> files;
    std::unique_ptr<OpenService> opener;
    std::unique_ptr<SettingsTree> settings;
    std::unique_ptr<IniFiles> iniFiles;
    std::unique_ptr<LocaleInfo> locale;
    std::unique_ptr<Clock> clock;
    std::unique_ptr<WordProcessors> wordProcessors;
    std::unique_ptr<UserInterface> ui;
};

/// The one platform of the running program or test.
Platform& ThePlatform();

} // namespace lorvo
