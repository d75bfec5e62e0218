#include "mainwindow/copy_keeper.h"

#include "forms/controls.h"
#include "forms/elided_label.h"
#include "office/copies/sweep_copy.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "platform/values/errors.h"

#include <QStatusBar>
#include <QTimer>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Long enough for the window to be painted, short enough for the first edits to be in the next
/// copy.
constexpr int kMillisecondsBeforeCopy = 300;

QString AgeText(const CopyOutcome& outcome) {
    if (outcome.newestGood.isEmpty())
        return u", žádná dobrá kopie není"_s;
    if (outcome.daysOld == 0)
        return u", poslední dobrá je dnešní"_s;
    return u", poslední dobrá je stará "_s + QString::number(outcome.daysOld) +
           (outcome.daysOld == 1  ? u" den"_s
            : outcome.daysOld < 5 ? u" dny"_s
                                  : u" dnů"_s);
}

} // namespace

CopyKeeper::CopyKeeper(QStatusBar& bar) : QLabel(&bar) {
    Named(this, u"lblKopie"_s);
    setTextFormat(Qt::PlainText);
    bar.addPermanentWidget(this);
    hide();
    Connect(&copy_, &BackgroundCopy::Ended, this, &CopyKeeper::Ended);
    ListenForFailedCopies([this](const CopyOutcome& outcome) { Tell(outcome); });
}

CopyKeeper::~CopyKeeper() {
    ListenForFailedCopies({});
}

void CopyKeeper::Begin() {
    auto* timer = new QTimer(this);
    timer->setSingleShot(true);
    Connect(timer, &QTimer::timeout, this,
            [this] { copy_.Begin(ThePlatform().programFolder, ThePlatform().clock->Now()); });
    timer->start(kMillisecondsBeforeCopy);
}

void CopyKeeper::Ended(const CopyOutcome& outcome) {
    if (outcome.isDamaged)
        throw CorruptStoreError(DamageText(outcome).toStdString());
    if (!outcome.failure.isEmpty())
        Tell(outcome);
}

void CopyKeeper::Tell(const CopyOutcome& outcome) {
    setText(u"Kopie databáze se nepovedla"_s + AgeText(outcome));
    setToolTip(PlainToolTip(outcome.failure));
    show();
}

} // namespace lorvo
