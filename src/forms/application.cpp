#include "forms/application.h"

#include "forms/access_key_style.h"
#include "forms/legible_style.h"
#include "forms/wheel_guard.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "platform/values/errors.h"

#include <QFont>
#include <exception>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

QString FailureText(const std::exception_ptr& failure) {
    try {
        std::rethrow_exception(failure);
    } catch (const std::exception& error) {
        return QString::fromUtf8(error.what());
    } catch (...) {
        return u"Neznámá chyba."_s;
    }
}

/// What the last entry has come to: the disk that failed didn't take it; after another failure it
/// may be stored or not. Each earlier one was on the disk before the next could be made, but of a
/// damaged file nothing can be promised.
QString WhatBecameOfTheEntry(const std::exception_ptr& failure) {
    try {
        std::rethrow_exception(failure);
    } catch (const CorruptStoreError&) {
        return {};
    } catch (const DiskError&) {
        return u"\n\nPoslední zadání se neuložilo. Všechno, co bylo zadáno před ním, je uloženo."_s;
    } catch (...) {
        return u"\n\nZda se uložilo poslední zadání, zkontrolujte po novém spuštění. "
               "Všechno, co bylo zadáno před ním, je uloženo."_s;
    }
}

QString WhatBecameOfTheWork(const std::exception_ptr& failure) {
    return WhatBecameOfTheEntry(failure) + u"\n\nProgram se ukončí."_s;
}

} // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    setStyle(new AccessKeyStyle(new LegibleStyle));
    // Machines without Tahoma show its nearest relatives, which have all Czech letters.
    QFont::insertSubstitutions(u"Tahoma"_s, {u"Verdana"_s, u"DejaVu Sans"_s, u"Liberation Sans"_s});
    installEventFilter(new WheelGuard(this));
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        KeepFailure();
        return true;
    }
}

int Application::Run(const std::function<void()>& start) {
    // Within the loop, so that the start ends it as any handler does.
    bool started = false;
    Later(this, [&] {
        start();
        started = true;
    });
    const int code = exec();
    const std::exception_ptr failure = TakeFailure();
    if (!failure)
        return code;
    return Tell(started ? FailureText(failure) + WhatBecameOfTheWork(failure)
                        : FailureText(failure),
                MessageIcon::Stop);
}

int Application::Tell(const QString& text, MessageIcon icon) {
    bool told = false;
    const auto tell = [&] {
        told = true;
        ThePlatform().messages->Show(text, icon, MessageButtons::Ok, u"Lorvo"_s);
    };
    {
        // What still waits when the loop has ended goes with this: else the message's own loop
        // would carry it out, tell once more and close the message.
        QObject untilTheLoopEnds;
        Later(&untilTheLoopEnds, [&] {
            tell();
            exit(1);
        });
        removePostedEvents(this, QEvent::Quit); // of windows that closed while the failure rose
        exec();
    }
    static_cast<void>(TakeFailure()); // what failed beside the last message is told by nobody
    if (!told)                        // a timer that failed again came before it
        tell();
    return 1;
}

} // namespace lorvo
