#pragma once
// The panel "O programu": what the program is, its version, who made it.

#include <QWidget>

class QLabel;

namespace lorvo {

class LinkLabel;

class AboutPanel : public QWidget {
    Q_OBJECT
  public:
    explicit AboutPanel(QWidget* parent);

    /// Fills in the program's name and version.
    void ShowVersion();

  Q_SIGNALS:
    /// The mouse is over the author's name.
    void MailAddressShown(const QString& address);
    /// The mouse has left it.
    void MailAddressHidden();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void LayOut();
    void WriteToAuthor();

    QLabel* imgBkg;
    QLabel* lbl_About;
    QLabel* lbl_Ver;
    QLabel* lbl_copyright;
    LinkLabel* lbl_Mailto;
    QLabel* Label9;
};

} // namespace lorvo
