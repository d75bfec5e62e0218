#pragma once
// Recording stand-ins for everything that the logic asks of the desktop. A message that nobody
// expected fails the test, and so does an expected one that never came.

#include "platform/platform.h"
#include "support/print_qt.h"

#include <QStringList>
#include <QTemporaryDir>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace lorvo::test {

struct RecordedMessage {
    QString text;
    MessageIcon icon;
    MessageButtons buttons;
    QString title;
};

/// Installed as the platform for the lifetime of the object; the program folder is a fresh
/// temporary one. Czech locale (decimal comma, d.M.yyyy, "Kč"), settings in memory, ini files real.
class RecordingPlatform {
  public:
    RecordingPlatform();
    ~RecordingPlatform(); ///< fails the test on expectations that were not met
    RecordingPlatform(const RecordingPlatform&) = delete;
    RecordingPlatform& operator=(const RecordingPlatform&) = delete;

    QString ProgramFolder() const { return folder_.path(); }

    /// The next message box must have this text (and icon, buttons, title where given); it is
    /// answered so. `whileOpen` runs while the box is open.
    void ExpectMessage(const QString& text, MessageAnswer answer = MessageAnswer::Ok,
                       std::optional<MessageIcon> icon = {},
                       std::optional<MessageButtons> buttons = {},
                       std::optional<QString> title = {}, std::function<void()> whileOpen = {});
    std::vector<RecordedMessage> messages; ///< all that came
    /// Whether messages that nobody expected are in order; they are answered so that no harm comes.
    bool anyMessages = false;

    /// The next pop-up menu is answered by this number, 0 to leave it; `inspect` sees its entries.
    /// A number that the menu doesn't offer, or only greyed, fails the test.
    void ExpectMenu(int number, std::function<void(const std::vector<MenuEntry>&)> inspect = {});
    /// Numbers, texts and marks of the last menu, one line an entry: "606 [x] První uzávěrka";
    /// greyed ones with "(-)" behind, separators "---", submenus indented by two blanks. An entry
    /// without a number is its text alone.
    QStringList LastMenuLines() const;

    QStringList chosenFiles;    ///< what the next choices of a file answer, in turn; empty for none
    QStringList suggestedFiles; ///< what was suggested for saving
    QStringList openedFiles;
    QStringList openedAddresses;
    std::map<QString, QString> settings; ///< "Sys\\ShowClasses" below the program's key -> text
    DateValue now;                       ///< what the clock answers
    QString currencySymbol = QStringLiteral("Kč");
    int waitCursorDepth = 0;
    /// Runs at each ProcessEvents, before the events that are really pending.
    std::function<void()> onProcessEvents;

    /// Operations of all word processors so far, one line each, such as `TypeText "Rex "`,
    /// `SetFontSize 12`, `AddTabStop 28.35`. Lengths have at most two decimals; in a text a tab, a
    /// line break, a quote and a backslash are written as \t, \r, \n, \" and \\.
    QStringList wordOperations;
    int shownDocuments = 0;
    QStringList documentTitles; ///< of those shown
    /// Whether the desktop has programs that open files and documents.
    bool filesOpen = true;

  private:
    struct Doubles;
    struct ExpectedMessage {
        RecordedMessage message;
        bool anyIcon;
        bool anyButtons;
        bool anyTitle;
        MessageAnswer answer;
        std::function<void()> whileOpen;
    };
    struct ExpectedMenu {
        int number;
        std::function<void(const std::vector<MenuEntry>&)> inspect;
    };

    QTemporaryDir folder_;
    Platform outer_; ///< the platform before this one
    std::deque<ExpectedMessage> expectedMessages_;
    std::deque<ExpectedMenu> expectedMenus_;
    std::vector<MenuEntry> lastMenu_;
};

} // namespace lorvo::test
