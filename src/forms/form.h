#pragma once
// What every window but the main one is made of.

#include "platform/user_interface.h"
#include "store/text_width.h"

#include <QDialog>

namespace lorvo {

/// A modal window: named as its class, its layout restored when it is shown first and stored when
/// it closes. A subclass builds its controls in the constructor, fills them in Load and refills in
/// Activated what must be fresh each time the window comes back to the front.
class Form : public QDialog {
    Q_OBJECT
  public:
    enum class Border { Sizable, Fixed };

    Form(const char* name, const QString& caption, Border border, QWidget* parent);

    /// Run by OpenModal after a window that was opened over this one has closed, and once when this
    /// one has been opened, after Load.
    virtual void Activated() {}

  protected:
    /// Fills the window; runs once, before it is shown. The layout has been restored.
    virtual void Load() {}
    /// Runs when the window is about to close by whatever road, before its layout is stored. False
    /// keeps it open.
    virtual bool QueryUnload() { return true; }

    /// How many characters the window's boxes take where they set no limit of their own: what a
    /// text field of the store takes. A window whose texts go elsewhere may take more.
    virtual int LongestTypedText() const { return kLongestText; }

    /// The wait cursor, for as long as the answer lives.
    [[nodiscard]] static WaitCursor Waiting();

    /// Makes the window wider for what it shows this time; the widening isn't stored.
    void WidenBy(int pixels);

    /// F1 opens the window's page of the help.
    void keyPressEvent(QKeyEvent* event) override;

    /// Every road out of the window (button, close box, Esc) ends here.
    void done(int result) override;
    void showEvent(QShowEvent* event) override;

  private:
    friend void OpenModal(Form& form);
    void ShowModally();
    void FitToScreen();
    void LimitTypedTexts();
    /// Of texts that are longer than their boxes, but for the one that has the keyboard.
    void ShowBeginnings();
    Border border_;
    int widening_ = 0;
    bool unloaded_ = false;
};

/// What the window below is told when a modal one over it has closed.
class Activatable {
  public:
    virtual ~Activatable() = default;
    virtual void Activate() = 0;
};
/// Names the window that is told when the last modal window has closed: the main one.
void SetActivatedBelow(Activatable* mainWindow);

/// The one way to open a window: shows it modally over the one that is open, and when it has closed
/// lets the window below know exactly once, with or without a window manager. A failure inside the
/// window closes it and goes up from here.
void OpenModal(Form& form);
/// Whether any modal window is open.
bool IsModalOpen();

} // namespace lorvo
