// How the page of entries is laid out: the file above, its letters and columns, the lines, the
// commands.
#include "forms/controls.h"
#include "forms/elided_label.h"
#include "forms/report_list.h"
#include "manager/entries_page.h"
#include "office/exchange/csv_text.h"
#include "platform/failure_guard.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <vector>

namespace lorvo {

using namespace Qt::StringLiterals;

EntriesPage::EntriesPage(const ShowAccess& show, QWidget* parent)
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
      lblFile(Named(new ElidedLabel(this), u"lblFile"_s)),
      lblCounts(Named(new QLabel(this), u"lblCounts"_s)), show_(show) {
    lvwLines->SetCheckBoxes(true);
    lvwLines->setAccessibleName(u"Řádky souboru"_s);
    lvwLines->SetColumnWidths({60, 90, 170, 170, 170, 420});
    lblFile->setText(u"Není vybrán žádný soubor."_s);
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
    const std::vector<QWidget*> inReadingOrder{cmdFile,      cmdTemplate, cmbEncoding,
                                               cmbSeparator, cmbShow,     cmdColumns,
                                               lvwLines,     cmdTake,     cmdRest};
    for (std::size_t i = 1; i < inReadingOrder.size(); ++i)
        setTabOrder(inReadingOrder[i - 1], inReadingOrder[i]);
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
    Connect(cmbShow, &QComboBox::activated, this, &EntriesPage::JudgeForShow);
    Connect(lvwLines, &ReportList::ItemCheck, this, &EntriesPage::KeepTick);
}

} // namespace lorvo
