#include "dogs/totals_bar.h"

#include "forms/controls.h"

#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// On one line where there is room; a narrow window shows every figure on more lines.
class FiguresLabel : public QLabel {
  public:
    FiguresLabel(const QString& accessibleName, QWidget* parent) : QLabel(parent) {
        setAccessibleName(accessibleName);
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
    }

    QSize sizeHint() const override {
        const int line = fontMetrics().horizontalAdvance(text()) + 2 * kMargin;
        return {std::max(line, minimumSizeHint().width()), QLabel::heightForWidth(line)};
    }

  private:
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
