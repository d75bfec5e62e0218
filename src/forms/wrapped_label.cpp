#include "forms/wrapped_label.h"

#include <QStylePainter>
#include <QTextLayout>

namespace lorvo {

WrappedLabel::WrappedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

QString WrappedLabel::Breakable(int) const {
    return text();
}

/// Whether the label takes the width that it is given, and that is enough.
bool WrappedLabel::IsAtEase() const {
    return sizePolicy().horizontalPolicy() == QSizePolicy::Ignored && Fits(width());
}

QSize WrappedLabel::sizeHint() const {
    return IsAtEase() ? line_.Of(*this) : QLabel::sizeHint();
}

QSize WrappedLabel::minimumSizeHint() const {
    return IsAtEase() ? line_.Of(*this) : QLabel::minimumSizeHint();
}

bool WrappedLabel::BreaksItself(int width) const {
    const bool hasLongWord = !Fits(width) && QLabel::minimumSizeHint().width() > width;
    return width > 0 && (hasLongWord || Breakable(width) != text());
}

/// The text with a line break wherever its place ends.
QString WrappedLabel::Broken(int width) const {
    const QString whole = Breakable(width);
    QTextLayout layout(whole, font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QString broken;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        if (line.textStart() > 0)
            broken += u'\n';
        broken += QStringView(whole).mid(line.textStart(), line.textLength());
    }
    layout.endLayout();
    return broken;
}

int WrappedLabel::heightForWidth(int width) const {
    if (!BreaksItself(width))
        return Fits(width) ? line_.Of(*this).height() : QLabel::heightForWidth(width);
    const auto lines = static_cast<int>(Broken(width).count(u'\n')) + 1;
    return lines * fontMetrics().lineSpacing();
}

void WrappedLabel::paintEvent(QPaintEvent* event) {
    if (!BreaksItself(width()))
        return QLabel::paintEvent(event);
    QStylePainter painter(this);
    painter.drawItemText(rect(), static_cast<int>(alignment()), palette(), isEnabled(),
                         Broken(width()), foregroundRole());
}

} // namespace lorvo
