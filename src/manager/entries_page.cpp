#include "manager/entries_page.h"

#include "forms/controls.h"
#include "forms/report_list.h"
#include "manager/frmSloupce.h"
#include "manager/remembered_columns.h"
#include "manager/show_session.h"
#include "manager/taking_report_text.h"
#include "office/copies/show_copies.h"
#include "office/exchange/csv_text.h"
#include "office/exchange/entry_book.h"
#include "office/exchange/sheet_files.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "platform/values/errors.h"
#include "platform/whole_file.h"
#include "store/vystavy.h"

#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr QColor kDoubtColour(176, 0, 0);
constexpr QColor kKnownColour(90, 90, 90);

const QString kTitle = u"Správce dat"_s;

QString StateText(const EntryLine& line) {
    switch (line.state) {
    case LineState::New:
        return u"nová"_s;
    case LineState::Known:
        return u"už je"_s;
    case LineState::Doubtful:
        return line.canBeTaken ? u"ke kontrole"_s : u"nelze převzít"_s;
    }
    return {};
}

std::optional<QColor> StateColour(const EntryLine& line) {
    if (line.state == LineState::New)
        return std::nullopt;
    return line.state == LineState::Known ? kKnownColour : kDoubtColour;
}

QString Filter() {
    return CanReadSheets() ? u"Tabulky (*.csv *.txt *.tsv *.xlsx *.ods)"_s
                           : u"Tabulky (*.csv *.txt *.tsv)"_s;
}

QString Beside(const QString& path, const QString& ending) {
    const QFileInfo file(path);
    return file.path() + u'/' + file.completeBaseName() + ending;
}

} // namespace

EntriesPage::EntriesPage(QWidget* parent)
    : QWidget(parent), cmdFile(Named(new QPushButton(u"Vybrat &soubor…"_s, this), u"cmdFile"_s)),
      cmdColumns(Named(new QPushButton(u"S&loupce…"_s, this), u"cmdColumns"_s)),
      cmdTake(Named(new QPushButton(u"&Převzít"_s, this), u"cmdTake"_s)),
      cmdRest(Named(new QPushButton(u"Uložit z&bytek…"_s, this), u"cmdRest"_s)),
      cmdTemplate(Named(new QPushButton(u"Uložit v&zor…"_s, this), u"cmdTemplate"_s)),
      cmbEncoding(Named(new QComboBox(this), u"cmbEncoding"_s)),
      cmbSeparator(Named(new QComboBox(this), u"cmbSeparator"_s)),
      cmbShow(Named(new QComboBox(this), u"cmbShow"_s)),
      lvwLines(new ReportList(
          "lvwLines", {u"Řádek"_s, u"Stav"_s, u"Pes"_s, u"Plemeno"_s, u"Majitel"_s, u"Důvod"_s},
          this)),
      lblFile(Named(new QLabel(u"Není vybrán žádný soubor."_s, this), u"lblFile"_s)),
      lblCounts(Named(new QLabel(this), u"lblCounts"_s)) {
    lvwLines->SetCheckBoxes(true);
    lvwLines->setAccessibleName(u"Řádky souboru"_s);
    lvwLines->SetColumnWidths({60, 90, 170, 170, 170, 420});
    lblFile->setTextFormat(Qt::PlainText);
    FillCombos();
    LayOut();
    ConnectControls();
    for (QWidget* control :
         std::initializer_list<QWidget*>{cmdColumns, cmdTake, cmdRest, cmbEncoding, cmbSeparator})
        control->setEnabled(false);
}

void EntriesPage::FillCombos() {
    for (const TextEncoding encoding : kTextEncodings)
        cmbEncoding->addItem(EncodingName(encoding), static_cast<int>(encoding));
    for (const char16_t separator : kCsvSeparators)
        cmbSeparator->addItem(SeparatorName(separator), QChar(separator));
}

QLayout* EntriesPage::ChoiceRow() {
    auto* row = new QHBoxLayout;
    row->addWidget(CaptionFor(cmbEncoding, u"&Kódování"_s, this));
    row->addWidget(cmbEncoding);
    row->addWidget(CaptionFor(cmbSeparator, u"&Oddělovač"_s, this));
    row->addWidget(cmbSeparator);
    row->addWidget(CaptionFor(cmbShow, u"Přihlásit na &výstavu"_s, this));
    row->addWidget(cmbShow, 1);
    row->addWidget(cmdColumns);
    return row;
}

void EntriesPage::LayOut() {
    auto* top = new QHBoxLayout;
    top->addWidget(cmdFile);
    top->addWidget(lblFile, 1);
    top->addWidget(cmdTemplate);
    auto* column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addLayout(ChoiceRow());
    column->addWidget(lvwLines, 1);
    column->addWidget(lblCounts);
    column->addLayout(ButtonRow({cmdTake, cmdRest}));
}

void EntriesPage::ConnectControls() {
    Connect(cmdFile, &QPushButton::clicked, this, &EntriesPage::ChooseFile);
    Connect(cmdColumns, &QPushButton::clicked, this, &EntriesPage::ChooseColumns);
    Connect(cmdTake, &QPushButton::clicked, this, &EntriesPage::Take);
    Connect(cmdRest, &QPushButton::clicked, this, &EntriesPage::SaveRest);
    Connect(cmdTemplate, &QPushButton::clicked, this, &EntriesPage::SaveTemplate);
    Connect(cmbEncoding, &QComboBox::activated, this, [this] {
        source_.SetEncoding(static_cast<TextEncoding>(cmbEncoding->currentData().toInt()));
        ReadAnew();
    });
    Connect(cmbSeparator, &QComboBox::activated, this, [this] {
        source_.SetSeparator(cmbSeparator->currentData().toChar());
        ReadAnew();
    });
    Connect(cmbShow, &QComboBox::activated, this, &EntriesPage::Judge);
    Connect(lvwLines, &ReportList::ItemCheck, this, &EntriesPage::KeepTick);
}

void EntriesPage::ChooseFile() {
    const QString path = ThePlatform().files->Open(u"Soubor s přihláškami"_s, Filter());
    if (path.isEmpty() || !SayingFailure([&] { source_ = EntrySource(path); }))
        return;
    lblFile->setText(path);
    cmbEncoding->setEnabled(!source_.IsSheet());
    cmbSeparator->setEnabled(!source_.IsSheet());
    cmdColumns->setEnabled(true);
    FillShows();
    ReadAnew();
}

void EntriesPage::ReadAnew() {
    cmbEncoding->setCurrentIndex(cmbEncoding->findData(static_cast<int>(source_.Encoding())));
    cmbSeparator->setCurrentIndex(cmbSeparator->findData(source_.Separator()));
    columns_ = RememberedColumns(source_.Headings());
    Judge();
}

void EntriesPage::ChooseColumns() {
    frmSloupce window(source_.Rows(), columns_, this);
    OpenModal(window);
    if (!window.Result())
        return;
    columns_ = *window.Result();
    RememberColumns(source_.Headings(), columns_);
    Judge();
}

void EntriesPage::FillShows() {
    if (cmbShow->count() > 0)
        return;
    OnShow([this] {
        for (const Vystavy& show : Shows())
            cmbShow->addItem(show.Nazev, show.ID);
    });
    cmbShow->addItem(u"(žádnou)"_s, 0);
}

std::vector<EntryLine> EntriesPage::JudgedNow() const {
    EntryBook book(cmbShow->currentData().toInt(), ThePlatform().clock->Now().DateOnly());
    return JudgedLines(source_.Rows(), columns_, book);
}

void EntriesPage::Judge() {
    if (!OnShow([this] { lines_ = JudgedNow(); }))
        lines_.clear();
    ShowLines();
}

void EntriesPage::ShowLines() {
    std::vector<ReportRow> rows;
    for (const EntryLine& line : lines_) {
        ReportRow& row = rows.emplace_back();
        row.key = u'C' + QString::number(line.number);
        row.checked = line.state == LineState::New;
        const std::optional<QColor> colour = StateColour(line);
        row.cells = {{QString::number(line.number)},
                     {StateText(line), colour},
                     {CellOf(line.cells, columns_, EntryField::DogName)},
                     {CellOf(line.cells, columns_, EntryField::Breed)},
                     {CellOf(line.cells, columns_, EntryField::OwnerName)},
                     {line.reasons.join(u' '), colour}};
    }
    lvwLines->SetRows(std::move(rows));
    ShowCounts();
}

void EntriesPage::ShowCounts() {
    int fresh = 0;
    int known = 0;
    int ticked = 0;
    for (const EntryLine& line : lines_) {
        fresh += line.state == LineState::New ? 1 : 0;
        known += line.state == LineState::Known ? 1 : 0;
        ticked += IsTicked(line) ? 1 : 0;
    }
    const auto all = static_cast<int>(lines_.size());
    const auto part = [](const QString& word, int count) {
        return word + u' ' + QString::number(count);
    };
    lblCounts->setText(QStringList{
        part(u"Řádků:"_s, all), part(u"nových:"_s, fresh), part(u"už přihlášených:"_s, known),
        part(u"ke kontrole:"_s, all - fresh - known), part(u"k převzetí zaškrtnuto:"_s, ticked)}
                           .join(u", "_s));
    cmdTake->setEnabled(ticked > 0);
    cmdRest->setEnabled(ticked < all);
}

void EntriesPage::KeepTick(int position) {
    const int number = lvwLines->Row(position).key.mid(1).toInt();
    const EntryLine& line = lines_[static_cast<std::size_t>(number - 1)];
    if (!line.canBeTaken)
        lvwLines->SetChecked(position, false);
    ShowCounts();
}

bool EntriesPage::IsTicked(const EntryLine& line) const {
    const int position = lvwLines->FindRow(u'C' + QString::number(line.number));
    return position >= 0 && lvwLines->Row(position).checked;
}

void EntriesPage::Take() {
    TakingReport report;
    bool changed = false;
    const bool ran = OnShowAlone([&] {
        // Lorvo may have run since the lines were shown.
        const std::vector<EntryLine> now = JudgedNow();
        changed = !AreJudgedAlike(now, lines_);
        if (changed)
            return;
        MakeCopy(ThePlatform().programFolder, ThePlatform().clock->Now());
        const auto ticked = [this](const EntryLine& line) {
            return IsTicked(line);
        };
        report = TakeEntries(now, ticked, ThePlatform().clock->Now().DateOnly());
    });
    if (changed) {
        ThePlatform().messages->Show(
            u"Databáze se od načtení souboru změnila. Podívejte se na řádky znovu."_s,
            MessageIcon::Exclamation, MessageButtons::Ok, kTitle);
        Judge();
    } else if (ran) {
        SayTaken(report);
    }
}

void EntriesPage::SayTaken(const TakingReport& report) {
    const QString text = TakingReportText(report, source_.Path());
    const bool save = ThePlatform().messages->Show(text + u"\n\nUložit tuto zprávu do souboru?"_s,
                                                   MessageIcon::Question, MessageButtons::YesNo,
                                                   kTitle) == MessageAnswer::Yes;
    const QString path = save ? ThePlatform().files->Save(
                                    u"Uložit zprávu"_s,
                                    Beside(source_.Path(), u" - převzetí.txt"_s), u"Text (*.txt)"_s)
                              : QString();
    if (!path.isEmpty())
        SayingFailure([&] { ReplaceFile(path, text.toUtf8()); });
    Judge();
}

void EntriesPage::SaveRest() {
    const QString path = ThePlatform().files->Save(
        u"Uložit zbytek"_s, Beside(source_.Path(), u" - zbytek.csv"_s), u"CSV (*.csv)"_s);
    if (path.isEmpty())
        return;
    const auto ticked = [this](const EntryLine& line) {
        return IsTicked(line);
    };
    SayingFailure(
        [&] { ReplaceFile(path, CsvBytes(RestOfTable(source_.Headings(), lines_, ticked))); });
}

void EntriesPage::SaveTemplate() {
    const QString path = ThePlatform().files->Save(
        u"Uložit vzor"_s, ThePlatform().programFolder + u"/Přihlášky - vzor.csv"_s,
        u"CSV (*.csv)"_s);
    if (!path.isEmpty())
        SayingFailure([&] { ReplaceFile(path, CsvBytes({EntryHeadings()})); });
}

} // namespace lorvo
