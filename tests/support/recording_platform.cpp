#include "support/recording_platform.h"

#include "platform/failure_guard.h"
#include "platform/real_services.h"
#include "support/recording_word_processor.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

const QString& ProgramKey() {
    static const QString key = u"Software\\Hollow Peak\\Lorvo\\"_s;
    return key;
}

/// What an unexpected box is answered, so that the test goes on without doing harm.
MessageAnswer HarmlessAnswer(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::Ok:
        return MessageAnswer::Ok;
    case MessageButtons::YesNo:
        return MessageAnswer::No;
    case MessageButtons::OkCancel:
    case MessageButtons::YesNoCancel:
        break;
    }
    return MessageAnswer::Cancel;
}

const MenuEntry* FindEntry(const std::vector<MenuEntry>& entries, int number) {
    for (const MenuEntry& entry : entries) {
        if (entry.submenu.empty() && !entry.separator && entry.number == number)
            return &entry;
        if (const MenuEntry* inner = FindEntry(entry.submenu, number))
            return inner;
    }
    return nullptr;
}

QString LineOf(const MenuEntry& entry) {
    if (entry.separator)
        return u"---"_s;
    QString line = entry.number != 0 ? QString::number(entry.number) + u' ' : QString();
    line += (entry.checked ? u"[x] "_s : QString()) + entry.text;
    return line + (entry.enabled ? QString() : u" (-)"_s);
}

void AppendLines(const std::vector<MenuEntry>& entries, const QString& indent, QStringList& lines) {
    for (const MenuEntry& entry : entries) {
        lines << indent + LineOf(entry);
        AppendLines(entry.submenu, indent + u"  "_s, lines);
    }
}

} // namespace

struct RecordingPlatform::Doubles {
    class Messages final : public MessageBoxes {
      public:
        explicit Messages(RecordingPlatform& owner) : owner_(owner) {}
        MessageAnswer Show(const QString& text, MessageIcon icon, MessageButtons buttons,
                           const QString& title) override {
            owner_.messages.push_back({text, icon, buttons, title});
            if (owner_.expectedMessages_.empty()) {
                EXPECT_TRUE(owner_.anyMessages)
                    << "nobody expected the message: " << text.toStdString();
                return HarmlessAnswer(buttons);
            }
            const ExpectedMessage expected = std::move(owner_.expectedMessages_.front());
            owner_.expectedMessages_.pop_front();
            Compare(owner_.messages.back(), expected);
            if (expected.whileOpen)
                expected.whileOpen();
            return expected.answer;
        }

      private:
        static void Compare(const RecordedMessage& came, const ExpectedMessage& expected) {
            const RecordedMessage& wanted = expected.message;
            EXPECT_EQ(came.text.toStdString(), wanted.text.toStdString());
            EXPECT_TRUE(expected.anyIcon || came.icon == wanted.icon)
                << "icon of: " << came.text.toStdString();
            EXPECT_TRUE(expected.anyButtons || came.buttons == wanted.buttons)
                << "buttons of: " << came.text.toStdString();
            EXPECT_TRUE(expected.anyTitle || came.title == wanted.title)
                << "title of: " << came.text.toStdString() << ": " << came.title.toStdString();
        }
        RecordingPlatform& owner_;
    };

    class Files : public FileChoice {
      public:
        explicit Files(RecordingPlatform& owner) : owner_(owner) {}
        QString Open(const QString&, const QString&) override { return Next(); }
        QString Save(const QString&, const QString& suggested, const QString&) override {
            owner_.suggestedFiles << suggested;
            return Next();
        }

      private:
        QString Next() {
            if (owner_.chosenFiles.isEmpty()) {
                ADD_FAILURE() << "nobody expected the choice of a file";
                return {};
            }
            return owner_.chosenFiles.takeFirst();
        }
        RecordingPlatform& owner_;
    };
    class Menus final : public PopupMenus {
      public:
        explicit Menus(RecordingPlatform& owner) : owner_(owner) {}
        int TrackPopup(const std::vector<MenuEntry>& entries) override {
            owner_.lastMenu_ = entries;
            if (owner_.expectedMenus_.empty()) {
                ADD_FAILURE() << "nobody expected a menu: "
                              << owner_.LastMenuLines().join(u" | "_s).toStdString();
                return 0;
            }
            const ExpectedMenu expected = std::move(owner_.expectedMenus_.front());
            owner_.expectedMenus_.pop_front();
            if (expected.inspect)
                expected.inspect(entries);
            return Choose(expected.number);
        }

      private:
        int Choose(int number) {
            const MenuEntry* entry = FindEntry(owner_.lastMenu_, number);
            if (number == 0 || (entry && entry->enabled))
                return number;
            ADD_FAILURE() << "the menu doesn't offer " << number << ": "
                          << owner_.LastMenuLines().join(u" | "_s).toStdString();
            return 0;
        }
        RecordingPlatform& owner_;
    };

    class Opener final : public OpenService {
      public:
        explicit Opener(RecordingPlatform& owner) : owner_(owner) {}
        bool OpenFile(const QString& path) override {
            owner_.openedFiles << path;
            return owner_.filesOpen;
        }
        void OpenAddress(const QString& address) override { owner_.openedAddresses << address; }

      private:
        RecordingPlatform& owner_;
    };

    class Settings final : public SettingsTree {
      public:
        explicit Settings(RecordingPlatform& owner) : owner_(owner) {}
        QString Read(const QString& key, const QString& name) override {
            const auto found = owner_.settings.find(PathOf(key, name));
            return found == owner_.settings.end() ? QString() : found->second;
        }
        void Write(const QString& key, const QString& name, const QString& text) override {
            owner_.settings[PathOf(key, name)] = text;
        }

      private:
        static QString PathOf(const QString& key, const QString& name) {
            EXPECT_TRUE(key.startsWith(ProgramKey())) << key.toStdString();
            return key.mid(ProgramKey().size()) + u'\\' + name;
        }
        RecordingPlatform& owner_;
    };

    class Locale final : public LocaleInfo {
      public:
        explicit Locale(RecordingPlatform& owner) : owner_(owner) {}
        QString Item(int item) const override {
            return item == kLocaleCurrencySymbol ? owner_.currencySymbol : czech_->Item(item);
        }
        char DecimalSign() const override { return czech_->DecimalSign(); }
        QString DateText(DateValue value) const override { return czech_->DateText(value); }
        QString ShortDate(DateValue value) const override { return czech_->ShortDate(value); }
        QString ShortDatePattern() const override { return czech_->ShortDatePattern(); }
        std::optional<QString> PlainNumber(const QString& text) const override {
            return czech_->PlainNumber(text);
        }

      private:
        RecordingPlatform& owner_;
        std::unique_ptr<LocaleInfo> czech_ = MakeLocaleInfo(QLocale(QLocale::Czech));
    };

    class FixedClock final : public Clock {
      public:
        explicit FixedClock(RecordingPlatform& owner) : owner_(owner) {}
        DateValue Now() const override { return owner_.now; }

      private:
        RecordingPlatform& owner_;
    };

    class Ui final : public UserInterface {
      public:
        explicit Ui(RecordingPlatform& owner) : owner_(owner) {}
        void SetWaitCursor(bool on) override { owner_.waitCursorDepth += on ? 1 : -1; }
        void ProcessEvents() override {
            if (owner_.onProcessEvents)
                owner_.onProcessEvents();
            QCoreApplication::processEvents();
            RethrowFailure();
        }

      private:
        RecordingPlatform& owner_;
    };
};

RecordingPlatform::RecordingPlatform() : outer_(std::move(ThePlatform())) {
    Platform& platform = ThePlatform();
    platform.programFolder = folder_.path();
    platform.messages = std::make_unique<Doubles::Messages>(*this);
    platform.menus = std::make_unique<Doubles::Menus>(*this);
    platform.files = std::make_unique<Doubles::Files>(*this);
    platform.opener = std::make_unique<Doubles::Opener>(*this);
    platform.settings = std::make_unique<Doubles::Settings>(*this);
    platform.iniFiles = MakeIniFiles();
    platform.locale = std::make_unique<Doubles::Locale>(*this);
    platform.clock = std::make_unique<Doubles::FixedClock>(*this);
    platform.wordProcessors =
        std::make_unique<RecordingWordProcessors>(wordOperations, [this](const QString& title) {
            ++shownDocuments;
            documentTitles << title;
            return ShownDocument{ProgramFolder() + u"/Tisky/"_s + title + u".docx"_s, filesOpen};
        });
    platform.ui = std::make_unique<Doubles::Ui>(*this);
}

RecordingPlatform::~RecordingPlatform() {
    for (const ExpectedMessage& expected : expectedMessages_)
        ADD_FAILURE() << "never came: " << expected.message.text.toStdString();
    for (const ExpectedMenu& expected : expectedMenus_)
        ADD_FAILURE() << "no menu came for " << expected.number;
    EXPECT_EQ(waitCursorDepth, 0) << "the wait cursor was left on";
    ThePlatform() = std::move(outer_);
}

void RecordingPlatform::ExpectMessage(const QString& text, MessageAnswer answer,
                                      std::optional<MessageIcon> icon,
                                      std::optional<MessageButtons> buttons,
                                      std::optional<QString> title,
                                      std::function<void()> whileOpen) {
    const RecordedMessage message{text, icon.value_or(MessageIcon::None),
                                  buttons.value_or(MessageButtons::Ok),
                                  std::move(title).value_or(QString())};
    expectedMessages_.push_back({message, !icon, !buttons, !title, answer, std::move(whileOpen)});
}

void RecordingPlatform::ExpectMenu(int number,
                                   std::function<void(const std::vector<MenuEntry>&)> inspect) {
    expectedMenus_.push_back({number, std::move(inspect)});
}

QStringList RecordingPlatform::LastMenuLines() const {
    QStringList lines;
    AppendLines(lastMenu_, {}, lines);
    return lines;
}

} // namespace lorvo::test
