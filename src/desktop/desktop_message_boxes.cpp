#include "desktop/desktop_services.h"

#include "forms/access_keys.h"
#include "platform/failure_guard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <array>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

struct ButtonKind {
    QMessageBox::StandardButton standard;
    const char16_t* text;
    const char* name;
    MessageAnswer answer;
};

constexpr ButtonKind kOk{QMessageBox::Ok, u"OK", "cmdOK", MessageAnswer::Ok};
constexpr ButtonKind kYes{QMessageBox::Yes, u"Ano", "cmdYes", MessageAnswer::Yes};
constexpr ButtonKind kNo{QMessageBox::No, u"Ne", "cmdNo", MessageAnswer::No};
constexpr ButtonKind kCancel{QMessageBox::Cancel, u"Storno", "cmdCancel", MessageAnswer::Cancel};

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

/// A key that is still held from what raised the box answers nothing: the text has not been read.
class HeldKeys : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject*, QEvent* event) override {
        return event->type() == QEvent::KeyPress &&
               static_cast<const QKeyEvent*>(event)->isAutoRepeat();
    }
};

QPushButton* AddButton(QMessageBox& box, const ButtonKind& kind) {
    QPushButton* button = box.addButton(kind.standard);
    button->setText(QString::fromUtf16(kind.text));
    button->setObjectName(QString::fromLatin1(kind.name));
    button->setIcon({});
    return button;
}

} // namespace

MessageAnswer DesktopMessageBoxes::Show(const QString& text, MessageIcon icon,
                                        MessageButtons buttons, const QString& title) {
    const QPointer<QWidget> below = WindowInFront();
    QMessageBox box(below);
    box.setObjectName(u"messageBox"_s);
    box.setTextFormat(Qt::PlainText);
    box.setIcon(IconOf(icon));
    box.setWindowTitle(title);
    box.setText(Bounded(text));
    const std::vector<ButtonKind> kinds = KindsOf(buttons);
    for (const ButtonKind& kind : kinds)
        AddButton(box, kind);
    box.setDefaultButton(kinds.front().standard);
    box.setEscapeButton(kinds.back().standard);
    const AccessKeys accessKeys(box);
    HeldKeys heldKeys;
    for (QAbstractButton* button : box.buttons())
        button->installEventFilter(&heldKeys);
    box.installEventFilter(&heldKeys);
    box.exec();
    RethrowFailure();
    if (below && below->isVisible())
        below->activateWindow(); // which not every desktop does by itself
    const auto clicked = box.standardButton(box.clickedButton());
    for (const ButtonKind& kind : kinds)
        if (kind.standard == clicked)
            return kind.answer;
    return kinds.back().answer;
}

} // namespace lorvo
