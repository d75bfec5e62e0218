#include "reports/text_line_boxes.h"

#include "forms/controls.h"

#include <QPlainTextEdit>

namespace lorvo {

namespace {

/// Average characters that a line of a box shows; a text of some words needs a little more.
constexpr int kLineLength = 80;
constexpr int kWordedLineLength = 62;

} // namespace

TextLineBoxes::TextLineBoxes(QWidget* parent) : QWidget(parent), layout_(new QFormLayout(this)) {
    layout_->setContentsMargins({});
}

void TextLineBoxes::Add(const QString& label, const QString& text) {
    const auto index = static_cast<int>(readers_.size());
    QWidget* box = text.size() > kLineLength ? AddParagraph(text) : AddLine(text);
    Named(box, ElementName("txtLine", index));
    box->setMinimumWidth(fontMetrics().averageCharWidth() * kLineLength);
    layout_->addRow(CaptionFor(box, label, this), box);
}

QWidget* TextLineBoxes::AddLine(const QString& text) {
    auto* box = new QLineEdit(text, this);
    box->setCursorPosition(0);
    readers_.push_back([box] { return box->text(); });
    return box;
}

QWidget* TextLineBoxes::AddParagraph(const QString& text) {
    auto* box = new QPlainTextEdit(text, this);
    const auto lines = static_cast<int>(text.size()) / kWordedLineLength + 1;
    const int frame = box->frameWidth() + static_cast<int>(box->document()->documentMargin());
    box->setFixedHeight(box->fontMetrics().lineSpacing() * lines + 2 * frame);
    box->setTabChangesFocus(true);
    readers_.push_back([box] { return box->toPlainText(); });
    return box;
}

QString TextLineBoxes::Text(int index) const {
    return readers_.at(static_cast<std::size_t>(index))();
}

QStringList TextLineBoxes::Texts() const {
    QStringList texts;
    for (const auto& read : readers_)
        texts << read();
    return texts;
}

} // namespace lorvo
