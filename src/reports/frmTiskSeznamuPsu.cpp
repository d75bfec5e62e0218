#include "reports/frmTiskSeznamuPsu.h"

#include "forms/controls.h"
#include "platform/failure_guard.h"

#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

ExportTraits DogListTraits() {
    return {
        .name = "frmTiskSeznamuPsu",
        .caption = u"Export seznamu psů"_s,
        .title = u"Export seznamu psů"_s,
        .startCaption = u"Start"_s,
        .closeCaption = u"Zavřít"_s,
        .paper = u"Seznam psů"_s,
        .templateFile = u"Šablony/Seznam psů.html"_s,
        .outputFile = u"Šablony/Výstup.html"_s,
        .closesAfterTemplate = true,
        .closesAfterDocument = true,
        .stopEnablesClosing = false,
        .progressText = u" - Generuji: "_s,
    };
}

struct SortKeyOption {
    const char16_t* caption;
    DogGrouping grouping;
};

constexpr std::array<SortKeyOption, 4> kOptions = {{
    {u"Plemene", DogGrouping::ByBreed},
    {u"Pohlaví", DogGrouping::BySex},
    {u"Majitele", DogGrouping::ByOwner},
    {u"Třídy", DogGrouping::ByClass},
}};

} // namespace

frmTiskSeznamuPsu::frmTiskSeznamuPsu(QWidget* parent) : ExportWindow(DogListTraits(), parent) {
    LayOut(MakeOptions());
}

QGroupBox* frmTiskSeznamuPsu::MakeOptions() {
    auto* options = new QGroupBox(u"Seskupit podle "_s, this);
    auto* layout = new QVBoxLayout(options);
    for (std::size_t i = 0; i < kOptions.size(); ++i) {
        const SortKeyOption& option = kOptions[i];
        optSortKey[i] = Named(new QRadioButton(QString::fromUtf16(option.caption), options),
                              ElementName("optSortKey", static_cast<int>(i)));
        optSortKey[i]->setChecked(option.grouping == SortKey);
        layout->addWidget(optSortKey[i], 0, Qt::AlignLeft);
        Connect(optSortKey[i], &QRadioButton::clicked, this,
                [this, grouping = option.grouping] { SortKey = grouping; });
    }
    return options;
}

void frmTiskSeznamuPsu::TypeDocument(WordProcessor& word) {
    TypeDogList(word, SortKey, *this);
}

void frmTiskSeznamuPsu::RunTemplate() {
    const WaitCursor wait = Waiting();
    const ReportTemplate pattern = ReadTemplate(TemplateKind::GroupedRows);
    const QByteArray output = CheckTemplate(pattern) ? MakeOutput(pattern) : QByteArray();
    if (!IsStopped())
        WriteAndOpen(output);
}

QByteArray frmTiskSeznamuPsu::MakeOutput(const ReportTemplate& pattern) {
    QByteArray output = pattern.Top();
    if (SortKey == DogGrouping::ByBreed)
        AppendDogList(output, pattern.Group(), *this);
    return output;
}

} // namespace lorvo
