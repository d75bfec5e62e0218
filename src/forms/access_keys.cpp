#include "forms/access_keys.h"

#include "forms/access_key_choice.h"
#include "forms/controls.h"
#include "platform/failure_guard.h"

#include <QAbstractButton>
#include <QEvent>
#include <QHash>
#include <QKeySequence>
#include <QLabel>
#include <QStackedWidget>
#include <QToolButton>
#include <utility>

namespace lorvo {

namespace {

constexpr char kKeyProperty[] = "accessKey";
constexpr char kWishProperty[] = "accessKeyWish";
constexpr char kLastProperty[] = "accessKeyLast";
constexpr char kTargetProperty[] = "accessKeyTarget";

/// Parts that other controls are made of, such as the arrows of a tab bar.
bool IsPart(const QWidget& control) {
    const QWidget* above = control.parentWidget();
    return control.objectName().startsWith(u"qt_") || !above || above->inherits("QTabBar") ||
           above->inherits("QLineEdit") || above->inherits("QAbstractSpinBox") ||
           above->inherits("QCalendarWidget") ||
           (above->parentWidget() && above->parentWidget()->inherits("QCalendarWidget"));
}

QString TextOf(const QWidget& control) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
        const auto* tool = qobject_cast<const QToolButton*>(button);
        return tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly ? QString()
                                                                         : button->text();
    }
    const auto* label = qobject_cast<const QLabel*>(&control);
    return label && (label->buddy() || qobject_cast<const LinkLabel*>(label)) ? label->text()
                                                                              : QString();
}

/// What was noted at the control; most controls have nothing noted, which is soon seen.
QChar LetterIn(const QWidget& control, const char* property) {
    return control.dynamicPropertyNames().isEmpty() ? QChar() : control.property(property).toChar();
}

/// The page of a stack that the control stands on, null for none.
const QWidget* PageOf(const QWidget& control) {
    for (const QWidget* widget = &control; widget && !widget->isWindow();
         widget = widget->parentWidget())
        if (qobject_cast<const QStackedWidget*>(widget->parentWidget()))
            return widget;
    return nullptr;
}

/// Whether the control is there once its page is; pages come and go by themselves.
bool IsThere(const QWidget& control) {
    const QWidget* page = PageOf(control);
    const QWidget* top = page ? page : control.window();
    return &control == top || control.isVisibleTo(const_cast<QWidget*>(top));
}

QList<QWidget*> ControlsOf(QWidget& window) {
    QList<QWidget*> controls;
    for (QWidget* widget : window.findChildren<QWidget*>())
        if (widget->window() == &window && !TextOf(*widget).isEmpty() && !IsPart(*widget) &&
            IsThere(*widget))
            controls.push_back(widget);
    return controls;
}

QChar WishOf(const QWidget& control) {
    return LetterIn(control, kWishProperty);
}

/// A link without a field beside it may bear a name of the clerk's, in which an ampersand is one.
bool MarksLetters(const QWidget& control) {
    const auto* label = qobject_cast<const QLabel*>(&control);
    return !label || label->buddy();
}

/// Makes the letter that the text marks a wish, so that the toolkit gives the control none of its
/// own, which would be slow for a button and could be another's.
void TakeMark(QWidget& control) {
    const QString text = TextOf(control);
    const QChar marked = MarksLetters(control) ? MarkedKey(text) : QChar();
    if (marked.isNull())
        return;
    control.setProperty(kWishProperty, marked);
    if (auto* button = qobject_cast<QAbstractButton*>(&control))
        button->setText(WithoutMark(text));
    else if (auto* label = qobject_cast<QLabel*>(&control))
        label->setText(WithoutMark(text));
}

void Press(QWidget& control) {
    const QPointer<QWidget> inside = control.property(kTargetProperty).value<QWidget*>();
    if (inside && inside->isVisible())
        return inside->setFocus(Qt::ShortcutFocusReason);
    auto* label = qobject_cast<QLabel*>(&control);
    QWidget* target = label && label->buddy() ? label->buddy() : &control;
    auto* tool = qobject_cast<QToolButton*>(&control);
    // A command of a bar works on what has the keyboard, which goes on there afterwards.
    if (!tool && target->focusPolicy() != Qt::NoFocus)
        target->setFocus(Qt::ShortcutFocusReason);
    if (auto* link = qobject_cast<LinkLabel*>(&control))
        Q_EMIT link->Clicked(Qt::LeftButton);
    if (tool && tool->menu() && tool->popupMode() == QToolButton::InstantPopup)
        tool->showMenu();
    else if (auto* button = qobject_cast<QAbstractButton*>(&control))
        button->click();
}

QShortcut* Bind(QWidget& control, QChar key) {
    const QKeySequence keys(Qt::ALT | static_cast<Qt::Key>(key.unicode()));
    auto* shortcut = new QShortcut(keys, &control);
    shortcut->setAutoRepeat(false);
    Connect(shortcut, &QShortcut::activated, &control, [&control] { Press(control); });
    return shortcut;
}

} // namespace

AccessKeys::AccessKeys(QWidget& window) : QObject(&window), window_(window) {
    window.installEventFilter(this);
    Refresh();
}

void AccessKeys::Refresh() {
    const QList<QWidget*> controls = ControlsOf(window_);
    std::vector<Seen> now;
    for (QWidget* control : controls) {
        TakeMark(*control);
        now.push_back({control, TextOf(*control), WishOf(*control)});
    }
    if (std::exchange(seen_, now) == now)
        return;
    QHash<const QWidget*, int> pages{{nullptr, 0}};
    std::vector<KeyedText> texts;
    for (const QWidget* control : controls) {
        const QWidget* page = PageOf(*control);
        if (!pages.contains(page))
            pages.insert(page, static_cast<int>(pages.size()));
        texts.push_back({TextOf(*control), WishOf(*control), pages.value(page),
                         control->property(kLastProperty).toBool()});
    }
    Give(controls, ChooseAccessKeys(texts));
}

// What keeps its letter is neither bound nor painted anew: with each node of the tree the links of
// the panel bear other names, and the letters of the rest stay.
void AccessKeys::Give(const QList<QWidget*>& controls, const std::vector<QChar>& keys) {
    Shortcuts before = std::exchange(shortcuts_, {});
    for (qsizetype i = 0; i < controls.size(); ++i) {
        QWidget& control = *controls[i];
        const QChar key = keys[static_cast<std::size_t>(i)];
        const bool same = AccessKeyOf(control) == key;
        if (QPointer<QShortcut> bound = same ? before.take(&control) : nullptr)
            shortcuts_.insert(&control, bound);
        else if (!key.isNull())
            shortcuts_.insert(&control, Bind(control, key));
        if (same)
            continue;
        control.setProperty(kKeyProperty, key);
        control.update();
    }
    for (const QPointer<QShortcut>& gone : before)
        delete gone.data();
}

bool AccessKeys::eventFilter(QObject*, QEvent* event) {
    return GuardedAnswer(false, [&]() -> bool {
        // Before a key is looked up, since not each change inside a scrolling area is told here.
        if (event->type() == QEvent::Show || event->type() == QEvent::ShortcutOverride)
            Refresh();
        else if (event->type() == QEvent::LayoutRequest)
            RefreshLater();
        return false;
    });
}

// Of many changes in a row, such as those of a panel that is filled anew, one refresh comes.
void AccessKeys::RefreshLater() {
    if (std::exchange(refreshWaits_, true))
        return;
    Later(this, [this] {
        refreshWaits_ = false;
        Refresh();
    });
}

QChar AccessKeyOf(const QWidget& control) {
    return LetterIn(control, kKeyProperty);
}

void GiveAccessKeyLast(QWidget& control) {
    control.setProperty(kLastProperty, true);
}

void LeadByAccessKey(QWidget& control, QWidget& target) {
    control.setProperty(kTargetProperty, QVariant::fromValue(&target));
}

qsizetype PlaceOfAccessKey(const QString& text, QChar key) {
    return key.isNull() ? -1 : text.indexOf(key, 0, Qt::CaseInsensitive);
}

QString WithAccessKey(const QString& text, QChar key) {
    const qsizetype place = PlaceOfAccessKey(text, key);
    return place < 0 ? text : QString(text).insert(place, u'&');
}

} // namespace lorvo
