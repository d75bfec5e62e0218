#include "forms/page_keys.h"

#include "platform/failure_guard.h"

#include <QShortcut>
#include <QTabWidget>

namespace lorvo {

namespace {

void Bind(QTabWidget& pages, const QKeySequence& keys, int step) {
    auto* shortcut = new QShortcut(keys, pages.window());
    Connect(shortcut, &QShortcut::activated, &pages, [&pages, step] {
        const int count = pages.count();
        pages.setCurrentIndex((pages.currentIndex() + step + count) % count);
    });
}

} // namespace

void ChangePagesByKeys(QTabWidget& pages) {
    Bind(pages, Qt::CTRL | Qt::Key_Tab, 1);
    Bind(pages, Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, -1);
    Bind(pages, Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, -1);
}

} // namespace lorvo
