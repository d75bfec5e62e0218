#pragma once
// Tells when the clerk has come back to the main window from another program.

#include <QObject>

class QWidget;
class QWindow;

namespace lorvo {

/// Windows of the program itself that open over the main one and close don't count, whatever the
/// window manager makes of the focus meanwhile.
class ReturnWatch : public QObject {
    Q_OBJECT
  public:
    /// `window` has been shown before and outlives the watch.
    explicit ReturnWatch(QWidget& window);

  Q_SIGNALS:
    void Returned();

  private:
    void FocusMoved(QWindow* focused);
    void StateChanged(Qt::ApplicationState state);

    QWidget& window_;
    bool windowHasFocus_ = false; ///< or had it last
    bool away_ = false;
};

} // namespace lorvo
