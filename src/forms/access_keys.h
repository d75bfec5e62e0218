#pragma once
// Letters that together with Alt press a button or lead to a field. They are underlined in the
// window but are no part of the texts, which stay as they are for whoever reads them.

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QShortcut>
#include <QString>
#include <vector>

class QWidget;

namespace lorvo {

/// Gives every button and every caption of a field in a window a letter of its text that no other
/// one shown with it has, and keeps to that as texts and visibility change. A letter acts at once:
/// a button is pressed without the toolkit's pause, in which typed letters would go astray.
class AccessKeys : public QObject {
    Q_OBJECT
  public:
    /// Lives as long as the window.
    explicit AccessKeys(QWidget& window);

    /// Looks at the window again; done by itself after its layout changes and before a key counts.
    void Refresh();

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Seen {
        const QWidget* control;
        QString text;
        QChar wish;
        bool operator==(const Seen&) const = default;
    };

    void RefreshLater();
    void Give(const QList<QWidget*>& controls, const std::vector<QChar>& keys);

    QWidget& window_;
    bool refreshWaits_ = false;
    std::vector<Seen> seen_;
    /// Each goes with its control.
    using Shortcuts = QHash<const QWidget*, QPointer<QShortcut>>;
    Shortcuts shortcuts_;
};

/// The letter that leads to the control, a null character for none.
QChar AccessKeyOf(const QWidget& control);
/// The control bears a user's text: commands are given their letters before it, and keep them
/// whatever the text is.
void GiveAccessKeyLast(QWidget& control);
/// The control's letter leads the keyboard to the target instead of pressing the control, as long
/// as the target is in sight.
void LeadByAccessKey(QWidget& control, QWidget& target);
/// Where in the text the letter is marked; -1 for nowhere.
qsizetype PlaceOfAccessKey(const QString& text, QChar key);
/// The text with an ampersand before the letter, for whoever draws it.
QString WithAccessKey(const QString& text, QChar key);

} // namespace lorvo
