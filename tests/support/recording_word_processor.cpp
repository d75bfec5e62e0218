#include "support/recording_word_processor.h"

#include <cmath>

namespace lorvo::test {

namespace {

QString LengthText(double length) {
    return QString::number(std::round(length * 100) / 100, 'g', 10);
}

QString Quoted(QString text) {
    text.replace(u'\\', u"\\\\"_qs).replace(u'"', u"\\\""_qs).replace(u'\t', u"\\t"_qs);
    text.replace(u'\r', u"\\r"_qs).replace(u'\n', u"\\n"_qs);
    return u'"' + text + u'"';
}

QString SwitchText(FontSwitch value) {
    switch (value) {
    case FontSwitch::Off:
        return u"Off"_qs;
    case FontSwitch::On:
        return u"On"_qs;
    case FontSwitch::Toggle:
        break;
    }
    return u"Toggle"_qs;
}

QString AlignmentText(ParagraphAlignment alignment) {
    switch (alignment) {
    case ParagraphAlignment::Left:
        return u"Left"_qs;
    case ParagraphAlignment::Center:
        return u"Center"_qs;
    case ParagraphAlignment::Right:
        break;
    }
    return u"Right"_qs;
}

class RecordingWordProcessor final : public WordProcessor {
  public:
    RecordingWordProcessor(QStringList& operations, QString title,
                           RecordingWordProcessors::Show show)
        : operations_(operations), title_(std::move(title)), show_(std::move(show)) {}

    void SetOrientation(PageOrientation orientation) override {
        const bool portrait = orientation == PageOrientation::Portrait;
        Note(u"SetOrientation"_qs, portrait ? u"Portrait"_qs : u"Landscape"_qs);
    }
    void SetPageSize(double width, double height) override {
        Note(u"SetPageSize"_qs, LengthText(width) + u' ' + LengthText(height));
    }
    void SetTopMargin(double length) override { Note(u"SetTopMargin"_qs, LengthText(length)); }
    void SetBottomMargin(double length) override {
        Note(u"SetBottomMargin"_qs, LengthText(length));
    }
    void SetLeftMargin(double length) override { Note(u"SetLeftMargin"_qs, LengthText(length)); }
    void SetRightMargin(double length) override { Note(u"SetRightMargin"_qs, LengthText(length)); }
    void SetGutter(double length) override { Note(u"SetGutter"_qs, LengthText(length)); }
    void SetHeaderDistance(double length) override {
        Note(u"SetHeaderDistance"_qs, LengthText(length));
    }
    void SetFooterDistance(double length) override {
        Note(u"SetFooterDistance"_qs, LengthText(length));
    }
    void AddTextColumn(double width, double spacing) override {
        Note(u"AddTextColumn"_qs, LengthText(width) + u' ' + LengthText(spacing));
    }

    void SetFontName(const QString& name) override { Note(u"SetFontName"_qs, Quoted(name)); }
    void SetFontSize(double points) override { Note(u"SetFontSize"_qs, LengthText(points)); }
    void SetBold(FontSwitch value) override { Note(u"SetBold"_qs, SwitchText(value)); }
    void SetItalic(bool on) override { Note(u"SetItalic"_qs, on ? u"On"_qs : u"Off"_qs); }
    void SetUnderline(bool on) override { Note(u"SetUnderline"_qs, on ? u"On"_qs : u"Off"_qs); }

    void SetAlignment(ParagraphAlignment alignment) override {
        Note(u"SetAlignment"_qs, AlignmentText(alignment));
    }
    void SetLeftIndent(double points) override { Note(u"SetLeftIndent"_qs, LengthText(points)); }
    void SetFirstLineIndent(double points) override {
        Note(u"SetFirstLineIndent"_qs, LengthText(points));
    }
    void AddTabStop(double position) override { Note(u"AddTabStop"_qs, LengthText(position)); }
    void ClearTabStop(double position) override { Note(u"ClearTabStop"_qs, LengthText(position)); }

    void TypeText(const QString& text) override { Note(u"TypeText"_qs, Quoted(text)); }
    void TypeParagraph() override { Note(u"TypeParagraph"_qs); }
    void SetSelectionText(const QString& text) override {
        Note(u"SetSelectionText"_qs, Quoted(text));
    }
    void InsertPageBreak() override { Note(u"InsertPageBreak"_qs); }

    void SetKeepWithNext(bool) override {}
    void KeepSheetsWhole() override {}
    void ExpectLines(double, const std::vector<double>&) override {}

    void HomeKeyStory() override { Note(u"HomeKeyStory"_qs); }
    void EndKeyStory() override { Note(u"EndKeyStory"_qs); }
    void WholeStory() override { Note(u"WholeStory"_qs); }

    void SetPrintView() override { Note(u"SetPrintView"_qs); }
    void SetZoomWholePage() override { Note(u"SetZoomWholePage"_qs); }
    ShownDocument Show() override {
        Note(u"Show"_qs);
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
