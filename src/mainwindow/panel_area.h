#pragma once
// Room for panels that are higher than their place.

#include <QScrollArea>

namespace lorvo {

/// What fills an area and has no wish of its own beside the least it needs. The toolkit asks for
/// the wish with each change of the content, though the area gives all its width: to answer it
/// would mean to lay out every text in a width that it never has.
class AreaContent : public QWidget {
  public:
    using QWidget::QWidget;
    QSize sizeHint() const override { return minimumSizeHint(); }
};

/// Scrolls up and down alone: it is never narrower than its content and the scroll bar beside it.
/// The keyboard goes to what lies in it and takes it along.
class PanelArea : public QScrollArea {
    Q_OBJECT
  public:
    PanelArea(const QString& name, QWidget* parent);

    QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* event) override;

  private:
    /// Lets the layout around know when the content needs another width.
    void TellLeastWidth();

    int toldWidth_ = -1;
};

} // namespace lorvo
