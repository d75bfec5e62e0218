#include "reports/frmTiskSeznamuPsu.h"

#include "forms/controls.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"

#include <QVBoxLayout>

namespace lorvo {

namespace {

ExportTraits DogListTraits() {
    return {
        .name = "frmTiskSeznamuPsu",
        .caption = QStringLiteral("Export seznamu psů"),
        .title = QStringLiteral("Export seznamu psů"),
        .startCaption = QStringLiteral("Start"),
        .closeCaption = QStringLiteral("Zavřít"),
        .paper = QStringLiteral("Seznam psů"),
        .templateFile = QStringLiteral("Šablony/Seznam psů.html"),
        .outputFile = QStringLiteral("Šablony/Výstup.html"),
        .closesAfterTemplate = true,
        .closesAfterDocument = true,
        .stopEnablesClosing = false,
        .progressText = QStringLiteral(" - Generuji: "),
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
    auto* options = new QGroupBox(QStringLiteral("Seskupit podle "), this);
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
    const WaitCursor wait(*ThePlatform().ui);
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
