#pragma once
// What the panels of the main window are laid out with.

#include "office/cards/card_line.h"

#include <QLabel>
#include <QStringList>

class QLayout;

namespace lorvo {

class ElidedLink;
class PairsLayout;
class ReportList;

/// The widest captions in the sections of the dog panel, whose columns stand in line.
QStringList SectionCaptions();

/// Lets a label take the width that its place has: a long text is wrapped or cut there and never
/// widens the window.
void TakeGivenWidth(QLabel& label);

/// A panel's heading; `text` is the panel's accessible name too.
QLabel* PanelHeading(const QString& text, QWidget* panel);

/// Pairs of caption and value, several pairs side by side where there is room, all captions and all
/// values of a pair aligned. The values share what width the captions leave.
class ValueGrid {
  public:
    /// The captions of a pair get at least the width of its caption in `widestCaptions`.
    explicit ValueGrid(int pairs, const QStringList& widestCaptions = {});

    /// Puts the next pair below the one before it in column `pair`. A value without a name of its
    /// own is found by the caption.
    void Add(int pair, const QString& caption, QWidget* value);
    /// The same with a link, which is as wide as its own text and no wider.
    ElidedLink* AddLink(int pair, const QString& caption);
    /// The same with a bold label of that name (none when empty), which is returned.
    QLabel* AddText(int pair, const QString& caption, const QString& name = {});

    /// The same with a label that is always wide enough for its text: a number cut in the middle
    /// would be another number.
    QLabel* AddAmount(int pair, const QString& caption);

    /// Puts a row of controls below the last pair of column `pair`, across caption and value.
    void AddRow(int pair, QLayout* row);

    /// For a layout to take over; the grid must not be used after its layout is gone.
    QLayout* Layout() const;

  private:
    PairsLayout* pairs_;
};

/// Sets text and colour; without a colour the label has the window's own.
void ShowText(QLabel& label, const InkedText& text);

/// Makes the rows of a list those of a check list; rows of the same records stay and change.
void ShowLines(ReportList& list, const CheckLines& lines);

} // namespace lorvo
