#pragma once
// Texts of users on as many lines as they need.

#include "forms/one_line.h"

namespace lorvo {

/// A label of plain text that breaks between words, and within a word that is wider than the place,
/// so that every letter of it is seen. The text itself stays as it is. The label has no frame,
/// margin or indent.
class WrappedLabel : public QLabel {
    Q_OBJECT
  public:
    explicit WrappedLabel(QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

    /// The text with no-break spaces where it mustn't be broken in a place of that width.
    virtual QString Breakable(int width) const;

  private:
    bool Fits(int width) const { return line_.Of(*this).width() <= width; }
    bool IsAtEase() const;
    bool BreaksItself(int width) const;
    QString Broken(int width) const;

    OneLine line_;
};

} // namespace lorvo
