// Puts every paper of a show out by both routes, to be looked at.
//   make_papers --show DATA.MDB --out FOLDER [--templates FOLDER]
// Tells how long each took.

#include "app/module_values.h"
#include "office/papers/breed_overview.h"
#include "office/papers/catalogue.h"
#include "office/papers/diplomas.h"
#include "office/papers/dog_lists.h"
#include "office/papers/entry_confirmations.h"
#include "office/papers/exhibitor_list.h"
#include "office/papers/judging_sheets.h"
#include "office/papers/payment_report.h"
#include "office/papers/run_progress.h"
#include "office/papers/template_engine.h"
#include "plain_text.h"
#include "platform/docx/docx_word_processor.h"
#include "platform/platform.h"
#include "platform/real_services.h"
#include "platform/whole_file.h"
#include "store/data_module.h"

#include <QDir>
#include <QElapsedTimer>
#include <QLocale>
#include <exception>
#include <functional>
#include <iostream>
#include <map>
#include <stdexcept>
#include <string>

using namespace Qt::StringLiterals;

namespace {

using namespace lorvo;

constexpr const char* kUsage =
    "usage: make_papers --show DATA.MDB --out FOLDER [--templates FOLDER]\n";

using Options = std::map<std::string, QString>;

Options ReadOptions(int argc, char** argv) {
    Options options = {
        {"--show", {}}, {"--out", {}}, {"--templates", QString::fromUtf8(LORVO_TEMPLATES)}};
    for (int i = 1; i < argc; i += 2) {
        if (!options.contains(argv[i]) || i + 1 == argc)
            throw std::invalid_argument(argv[i]);
        options[argv[i]] = QString::fromLocal8Bit(argv[i + 1]);
    }
    for (const char* needed : {"--show", "--out"}) {
        if (options[needed].isEmpty())
            throw std::invalid_argument(needed);
    }
    return options;
}

class OpensNothing final : public OpenService {
  public:
    bool OpenFile(const QString&) override { return true; }
    void OpenAddress(const QString&) override {}
};

class NeverStops final : public RunProgress {
  public:
    bool Advance(int, int) override { return true; }
};

QString ShowTitle() {
    return u"Krajská výstava psů společenských plemen Zlín 14. května 2005"_s;
}

QStringList ConfirmationTexts() {
    QStringList texts;
    for (const ConfirmationLine& line : kConfirmationLines)
        texts << QString::fromUtf16(line.text);
    return texts;
}

void InstallPlatform(const QString& folder) {
    Platform& platform = ThePlatform();
    platform.opener = std::make_unique<OpensNothing>();
    platform.locale = MakeLocaleInfo(QLocale(QLocale::Czech, QLocale::CzechRepublic));
    platform.clock = MakeClock();
    platform.wordProcessors =
        std::make_unique<DocxWordProcessors>(*platform.opener, *platform.clock, folder);
    Module().MainCurrency = u"Kč"_s;
}

class PaperMaker {
  public:
    explicit PaperMaker(const Options& options)
        : templates_(options.at("--templates")), out_(options.at("--out")) {}

    void MakeDocuments();
    void MakePages();

  private:
    using Append = std::function<void(QByteArray&, const QByteArray&)>;

    static void Timed(const QString& name, const std::function<void()>& make);
    static void Document(const char16_t* title, const std::function<void(WordProcessor&)>& type);
    void Page(const char16_t* name, const Append& append, TemplateKind kind = TemplateKind::Rows);

    const QDir templates_;
    const QDir out_;
    NeverStops run_;
};

void PaperMaker::Timed(const QString& name, const std::function<void()>& make) {
    QElapsedTimer timer;
    timer.start();
    make();
    std::cout << name.toStdString() << ": " << timer.elapsed() << " ms\n";
}

void PaperMaker::Document(const char16_t* title, const std::function<void(WordProcessor&)>& type) {
    const QString name = QString::fromUtf16(title);
    Timed(name, [&] {
        const auto word = ThePlatform().wordProcessors->Create(name);
        type(*word);
        (void)word->Show();
    });
}

void PaperMaker::MakeDocuments() {
    Document(u"Katalog", [](auto& word) { TypeCatalogue(word, true); });
    Document(u"Katalog bez formátů", [](auto& word) {
        PlainText plain(word);
        TypeCatalogue(plain, true);
    });
    Document(u"Pozvánky", [&](auto& word) { TypeConfirmations(word, ConfirmationTexts(), run_); });
    Document(u"Posudkové listy", [&](auto& word) { TypeJudgingSheets(word, ShowTitle(), run_); });
    Document(u"Diplomy", [&](auto& word) { TypeDiplomas(word, run_); });
    Document(u"Seznam psů", [&](auto& word) { TypeDogList(word, DogGrouping::ByBreed, run_); });
    Document(u"Seznam vystavovatelů", [](auto& word) { TypeExhibitors(word); });
    Document(u"Platby", [&](auto& word) { TypePayments(word, run_); });
    Document(u"Přehled plemen", [](auto& word) { TypeBreedOverview(word, ShowTitle()); });
}

void PaperMaker::Page(const char16_t* name, const Append& append, TemplateKind kind) {
    const QString file = QString::fromUtf16(name) + u".html"_s;
    Timed(file, [&] {
        const ReportTemplate pattern = ReportTemplate::Read(templates_.filePath(file), kind);
        const bool grouped = kind == TemplateKind::GroupedRows;
        QByteArray page = pattern.Top();
        append(page, grouped ? pattern.Group() : pattern.Body());
        if (!grouped)
            page += pattern.Bottom();
        ReplaceFile(out_.filePath(file), page);
    });
}

void PaperMaker::MakePages() {
    Page(u"Pozvánky",
         [&](auto& page, auto& row) { AppendConfirmations(page, row, ConfirmationTexts(), run_); });
    Page(u"Posudkové listy",
         [&](auto& page, auto& row) { AppendJudgingSheets(page, row, ShowTitle(), run_); });
    Page(u"Diplomy", [&](auto& page, auto& row) { AppendDiplomas(page, row, run_); });
    Page(
        u"Seznam psů", [&](auto& page, auto& row) { AppendDogList(page, row, run_); },
        TemplateKind::GroupedRows);
    Page(u"Seznam vystavovatelů",
         [&](auto& page, auto& row) { AppendExhibitors(page, row, run_); });
    Page(u"Platby", [&](auto& page, auto& row) { AppendPayments(page, row, run_); });
}

void Run(const Options& options) {
    TheDataModule().Conn1.Open(options.at("--show"));
    InstallPlatform(options.at("--out"));
    QDir().mkpath(options.at("--out"));
    PaperMaker maker(options);
    maker.MakeDocuments();
    maker.MakePages();
    TheDataModule().Conn1.Close();
}

} // namespace

int main(int argc, char** argv) try {
    Run(ReadOptions(argc, argv));
    return 0;
} catch (const std::invalid_argument& error) {
    std::cerr << "make_papers: " << error.what() << '\n' << kUsage;
    return 2;
} catch (const std::exception& error) {
    std::cerr << "make_papers: " << error.what() << '\n';
    return 1;
}
