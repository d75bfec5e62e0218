#include "manager/show_access.h"

#include "app/start_up.h"
#include "office/copies/show_copies.h"
#include "platform/program_lock.h"
#include "platform/values/errors.h"
#include "store/data_module.h"

#include <QDir>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const QString kTitle = u"Správce dat"_s;

/// The show's database, open for the lifetime of the object. Raises StoreError as opening does.
class ShowSession {
  public:
    ShowSession() {
        OpenDatabase();
        ReadMainCurrency();
    }
    ~ShowSession() {
        try {
            TheDataModule().Conn1.Close();
        } catch (const StoreError&) { // every edit is on disk already
        }
    }
    ShowSession(const ShowSession&) = delete;
    ShowSession& operator=(const ShowSession&) = delete;
};

void RunOnShow(const std::function<void()>& action) {
    const ShowSession session;
    action();
}

} // namespace

MessageAnswer ShowAccess::Ask(const QString& question, MessageButtons buttons) const {
    return platform_->messages->Show(question, MessageIcon::Question, buttons, kTitle);
}

void ShowAccess::Warn(const QString& text) const {
    platform_->messages->Show(text, MessageIcon::Exclamation, MessageButtons::Ok, kTitle);
}

bool ShowAccess::SayingFailure(const std::function<void()>& action) const {
    try {
        const WaitCursor wait(Screen());
        action();
        return true;
    } catch (const Error& failure) {
        platform_->messages->Show(QString::fromUtf8(failure.what()), MessageIcon::Stop,
                                  MessageButtons::Ok, kTitle);
        return false;
    }
}

bool ShowAccess::OnShow(const std::function<void()>& action) const {
    return SayingFailure([&action] { RunOnShow(action); });
}

bool ShowAccess::AloneInFolder(const std::function<void()>& action) const {
    const ProgramLock desk(Folder());
    if (desk.IsMine())
        return SayingFailure(action);
    Warn(u"Nad složkou „"_s + QDir::toNativeSeparators(Folder()) +
         u"“ běží Lorvo. Zavřete ho a zkuste to znovu."_s);
    return false;
}

bool ShowAccess::OnShowAlone(const std::function<void()>& action) const {
    return AloneInFolder([&action] { RunOnShow(action); });
}

QString ShowAccess::CopyNow() const {
    return MakeCopy(Folder(), Now());
}

} // namespace lorvo
