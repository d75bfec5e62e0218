#include "office/copies/sweep_copy.h"

#include "platform/platform.h"
#include "store/data_module.h"

#include <QFileInfo>

namespace lorvo {

namespace {

std::function<void(const CopyOutcome&)> listenerToFailures;

} // namespace

void CopyBeforeSweep() {
    const WaitCursor wait(*ThePlatform().ui);
    const QString folder = QFileInfo(TheDataModule().Conn1.Path()).path();
    const CopyOutcome outcome = TryCopy(folder, ThePlatform().clock->Now());
    if (!outcome.failure.isEmpty() && listenerToFailures)
        listenerToFailures(outcome);
}

void ListenForFailedCopies(std::function<void(const CopyOutcome&)> listener) {
    listenerToFailures = std::move(listener);
}

} // namespace lorvo
