#include "platform/docx/docx_composer.h"

#include "platform/docx/docx_fit.h"
#include "platform/values/errors.h"
#include "platform/whole_file.h"

namespace lorvo::docx {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void Fail(const QString& message) {
    throw PlatformError(message.toStdString());
}

/// Cuts the first line from the front of a text, and says whether a line break (CR LF, CR or LF)
/// ended it.
QStringView TakeLine(QStringView& text, bool& ended) {
    qsizetype end = 0;
    while (end < text.size() && text[end] != u'\r' && text[end] != u'\n')
        ++end;
    const QStringView line = text.first(end);
    ended = end < text.size();
    const bool pair = ended && text.sliced(end).startsWith(u"\r\n");
    text = text.sliced(ended ? end + (pair ? 2 : 1) : end);
    return line;
}

} // namespace

void Composer::TypeText(const QString& text) {
    RequireEnd();
    selection_.clear();
    TypeLines(text);
}

void Composer::TypeParagraph() {
    RequireEnd();
    selection_.clear();
    EndParagraph(ParagraphEnd::Mark);
}

void Composer::SetSelectionText(const QString& text) {
    RequireEnd();
    selection_ = text;
}

void Composer::InsertPageBreak() {
    RequireEnd();
    selection_.clear();
    EndParagraph(ParagraphEnd::PageBreak);
}

void Composer::ExpectLines(double width, const std::vector<double>& tabStops) {
    lines_.emplace(LineRoom{TwipsFromPoints(width), {}});
    for (const double position : tabStops)
        lines_->tabStops.insert(TwipsFromPoints(position));
}

ShownDocument Composer::Show() {
    TypeSelection();
    EndParagraph(ParagraphEnd::Mark);
    WriteSheet();
    page_.Write(body_.Xml());
    QString path;
    body_.Finish([&](const QByteArray& body) {
        path = WriteNewFile(folder_, FileStem(), u"docx"_s,
                            PackDocument(title_, body, styles_, view_));
    });
    return {path, opener_.OpenFile(path)};
}

/// "Katalog 2027-05-14 08.31": names in a folder sort by paper and time.
QString Composer::FileStem() const {
    const QString now = QString::fromStdString(clock_.Now().ToIso());
    return title_ + u' ' + now.first(10) + u' ' + now.mid(11, 5).replace(u':', u'.');
}

void Composer::MoveTo(Place place) {
    TypeSelection();
    WriteSheet();
    place_ = place;
}

void Composer::RequireEnd() const {
    if (place_ != Place::End)
        Fail(u"Dokument lze psát jen na jeho konci."_s);
}

void Composer::Switch(bool RunFormat::*property, bool on) {
    if (place_ == Place::Whole) {
        styles_.SwitchAll(property, on);
        for (Run& run : paragraph_.runs)
            run.format.*property = on;
    } else {
        RequireEnd();
    }
    font_.*property = on;
}

void Composer::TypeSelection() {
    TypeLines(selection_);
    selection_.clear();
}

void Composer::TypeLines(QStringView text) {
    for (bool ended = true; ended;) {
        paragraph_.Append(TakeLine(text, ended), font_);
        if (ended)
            EndParagraph(ParagraphEnd::Mark);
    }
}

void Composer::EndParagraph(ParagraphEnd end) {
    paragraph_.format = format_;
    paragraph_.format.lineHeight = LineHeight(paragraph_.LargestHalfPoints());
    paragraph_.mark = font_;
    paragraph_.end = end;
    if (sheetsStayWhole_) {
        sheet_.push_back(std::exchange(paragraph_, {}));
        if (end == ParagraphEnd::PageBreak)
            WriteSheet();
        return;
    }
    FitParagraph(paragraph_, Lines());
    WriteParagraph(body_.Xml(), styles_, paragraph_);
    paragraph_.Clear();
}

const LineRoom& Composer::Lines() {
    if (lines_)
        return *lines_;
    pageLines_.width = page_.TextWidth();
    return pageLines_;
}

void Composer::WriteSheet() {
    FitSheet(sheet_, Lines(), page_.TextHeight());
    for (const Paragraph& paragraph : sheet_)
        WriteParagraph(body_.Xml(), styles_, paragraph);
    sheet_.clear();
}

/// Letters of one size in the whole text stand in lines of one height.
void Composer::SetAllLineHeights() {
    styles_.ChangeAllParagraphs(
        [this](ParagraphFormat& format) { format.lineHeight = LineHeight(font_.halfPoints); });
}

} // namespace lorvo::docx
