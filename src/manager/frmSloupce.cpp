#include "manager/frmSloupce.h"

#include "forms/controls.h"
#include "forms/report_list.h"
#include "platform/failure_guard.h"

#include <QComboBox>
#include <QGridLayout>
#include <QScrollArea>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kLinesShown = 5;
constexpr int kGridColumns = 2;

} // namespace

frmSloupce::frmSloupce(const std::vector<QStringList>& rows, const ColumnChoice& columns,
                       QWidget* parent)
    : Form("frmSloupce", u"Sloupce"_s, Border::Sizable, parent) {
    // Made in reading order, which Tab follows.
    QWidget* firstLines = FirstLines(rows);
    auto* area = Named(new QScrollArea(this), u"scrSloupce"_s);
    area->setWidget(FieldGrid(rows.empty() ? QStringList() : rows.front(), columns));
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    auto* cmdOK = Named(new QPushButton(u"OK"_s, this), u"cmdOK"_s);
    auto* cmdCancel = Named(new QPushButton(u"Storno"_s, this), u"cmdCancel"_s);
    auto* column = new QVBoxLayout(this);
    column->addWidget(firstLines);
    column->addWidget(area, 1);
    column->addLayout(ButtonRow({cmdOK, cmdCancel}));
    resize(900, 620);
    cmbField.front()->setFocus();
    Connect(cmdOK, &QPushButton::clicked, this, &frmSloupce::Accept);
    Connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

QWidget* frmSloupce::FieldGrid(const QStringList& headings, const ColumnChoice& columns) {
    auto* content = new QWidget(this);
    auto* grid = new QGridLayout(content);
    for (int i = 0; i < kEntryFields; ++i) {
        const auto at = static_cast<std::size_t>(i);
        auto* combo = Named(new QComboBox(content), ElementName("cmbField", i));
        combo->addItem(u"(není)"_s);
        combo->addItems(headings);
        combo->setCurrentIndex(columns[at] ? *columns[at] + 1 : 0);
        combo->setToolTip(FieldMeaning(static_cast<EntryField>(i)));
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->setMinimumContentsLength(18);
        cmbField[at] = combo;
        const int place = i % kGridColumns * 2;
        grid->addWidget(CaptionFor(combo, FieldHeading(static_cast<EntryField>(i)), content),
                        i / kGridColumns, place);
        grid->addWidget(combo, i / kGridColumns, place + 1);
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    return content;
}

QWidget* frmSloupce::FirstLines(const std::vector<QStringList>& rows) {
    auto* list = new ReportList("lvwFirstLines", rows.empty() ? QStringList() : rows.front(), this);
    list->setAccessibleName(u"První řádky souboru"_s);
    std::vector<ReportRow> shown;
    for (std::size_t i = 1; i < rows.size() && i <= kLinesShown; ++i) {
        ReportRow& row = shown.emplace_back();
        for (const QString& cell : rows[i])
            row.cells.push_back({cell});
    }
    list->SetRows(std::move(shown));
    list->FitToContents();
    list->setMaximumHeight(list->fontMetrics().lineSpacing() * (kLinesShown + 4));
    return list;
}

void frmSloupce::Accept() {
    result_.emplace();
    for (std::size_t i = 0; i < cmbField.size(); ++i)
        if (const int chosen = cmbField[i]->currentIndex(); chosen > 0)
            (*result_)[i] = chosen - 1;
    accept();
}

} // namespace lorvo
