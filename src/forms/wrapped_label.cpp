#include "forms/wrapped_label.h"

#include <QStylePainter>
#include <QTextLayout>

namespace lorvo {

namespace {

/// The text with a line break wherever its place ends.
QString BrokenText(const QLabel& label, int width) {
    const QString text = label.text();
    QTextLayout layout(text, label.font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QString broken;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        if (line.textStart() > 0)
            broken += u'\n';
        broken += QStringView(text).mid(line.textStart(), line.textLength());
    }
    layout.endLayout();
    return broken;
}

} // namespace

WrappedLabel::WrappedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

bool WrappedLabel::HasWordWiderThan(int width) const {
    return width > 0 && minimumSizeHint().width() > width;
}

int WrappedLabel::heightForWidth(int width) const {
    if (!HasWordWiderThan(width))
        return QLabel::heightForWidth(width);
    const auto lines = static_cast<int>(BrokenText(*this, width).count(u'\n')) + 1;
    return lines * fontMetrics().lineSpacing();
}

void WrappedLabel::paintEvent(QPaintEvent* event) {
    if (!HasWordWiderThan(width()))
        return QLabel::paintEvent(event);
    QStylePainter painter(this);
    painter.drawItemText(rect(), static_cast<int>(alignment()), palette(), isEnabled(),
                         BrokenText(*this, width()), foregroundRole());
}

} // namespace lorvo
