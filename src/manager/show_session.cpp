#include "manager/show_session.h"

#include "app/module_values.h"
#include "app/start_up.h"
#include "platform/platform.h"
#include "platform/program_lock.h"
#include "platform/values/errors.h"
#include "store/data_module.h"

#include <QDir>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const QString kTitle = u"Správce dat"_s;

} // namespace

ShowSession::ShowSession() {
    OpenDatabase();
    ReadMainCurrency();
}

ShowSession::~ShowSession() {
    try {
        TheDataModule().Conn1.Close();
    } catch (const StoreError&) { // every edit is on disk already
    }
}

bool SayingFailure(const std::function<void()>& action) {
    try {
        const WaitCursor wait(*ThePlatform().ui);
        action();
        return true;
    } catch (const Error& failure) {
        ThePlatform().messages->Show(QString::fromUtf8(failure.what()), MessageIcon::Stop,
                                     MessageButtons::Ok, kTitle);
        return false;
    }
}

bool OnShow(const std::function<void()>& action) {
    return SayingFailure([&action] {
        const ShowSession session;
        action();
    });
}

bool AloneInFolder(const std::function<void()>& action) {
    const QString& folder = ThePlatform().programFolder;
    const ProgramLock desk(folder);
    if (desk.IsMine())
        return SayingFailure(action);
    ThePlatform().messages->Show(u"Nad složkou „"_s + QDir::toNativeSeparators(folder) +
                                     u"“ běží Lorvo. Zavřete ho a zkuste to znovu."_s,
                                 MessageIcon::Exclamation, MessageButtons::Ok, kTitle);
    return false;
}

bool OnShowAlone(const std::function<void()>& action) {
    return AloneInFolder([&action] {
        const ShowSession session;
        action();
    });
}

} // namespace lorvo
