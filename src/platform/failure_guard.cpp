#include "platform/failure_guard.h"

#include <QCoreApplication>

namespace lorvo {

namespace {

/// The first failure that a guard caught and nobody has taken yet.
std::exception_ptr keptFailure;
int guardDepth = 0;

} // namespace

void KeepFailure() {
    if (!keptFailure)
        keptFailure = std::current_exception();
    QCoreApplication::exit(1);
}

bool IsFailureKept() {
    return keptFailure != nullptr;
}

void RethrowFailure() {
    if (keptFailure)
        std::rethrow_exception(guardDepth > 0 ? keptFailure : TakeFailure());
}

std::exception_ptr TakeFailure() {
    return std::exchange(keptFailure, nullptr);
}

GuardDepth::GuardDepth() {
    ++guardDepth;
}

GuardDepth::~GuardDepth() {
    --guardDepth;
}

} // namespace lorvo
