#include "dogs/totals_bar.h"

#include "forms/controls.h"
#include "forms/wrapped_label.h"

#include <QRegularExpression>
#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const QChar kNoBreak(QChar::Nbsp);

/// Nothing but a number stays in one piece.
QString WithWholeNumbers(QString text) {
    static const QRegularExpression within(u"(?<=\\d) (?=\\d)|(?<=,\\d\\d) "_s);
    return text.replace(within, kNoBreak);
}

/// What stands between two commas stays in one piece.
QString WithWholeFigures(QString text) {
    static const QRegularExpression within(u"(?<!,) "_s);
    return text.replace(within, kNoBreak);
}

/// On one line where there is room; a narrow window shows every figure on more lines.
class FiguresLabel : public WrappedLabel {
  public:
    FiguresLabel(const QString& accessibleName, QWidget* parent) : WrappedLabel(parent) {
        setAccessibleName(accessibleName);
    }

    QSize sizeHint() const override {
        const int line = fontMetrics().horizontalAdvance(text()) + 2 * kMargin;
        return {std::max(line, minimumSizeHint().width()), fontMetrics().lineSpacing()};
    }
    QSize minimumSizeHint() const override {
        return {WidestPiece(WithWholeNumbers(text())), fontMetrics().lineSpacing()};
    }

  protected:
    QString Breakable(int width) const override {
        if (fontMetrics().horizontalAdvance(text()) <= width)
            return text();
        const QString figures = WithWholeFigures(text());
        return WidestPiece(figures) <= width ? figures : WithWholeNumbers(text());
    }

  private:
    int WidestPiece(const QString& text) const {
        int widest = 0;
        for (const QString& piece : text.split(u' '))
            widest = std::max(widest, fontMetrics().horizontalAdvance(piece));
        return widest + kMargin;
    }
    static constexpr int kMargin = 4;
};

} // namespace

TotalsBar::TotalsBar(const char* name, QWidget* parent)
    : QStatusBar(parent), panels_{new FiguresLabel(u"Počet"_s, this),
                                  new FiguresLabel(u"Součty"_s, this)} {
    setObjectName(QString::fromLatin1(name));
    for (int index = 0; index < static_cast<int>(panels_.size()); ++index) {
        QLabel* panel = panels_.at(static_cast<size_t>(index));
        addWidget(Named(panel, ElementName(name, index + 1)), index);
    }
}

void TotalsBar::SetPanel(int number, const QString& text) {
    panels_.at(static_cast<size_t>(number - 1))->setText(text);
}

} // namespace lorvo
