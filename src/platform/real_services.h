#pragma once
// The desktop's services as the running program has them, as far as they need no widgets.

#include "platform/clock.h"
#include "platform/ini_files.h"
#include "platform/locale_info.h"
#include "platform/open_service.h"
#include "platform/settings_tree.h"

#include <QLocale>
#include <memory>

namespace lorvo {

std::unique_ptr<Clock> MakeClock();
std::unique_ptr<IniFiles> MakeIniFiles();
std::unique_ptr<OpenService> MakeOpenService();

/// The machine's registry on Windows; elsewhere the file "Lorvo.settings" in the program's folder,
/// written when the event loop is idle and at the end. A file that is damaged reads as empty.
std::unique_ptr<SettingsTree> MakeSettingsTree(const QString& programFolder);

/// By the user's locale; by the Czech one when the user has chosen none, since the program speaks
/// Czech throughout.
std::unique_ptr<LocaleInfo> MakeLocaleInfo();
std::unique_ptr<LocaleInfo> MakeLocaleInfo(const QLocale& locale);

} // namespace lorvo
