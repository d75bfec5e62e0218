#include "office/copies/background_copy.h"

#include "office/copies/show_copies.h"
#include "platform/failure_guard.h"
#include "platform/values/errors.h"

#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

CopyOutcome Failed(const Error& failure, bool isDamaged, const QString& folder, DateValue now) {
    CopyOutcome outcome{QString::fromUtf8(failure.what()), isDamaged, {}, 0};
    if (const auto good = NewestGoodCopy(folder, now)) {
        outcome.newestGood = good->path.section(u'/', -1);
        outcome.daysOld = std::max(0, now.Days() - good->moment.Days());
    }
    return outcome;
}

} // namespace

CopyOutcome CopyAfterDamage(const CorruptStoreError& damage, const QString& programFolder,
                            DateValue now) {
    return Failed(damage, true, programFolder, now);
}

CopyOutcome TryCopy(const QString& programFolder, DateValue now) {
    try {
        MakeCopy(programFolder, now);
        return {};
    } catch (const CorruptStoreError& damage) {
        return Failed(damage, true, programFolder, now);
    } catch (const Error& failure) {
        return Failed(failure, false, programFolder, now);
    }
}

QString DamageText(const CopyOutcome& outcome) {
    return outcome.failure + (outcome.newestGood.isEmpty()
                                  ? u" Žádná dobrá kopie ve složce Zálohy není."_s
                                  : u" Nejnovější dobrá kopie je Zálohy/"_s + outcome.newestGood +
                                        u"; vrátíte ji ve Správci dat."_s);
}

BackgroundCopy::~BackgroundCopy() {
    Wait();
}

void BackgroundCopy::Wait() {
    if (thread_)
        thread_->wait();
}

// The toolkit's own threads: one of the standard library frees what the toolkit keeps for it too
// early under MinGW, and the program crashes at its end.
void BackgroundCopy::Begin(const QString& programFolder, DateValue now) {
    Wait();
    thread_.reset(QThread::create([this, programFolder, now] {
        const CopyOutcome outcome = TryCopy(programFolder, now);
        Later(this, [this, outcome] { Q_EMIT Ended(outcome); });
    }));
    thread_->start();
}

} // namespace lorvo
