#include "desktop/desktop_services.h"

#include "platform/failure_guard.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <array>

namespace lorvo {

namespace {

struct ButtonKind {
    QMessageBox::StandardButton standard;
    const char16_t* text;
    const char* name;
    Qt::Key accessKey; ///< together with Alt; 0 for none
    MessageAnswer answer;
};

constexpr Qt::Key kNoKey = Qt::Key(0);
constexpr ButtonKind kOk{QMessageBox::Ok, u"OK", "cmdOK", kNoKey, MessageAnswer::Ok};
constexpr ButtonKind kYes{QMessageBox::Yes, u"Ano", "cmdYes", Qt::Key_A, MessageAnswer::Yes};
constexpr ButtonKind kNo{QMessageBox::No, u"Ne", "cmdNo", Qt::Key_N, MessageAnswer::No};
constexpr ButtonKind kCancel{QMessageBox::Cancel, u"Storno", "cmdCancel", kNoKey,
                             MessageAnswer::Cancel};

/// The buttons of a box, the affirmative one first and what closing the box answers last.
std::vector<ButtonKind> KindsOf(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::Ok:
        return {kOk};
    case MessageButtons::OkCancel:
        return {kOk, kCancel};
    case MessageButtons::YesNo:
        return {kYes, kNo};
    case MessageButtons::YesNoCancel:
        return {kYes, kNo, kCancel};
    }
    return {};
}

QMessageBox::Icon IconOf(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::None:
        return QMessageBox::NoIcon;
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Stop:
        return QMessageBox::Critical;
    case MessageIcon::Question:
        return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

QWidget* WindowInFront() {
    QWidget* modal = QApplication::activeModalWidget();
    return modal ? modal : QApplication::activeWindow();
}

/// As much of a text as a small screen shows; the rest of a text that was pasted in is left out.
QString Bounded(const QString& text) {
    constexpr qsizetype kMostLines = 20;
    constexpr qsizetype kMostCharacters = 1500;
    const QStringList lines = text.left(kMostCharacters).split(u'\n');
    const QString shown = lines.mid(0, kMostLines).join(u'\n');
    return shown.size() < text.size() ? shown + u'…' : text;
}

QPushButton* AddButton(QMessageBox& box, const ButtonKind& kind) {
    QPushButton* button = box.addButton(kind.standard);
    button->setText(QString::fromUtf16(kind.text));
    button->setObjectName(QString::fromLatin1(kind.name));
    button->setIcon({});
    if (kind.accessKey != kNoKey)
        button->setShortcut(QKeySequence(Qt::ALT | kind.accessKey));
    return button;
}

} // namespace

MessageAnswer DesktopMessageBoxes::Show(const QString& text, MessageIcon icon,
                                        MessageButtons buttons, const QString& title) {
    QMessageBox box(WindowInFront());
    box.setObjectName(QStringLiteral("messageBox"));
    box.setTextFormat(Qt::PlainText);
    box.setIcon(IconOf(icon));
    box.setWindowTitle(title);
    box.setText(Bounded(text));
    const std::vector<ButtonKind> kinds = KindsOf(buttons);
    for (const ButtonKind& kind : kinds)
        AddButton(box, kind);
    box.setDefaultButton(kinds.front().standard);
    box.setEscapeButton(kinds.back().standard);
    box.exec();
    RethrowFailure();
    const auto clicked = box.standardButton(box.clickedButton());
    for (const ButtonKind& kind : kinds)
        if (kind.standard == clicked)
            return kind.answer;
    return kinds.back().answer;
}

} // namespace lorvo
