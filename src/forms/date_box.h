#pragma once
// The date picker: a calendar, arrow keys, and typing in any spelling of a date.

#include "platform/values/date_text.h"

#include <QDateEdit>

namespace lorvo {

/// Typing is free. A date whose year is typed in full is taken at once; a shorter spelling when the
/// box is left, by Enter, or before an arrow key steps. As long as the text is no date the last
/// good one stands and a red frame says so; leaving such a text, Enter or Esc shows that date
/// again. Getting the focus selects all, so that what is typed replaces it. Typed over one part of
/// the date, a separator goes on to the next part.
class DateBox : public QDateEdit {
    Q_OBJECT
  public:
    DateBox(YearWindow window, QWidget* parent);

    /// Whether the text is no date in any spelling.
    bool IsDoubtful() const;

    void stepBy(int steps) override;
    QValidator::State validate(QString& text, int& position) const override;

  protected:
    QDateTime dateTimeFromText(const QString& text) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    DateOrder Order() const;
    bool IsTyping() const;
    [[nodiscard]] std::optional<QDate> WholeDate(const QString& text) const;
    std::optional<QDate> TypedDate() const;
    void TakeTyped();
    void ChoosePart(int index);
    void ConfirmTyped(QKeyEvent* event);
    void Type(QKeyEvent* event);
    bool GoesToNextPart(const QString& typed);
    void MakeRoom(const QString& typed);
    void SelectAllText();
    void FollowCursor(int from, int to);
    void TellMove(int from, int to);
    void NotePart(int from, int to);

    YearWindow window_;
    bool ownCursor_ = false; ///< the cursor moves by typing, which chooses no part of the date
    bool selectOnRelease_ = false;
};

} // namespace lorvo
