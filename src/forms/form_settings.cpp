#include "forms/form_settings.h"

#include "app/common_routines.h"
#include "forms/report_list.h"
#include "platform/platform.h"

#include <QApplication>
#include <QFont>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// What a desktop draws around a window: edges, and the title with the upper edge.
constexpr QSize kFrame(16, 40);
constexpr int kTitleHeight = 32;
/// So much of a title can be taken hold of.
constexpr int kLeastTitle = 80;
constexpr int kWidestColumn = 10'000;

enum class WindowState { Normal = 0, Minimized = 1, Maximized = 2 };

QString PositionKey(const QWidget& window) {
    return u"Form Positions\\"_s + window.objectName();
}

QString ListKey(const char* root, const QWidget& window, const ReportList& list) {
    return QString::fromLatin1(root) + window.objectName() + u'\\' + list.objectName();
}

std::optional<int> StoredSize(const QString& key, const char* name) {
    const std::optional<int> number = StoredNumber(key, QString::fromLatin1(name));
    return number && *number > 0 ? number : std::nullopt;
}

void RestoreColumnWidths(const QString& key, ReportList& list) {
    for (int column = 0; column < list.ColumnCount(); ++column) {
        const auto width = StoredNumber(key, u"ColWidth %1"_s.arg(column + 1));
        if (width && *width >= 0)
            list.DrawColumn(column,
                            qBound(list.header()->minimumSectionSize(), *width, kWidestColumn));
    }
}

void RestoreColumnPositions(const QString& key, QHeaderView& header) {
    std::vector<std::pair<int, int>> places; // position and column, in the order of columns
    std::set<int> positions;
    for (int column = 0; column < header.count(); ++column) {
        const auto position = StoredNumber(key, u"ColPosition %1"_s.arg(column + 1));
        if (!position || *position < 1 || *position > header.count())
            continue;
        places.emplace_back(*position, column);
        positions.insert(*position);
    }
    // Of a whole set each column gets its place: from the first on, no move disturbs what stands.
    if (static_cast<int>(positions.size()) == header.count())
        std::sort(places.begin(), places.end());
    for (const auto& [position, column] : places)
        header.moveSection(header.visualIndex(column), position - 1);
}

void RestoreList(const QWidget& window, ReportList& list) {
    QHeaderView& header = *list.header();
    RestoreColumnWidths(ListKey("ColWidths\\", window, list), list);
    RestoreColumnPositions(ListKey("ColPos\\", window, list), header);
    if (ReadRegValue(u"Sys"_s, u"ShowGrid"_s) == u"1")
        list.SetGridLines(true);
}

void SaveColumns(const QWidget& window, const ReportList& list) {
    const QHeaderView& header = *list.header();
    const QString widths = ListKey("ColWidths\\", window, list);
    const QString positions = ListKey("ColPos\\", window, list);
    for (int column = 0; column < header.count(); ++column) {
        WriteRegValue(widths, u"ColWidth %1"_s.arg(column + 1),
                      QString::number(list.ColumnWidth(column)));
        WriteRegValue(positions, u"ColPosition %1"_s.arg(column + 1),
                      QString::number(header.visualIndex(column) + 1));
    }
}

/// Whether enough of the window's title lies on a screen to take hold of it there.
bool IsInSight(const QRect& frame) {
    const QRect title(frame.topLeft(), QSize(frame.width(), kTitleHeight));
    const auto screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&title](const QScreen* screen) {
        const QRect seen = screen->availableGeometry() & title;
        return seen.width() >= std::min(kLeastTitle, title.width()) &&
               seen.height() >= kTitleHeight / 2;
    });
}

void RestoreState(QWidget& window) {
    const auto state = StoredSize(PositionKey(window), "WindowState");
    if (state == static_cast<int>(WindowState::Minimized))
        window.setWindowState(Qt::WindowMinimized);
    if (state == static_cast<int>(WindowState::Maximized))
        window.setWindowState(Qt::WindowMaximized);
}

void RestoreSize(QWidget& window) {
    const QString key = PositionKey(window);
    const auto height = StoredSize(key, "Height");
    const auto width = StoredSize(key, "Width");
    if (!height && !width)
        return;
    const QSize designed = window.testAttribute(Qt::WA_Resized) ? window.size() : window.sizeHint();
    const QSize stored(width.value_or(designed.width()), height.value_or(designed.height()));
    window.resize(stored.boundedTo(LargestSize(window)).expandedTo(window.minimumSizeHint()));
}

WindowState StateOf(const QWidget& window) {
    if (window.isMinimized())
        return WindowState::Minimized;
    return window.isMaximized() ? WindowState::Maximized : WindowState::Normal;
}

/// How far inside of its frame a window begins. Before it is on the screen only other windows tell,
/// and what is taken for it wrongly would add up from one opening to the next.
QPoint FrameOffset(const QWidget& window) {
    QList<const QWidget*> tellers{&window};
    for (const QWidget* other : QApplication::topLevelWidgets())
        if (other->isVisible() && (other->windowFlags() & Qt::WindowType_Mask) != Qt::Popup)
            tellers.push_back(other);
    for (const QWidget* teller : tellers)
        if (const QWindow* handle = teller->windowHandle();
            handle && !handle->frameMargins().isNull())
            return {handle->frameMargins().left(), handle->frameMargins().top()};
    return {};
}

void MoveContent(QWidget& window, QPoint place) {
    window.setGeometry(QRect(place, window.size()));
}

} // namespace

std::optional<int> StoredNumber(const QString& key, const QString& name) {
    const auto number = ThePlatform().locale->PlainNumber(ReadRegValue(key, name));
    if (!number)
        return {};
    constexpr double kFarthest = 1e6; // no screen reaches there, and it fits every type
    return static_cast<int>(qBound(-kFarthest, number->toDouble(), kFarthest));
}

void LoadFormSettings(QWidget& window, bool fixedBorder) {
    for (ReportList* list : window.findChildren<ReportList*>())
        RestoreList(window, *list);
    QFont font = window.font();
    font.setFamily(u"Tahoma"_s);
    window.setFont(font);
    if (!fixedBorder)
        RestoreSize(window);
    RestoreState(window);
}

void RestorePlace(QWidget& window) {
    // On its way to the screen a maximised window already has the place that it will fill.
    if (window.windowHandle() && window.windowState() != Qt::WindowNoState)
        return;
    const QString key = PositionKey(window);
    const auto top = StoredSize(key, "Top");
    const auto left = StoredSize(key, "Left");
    // A window that isn't made yet takes the place of its frame and keeps to it.
    const bool made = window.windowHandle() != nullptr;
    const QPoint offset = made ? FrameOffset(window) : QPoint();
    QPoint place = window.geometry().topLeft();
    if (left)
        place.setX(*left + offset.x());
    if (top)
        place.setY(*top + offset.y());
    if ((left || top) && made)
        MoveContent(window, place);
    else if (left || top)
        window.move(place);
    BringInSight(window);
}

void BringInSight(QWidget& window) {
    if (IsInSight(window.geometry()))
        return;
    const QRect space = window.screen()->availableGeometry();
    const QSize frame = window.size() + kFrame;
    const QPoint place = window.geometry().topLeft();
    const int left = std::max(space.left(), space.right() - frame.width());
    const int top = std::max(space.top(), space.bottom() - frame.height());
    MoveContent(window,
                {qBound(space.left(), place.x(), left), qBound(space.top(), place.y(), top)});
}

QSize LargestSize(const QWidget& window) {
    return window.screen()->availableSize() - kFrame;
}

void SaveFormSettings(const QWidget& window, int widening) {
    for (const ReportList* list : window.findChildren<ReportList*>())
        SaveColumns(window, *list);
    const QString key = PositionKey(window);
    const auto store = [&key](const char* name, int value) {
        WriteRegValue(key, QString::fromLatin1(name), QString::number(value));
    };
    const WindowState state = StateOf(window);
    store("WindowState", static_cast<int>(state));
    if (state != WindowState::Normal)
        return;
    store("Top", window.y());
    store("Left", window.x());
    store("Height", window.height());
    store("Width", window.width() - widening);
}

} // namespace lorvo
