#pragma once
// A section of a panel: a frame whose header opens and collapses it.

#include "mainwindow/told_needs.h"

#include <QFrame>

class QToolButton;

namespace lorvo {

/// The frame stands in a vertical layout and opens to at least so many layout units, or to what its
/// content needs. A layout unit is a twentieth of a point at the panel's design font and grows with
/// the font in use.
class CollapsibleFrame : public QFrame {
    Q_OBJECT
  public:
    /// What becomes of height that is left over below the sections.
    enum class Growth { Fixed, TakesRest };

    CollapsibleFrame(const char* name, const QString& title, int openUnits, Growth growth,
                     QWidget* parent);

    /// The widget below the header that takes the section's layout.
    QWidget* Content() const { return content_; }
    /// The letter of the header leads to this control of the content; where the section is
    /// collapsed it opens it.
    void SetFirstControl(QWidget& control);
    /// Collapses or opens in steps, each of them painted, before it returns.
    void Toggle();

    /// Pixels of a length in layout units in the font of `widget`.
    static int Pixels(const QWidget& widget, int units);

    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

  private:
    int HeaderHeight() const;
    int OpenHeight(int contentHeight) const;
    void StepTo(int target);
    void ShowHeight(int height);
    void PlaceContent();

    const int openUnits_;
    const Growth growth_;
    QToolButton* header_;
    QWidget* content_;
    bool collapsed_ = false;
    ToldNeeds told_;
};

} // namespace lorvo
