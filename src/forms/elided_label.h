#pragma once
// Texts of users on little room.

#include <QLabel>

namespace lorvo {

/// A text as a tool tip that shows it as it is, whatever signs it holds.
QString PlainToolTip(const QString& text);

/// Draws the frame that says that the keyboard is here, around a widget that has it.
void PaintFocusFrame(QWidget& widget);

/// How a label of plain text on one line gets on with a place that is too narrow: it ends in an
/// ellipsis there and has the whole text as its tool tip, in place of the one that it was given.
class Ellipsis {
  public:
    /// To be called from the label's paintEvent. False when the text isn't cut; the label then
    /// paints itself. The frame of the keyboard's place belongs to it.
    bool Paint(QLabel& label);

    /// The least size of a label of that size, whose text may be cut.
    static QSize LeastSize(const QLabel& label, QSize uncut);

  private:
    void TellWhole(QLabel& label, bool cut);

    QString givenToolTip_;
    bool cut_ = false;
};

/// A label of any kind with an Ellipsis.
template<class Label> class Elided : public Label {
  public:
    using Label::Label;

    QSize minimumSizeHint() const override {
        return Ellipsis::LeastSize(*this, Label::minimumSizeHint());
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        if (!ellipsis_.Paint(*this))
            Label::paintEvent(event);
    }

  private:
    Ellipsis ellipsis_;
};

class ElidedLabel : public Elided<QLabel> {
    Q_OBJECT
  public:
    explicit ElidedLabel(QWidget* parent);
};

} // namespace lorvo
