#pragma once
// A tool bar that can be gone through without a mouse.

#include <QPointer>
#include <QToolBar>

class QToolButton;

namespace lorvo {

/// F10 leads to the first button; Tab and the arrows lead along; Enter, Space and the down arrow
/// press a button or drop its menu down; Esc, like a menu that closes, leads back to where the
/// keyboard was before. A click of the mouse leaves the keyboard where it is.
class CommandToolBar : public QToolBar {
    Q_OBJECT
  public:
    CommandToolBar(const QString& name, QWidget* parent);
    ~CommandToolBar() override;

    /// Gives the keyboard back to what had it before the bar; nothing when the bar hasn't got it.
    void LeaveBar();

  protected:
    void actionEvent(QActionEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool PressKey(QToolButton& button, int key);
    void StepTo(QToolButton& from, int step);
    void Press(QToolButton& button);
    void DropDown(QToolButton& button);
    void EnterBar();
    void NoteFocus(QWidget* from, const QWidget* to);
    bool IsOnBar(const QWidget* widget) const { return widget && isAncestorOf(widget); }
    QList<QToolButton*> Buttons() const;

    QPointer<QWidget> before_; ///< had the keyboard before the bar
};

} // namespace lorvo
