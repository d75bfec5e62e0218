#include "forms/form.h"

#include "app/help.h"
#include "forms/access_keys.h"
#include "forms/box_hints.h"
#include "forms/form_settings.h"
#include "forms/label_edit_delegate.h"
#include "forms/one_line_box.h"
#include "forms/page_keys.h"
#include "forms/report_list.h"
#include "forms/scrolled_content.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"

#include <QAbstractSpinBox>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QShowEvent>
#include <QTabWidget>
#include <algorithm>
#include <vector>

namespace lorvo {

namespace {

/// The open windows, the one in front last.
std::vector<Form*>& OpenForms() {
    static std::vector<Form*> forms;
    return forms;
}

Activatable* mainWindowBelow = nullptr;

/// A place in the stack of open windows, given back however the window ends.
class OpenPlace {
  public:
    explicit OpenPlace(Form& form) { OpenForms().push_back(&form); }
    ~OpenPlace() { OpenForms().pop_back(); }
    OpenPlace(const OpenPlace&) = delete;
    OpenPlace& operator=(const OpenPlace&) = delete;
};

void ActivateWindowBelow() {
    if (!OpenForms().empty())
        OpenForms().back()->Activated();
    else if (mainWindowBelow)
        mainWindowBelow->Activate();
}

/// A list that is what its window shows is named as the window, unless it has a name of its own.
void NameLists(const Form& form) {
    for (ReportList* list : form.findChildren<ReportList*>())
        if (list->accessibleName().isEmpty())
            list->setAccessibleName(form.windowTitle());
}

/// Gives the keyboard back to the window below, which not every desktop does by itself.
void FocusWindowBelow(const Form& closed) {
    QWidget* below = closed.parentWidget() ? closed.parentWidget()->window() : nullptr;
    if (below && below->isVisible())
        below->activateWindow();
}

} // namespace

Form::Form(const char* name, const QString& caption, Border border, QWidget* parent)
    : QDialog(parent), border_(border) {
    setObjectName(QString::fromLatin1(name));
    setWindowTitle(caption);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMaximizeButtonHint, border == Border::Sizable);
    new AccessKeys(*this);
}

void Form::ShowModally() {
    unloaded_ = false;
    if (border_ == Border::Fixed && layout())
        layout()->setSizeConstraint(QLayout::SetFixedSize);
    LoadFormSettings(*this, border_ == Border::Fixed);
    LimitTypedTexts();
    NameLists(*this);
    for (QTabWidget* pages : findChildren<QTabWidget*>())
        ChangePagesByKeys(*pages);
    Load();
    RethrowFailure();
    if (unloaded_)
        return;
    Activated();
    RethrowFailure();
    if (unloaded_)
        return;
    FitToScreen();
    exec();
}

void Form::LimitTypedTexts() {
    const int unlimited = QLineEdit().maxLength();
    for (QLineEdit* box : findChildren<QLineEdit*>()) {
        if (box->maxLength() == unlimited)
            box->setMaxLength(LongestTypedText());
        TellItsLimit(*box);
        if (!qobject_cast<QAbstractSpinBox*>(box->parent())) // these read what was typed themselves
            KeepOnOneLine(*box);
    }
}

void Form::ShowBeginnings() {
    for (QLineEdit* box : findChildren<QLineEdit*>())
        if (!box->hasFocus() && !box->hasSelectedText())
            box->home(false);
}

void Form::FitToScreen() {
    const QSize largest = LargestSize(*this);
    const QSize needed = border_ == Border::Fixed ? sizeHint() : minimumSizeHint();
    if (needed.boundedTo(largest) != needed) {
        ScrollContent(*this);
        setMinimumSize(minimumSize().boundedTo(largest));
        if (border_ == Border::Fixed) {
            layout()->setSizeConstraint(QLayout::SetDefaultConstraint);
            setFixedSize(sizeHint().boundedTo(largest));
        }
    }
    if (border_ != Border::Sizable)
        return;
    const QSize asked = testAttribute(Qt::WA_Resized) ? size() : sizeHint();
    resize(asked.boundedTo(largest));
    // What the screen has no room for was no widening.
    widening_ = std::max(0, widening_ - (asked.width() - width()));
}

void Form::keyPressEvent(QKeyEvent* event) {
    Guarded([&] {
        if (event->key() == Qt::Key_F1)
            OpenHelpOn(objectName());
        else
            QDialog::keyPressEvent(event);
    });
}

WaitCursor Form::Waiting() {
    return WaitCursor(*ThePlatform().ui);
}

void Form::WidenBy(int pixels) {
    widening_ += pixels;
    resize(width() + pixels, height());
}

void Form::showEvent(QShowEvent* event) {
    // The toolkit places the window by the size that it has only now.
    QDialog::showEvent(event);
    if (!event->spontaneous())
        Guarded([this] {
            RestorePlace(*this);
            Later(this, [this] { ShowBeginnings(); });
        });
}

void Form::done(int result) {
    Guarded([&] {
        if (unloaded_)
            return QDialog::done(result);
        // An edit in place ends by loss of focus, which a window closed by its frame wouldn't see.
        EndLabelEdits(*this);
        if (!QueryUnload())
            return;
        unloaded_ = true;
        SaveFormSettings(*this, widening_);
        QDialog::done(result);
    });
}

void SetActivatedBelow(Activatable* mainWindow) {
    mainWindowBelow = mainWindow;
}

void OpenModal(Form& form) {
    {
        const OpenPlace place(form);
        form.ShowModally();
    }
    form.hide();
    RethrowFailure();
    FocusWindowBelow(form);
    ActivateWindowBelow();
}

bool IsModalOpen() {
    return !OpenForms().empty();
}

} // namespace lorvo
