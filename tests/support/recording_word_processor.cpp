#include "support/recording_word_processor.h"

#include <cmath>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

QString LengthText(double length) {
    return QString::number(std::round(length * 100) / 100, 'g', 10);
}

QString Quoted(QString text) {
    text.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s).replace(u'\t', u"\\t"_s);
    text.replace(u'\r', u"\\r"_s).replace(u'\n', u"\\n"_s);
    return u'"' + text + u'"';
}

QString SwitchText(FontSwitch value) {
    switch (value) {
    case FontSwitch::Off:
        return u"Off"_s;
    case FontSwitch::On:
        return u"On"_s;
    case FontSwitch::Toggle:
        break;
    }
    return u"Toggle"_s;
}

QString AlignmentText(ParagraphAlignment alignment) {
    switch (alignment) {
    case ParagraphAlignment::Left:
        return u"Left"_s;
    case ParagraphAlignment::Center:
        return u"Center"_s;
    case ParagraphAlignment::Right:
        break;
    }
    return u"Right"_s;
}

class RecordingWordProcessor final : public WordProcessor {
  public:
    RecordingWordProcessor(QStringList& operations, QString title,
                           RecordingWordProcessors::Show show)
        : operations_(operations), title_(std::move(title)), show_(std::move(show)) {}

    void SetOrientation(PageOrientation orientation) override {
        const bool portrait = orientation == PageOrientation::Portrait;
        Note(u"SetOrientation"_s, portrait ? u"Portrait"_s : u"Landscape"_s);
    }
    void SetPageSize(double width, double height) override {
        Note(u"SetPageSize"_s, LengthText(width) + u' ' + LengthText(height));
    }
    void SetTopMargin(double length) override { Note(u"SetTopMargin"_s, LengthText(length)); }
    void SetBottomMargin(double length) override { Note(u"SetBottomMargin"_s, LengthText(length)); }
    void SetLeftMargin(double length) override { Note(u"SetLeftMargin"_s, LengthText(length)); }
    void SetRightMargin(double length) override { Note(u"SetRightMargin"_s, LengthText(length)); }
    void SetGutter(double length) override { Note(u"SetGutter"_s, LengthText(length)); }
    void SetHeaderDistance(double length) override {
        Note(u"SetHeaderDistance"_s, LengthText(length));
    }
    void SetFooterDistance(double length) override {
        Note(u"SetFooterDistance"_s, LengthText(length));
    }
    void AddTextColumn(double width, double spacing) override {
        Note(u"AddTextColumn"_s, LengthText(width) + u' ' + LengthText(spacing));
    }

    void SetFontName(const QString& name) override { Note(u"SetFontName"_s, Quoted(name)); }
    void SetFontSize(double points) override { Note(u"SetFontSize"_s, LengthText(points)); }
    void SetBold(FontSwitch value) override { Note(u"SetBold"_s, SwitchText(value)); }
    void SetItalic(bool on) override { Note(u"SetItalic"_s, on ? u"On"_s : u"Off"_s); }
    void SetUnderline(bool on) override { Note(u"SetUnderline"_s, on ? u"On"_s : u"Off"_s); }

    void SetAlignment(ParagraphAlignment alignment) override {
        Note(u"SetAlignment"_s, AlignmentText(alignment));
    }
    void SetLeftIndent(double points) override { Note(u"SetLeftIndent"_s, LengthText(points)); }
    void SetFirstLineIndent(double points) override {
        Note(u"SetFirstLineIndent"_s, LengthText(points));
    }
    void AddTabStop(double position) override { Note(u"AddTabStop"_s, LengthText(position)); }
    void ClearTabStop(double position) override { Note(u"ClearTabStop"_s, LengthText(position)); }

    void TypeText(const QString& text) override { Note(u"TypeText"_s, Quoted(text)); }
    void TypeParagraph() override { Note(u"TypeParagraph"_s); }
    void SetSelectionText(const QString& text) override {
        Note(u"SetSelectionText"_s, Quoted(text));
    }
    void InsertPageBreak() override { Note(u"InsertPageBreak"_s); }

    void SetKeepWithNext(bool) override {}
    void KeepSheetsWhole() override {}
    void ExpectLines(double, const std::vector<double>&) override {}

    void HomeKeyStory() override { Note(u"HomeKeyStory"_s); }
    void EndKeyStory() override { Note(u"EndKeyStory"_s); }
    void WholeStory() override { Note(u"WholeStory"_s); }

    void SetPrintView() override { Note(u"SetPrintView"_s); }
    void SetZoomWholePage() override { Note(u"SetZoomWholePage"_s); }
    ShownDocument Show() override {
        Note(u"Show"_s);
        return show_(title_);
    }

  private:
    void Note(const QString& operation, const QString& arguments = {}) {
        operations_ << (arguments.isEmpty() ? operation : operation + u' ' + arguments);
    }

    QStringList& operations_;
    const QString title_;
    RecordingWordProcessors::Show show_;
};

} // namespace

std::unique_ptr<WordProcessor> RecordingWordProcessors::Create(const QString& title) {
    return std::make_unique<RecordingWordProcessor>(operations_, title, show_);
}

} // namespace lorvo::test
