#include "forms/form_settings.h"

#include "app/common_routines.h"
#include "forms/report_list.h"
#include "platform/platform.h"

#include <QFont>
#include <QHeaderView>
#include <QScreen>
#include <QWidget>
#include <optional>

namespace lorvo {

namespace {

enum class WindowState { Normal = 0, Minimized = 1, Maximized = 2 };

QString PositionKey(const QWidget& window) {
    return QStringLiteral("Form Positions\\") + window.objectName();
}

QString ListKey(const char* root, const QWidget& window, const ReportList& list) {
    return QString::fromLatin1(root) + window.objectName() + u'\\' + list.objectName();
}

/// A stored number; nullopt for a missing value or one that is none by the system's rules.
std::optional<int> StoredNumber(const QString& key, const QString& name) {
    const auto number = ThePlatform().locale->PlainNumber(ReadRegValue(key, name));
    if (!number)
        return {};
    constexpr double kFarthest = 1e6; // no screen reaches there, and it fits every type
    return qRound(qBound(-kFarthest, number->toDouble(), kFarthest));
}

std::optional<int> StoredSize(const QString& key, const char* name) {
    const std::optional<int> number = StoredNumber(key, QString::fromLatin1(name));
    return number && *number > 0 ? number : std::nullopt;
}

void RestoreColumnWidths(const QString& key, ReportList& list) {
    for (int column = 0; column < list.ColumnCount(); ++column) {
        const auto width = StoredNumber(key, QStringLiteral("ColWidth %1").arg(column + 1));
        if (width && *width >= 0)
            list.DrawColumn(column, *width);
    }
}

void RestoreColumnPositions(const QString& key, QHeaderView& header) {
    for (int column = 0; column < header.count(); ++column) {
        const auto position = StoredNumber(key, QStringLiteral("ColPosition %1").arg(column + 1));
        if (position && *position >= 1 && *position <= header.count())
            header.moveSection(header.visualIndex(column), *position - 1);
    }
}

void RestoreList(const QWidget& window, ReportList& list) {
    QHeaderView& header = *list.header();
    RestoreColumnWidths(ListKey("ColWidths\\", window, list), list);
    RestoreColumnPositions(ListKey("ColPos\\", window, list), header);
    if (ReadRegValue(QStringLiteral("Sys"), QStringLiteral("ShowGrid")) == u"1")
        list.SetGridLines(true);
}

void SaveColumns(const QWidget& window, const ReportList& list) {
    const QHeaderView& header = *list.header();
    const QString widths = ListKey("ColWidths\\", window, list);
    const QString positions = ListKey("ColPos\\", window, list);
    for (int column = 0; column < header.count(); ++column) {
        WriteRegValue(widths, QStringLiteral("ColWidth %1").arg(column + 1),
                      QString::number(list.ColumnWidth(column)));
        WriteRegValue(positions, QStringLiteral("ColPosition %1").arg(column + 1),
                      QString::number(header.visualIndex(column) + 1));
    }
}

/// Where a window opens on its own: in the middle of the window below it, or of the screen.
QPoint DesignedPosition(const QWidget& window) {
    const QWidget* below = window.parentWidget() ? window.parentWidget()->window() : nullptr;
    const QRect space =
        below && below->isVisible() ? below->frameGeometry() : window.screen()->availableGeometry();
    return space.center() - QPoint(window.sizeHint().width() / 2, window.sizeHint().height() / 2);
}

void RestorePosition(QWidget& window) {
    const QString key = PositionKey(window);
    const auto top = StoredSize(key, "Top");
    const auto left = StoredSize(key, "Left");
    if (!top && !left)
        return;
    const QPoint designed = DesignedPosition(window);
    window.move(left.value_or(designed.x()), top.value_or(designed.y()));
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
    window.resize(width.value_or(designed.width()), height.value_or(designed.height()));
}

WindowState StateOf(const QWidget& window) {
    if (window.isMinimized())
        return WindowState::Minimized;
    return window.isMaximized() ? WindowState::Maximized : WindowState::Normal;
}

} // namespace

void LoadFormSettings(QWidget& window, bool fixedBorder) {
    for (ReportList* list : window.findChildren<ReportList*>())
        RestoreList(window, *list);
    QFont font = window.font();
    font.setFamily(QStringLiteral("Tahoma"));
    window.setFont(font);
    RestorePosition(window);
    if (!fixedBorder)
        RestoreSize(window);
    RestoreState(window);
}

void SaveFormSettings(const QWidget& window) {
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
    store("Width", window.width());
}

} // namespace lorvo
