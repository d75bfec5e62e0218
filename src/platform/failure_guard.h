#pragma once
// Failures end at the slot or event handler in which they rise: the toolkit's frames can't be
// unwound. A guard keeps the first one, ends the event loops and lets nothing else run; each
// routine that has waited in a loop of its own raises it again, up to the application's entry,
// which shows it.

#include <QObject>
#include <exception>
#include <functional>
#include <tuple>
#include <type_traits>
#include <utility>

namespace lorvo {

/// Keeps the exception that is being handled, unless an earlier one is kept, and ends every event
/// loop with code 1. To be called in a catch clause.
void KeepFailure();
bool IsFailureKept();
/// Raises the kept failure again, if there is one; to be called wherever other slots or event
/// handlers may have run. Within a guard it stays kept, so that nobody on the way up can swallow
/// it.
void RethrowFailure();
/// Gives the kept failure away; null when there is none.
std::exception_ptr TakeFailure();

/// A place in the chain of guarded calls that are under way.
class GuardDepth {
  public:
    GuardDepth();
    ~GuardDepth();
    GuardDepth(const GuardDepth&) = delete;
    GuardDepth& operator=(const GuardDepth&) = delete;
};

/// Runs `work` as the body of a slot or of an event handler. Does nothing once a failure is kept.
/// False when it did not run to its end.
template<typename Work> bool Guarded(Work&& work) {
    if (IsFailureKept())
        return false;
    const GuardDepth depth;
    try {
        std::forward<Work>(work)();
        return !IsFailureKept();
    } catch (...) {
        KeepFailure();
        return false;
    }
}

/// The same for a handler that answers something: `otherwise` when it did not run to its end.
template<typename Work>
auto GuardedAnswer(std::invoke_result_t<Work&> otherwise, Work&& work)
    -> std::invoke_result_t<Work&> {
    auto answer = otherwise;
    return Guarded([&] { answer = work(); }) ? answer : otherwise;
}

namespace guard_detail {

template<std::size_t Count, typename Context, typename Slot, typename... Args>
auto MakeSlot(Context* context, Slot slot, std::tuple<Args...>* all);

/// The guarded slot for exactly these arguments.
template<typename Context, typename Slot, typename All, std::size_t... I>
auto SlotFor(Context* context, Slot slot, All*, std::index_sequence<I...>) {
    if constexpr (std::is_invocable_v<Slot&, std::tuple_element_t<I, All>...>)
        return [slot](std::tuple_element_t<I, All>... args) mutable {
            Guarded([&] { std::invoke(slot, args...); });
        };
    else if constexpr (std::is_invocable_v<Slot&, Context*, std::tuple_element_t<I, All>...>)
        return [context, slot](std::tuple_element_t<I, All>... args) {
            Guarded([&] { std::invoke(slot, context, args...); });
        };
    else
        return MakeSlot<sizeof...(I) - 1>(context, slot, static_cast<All*>(nullptr));
}

/// A slot may take fewer arguments than its signal has.
template<std::size_t Count, typename Context, typename Slot, typename... Args>
auto MakeSlot(Context* context, Slot slot, std::tuple<Args...>* all) {
    static_assert(Count <= sizeof...(Args), "the slot doesn't fit the signal");
    return SlotFor(context, slot, all, std::make_index_sequence<Count>());
}

} // namespace guard_detail

/// The one way of connecting: as QObject::connect, with the slot (a member of `context` or a
/// function that lives no longer than it) under guard.
template<typename Sender, typename Source, typename... Args, typename Context, typename Slot>
QMetaObject::Connection Connect(const Sender* sender, void (Source::*signal)(Args...),
                                Context* context, Slot slot,
                                Qt::ConnectionType type = Qt::AutoConnection) {
    return QObject::connect(sender, signal, context,
                            guard_detail::MakeSlot<sizeof...(Args)>(
                                context, slot, static_cast<std::tuple<Args...>*>(nullptr)),
                            type);
}

/// Runs `work` under guard when the pending events are done, unless `context` has gone by then.
template<typename Work> void Later(QObject* context, Work work) {
    QMetaObject::invokeMethod(
        context, [work]() mutable { Guarded(work); }, Qt::QueuedConnection);
}

} // namespace lorvo
