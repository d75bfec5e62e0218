#include "manager/copies_page.h"

#include "forms/controls.h"
#include "forms/report_list.h"
#include "platform/failure_guard.h"
#include "platform/values/errors.h"

#include <QShowEvent>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// `name` stands for the present state, whose moment says nothing.
ReportRow RowOf(const QString& name, const ShowCopy& copy) {
    return {copy.path,
            {},
            {{name},
             {QString::number(copy.figures.dogs)},
             {QString::number(copy.figures.owners)},
             {QString::number(copy.figures.payments)},
             {QString::fromStdString(copy.figures.paid.ToPlainText(','))},
             {copy.fault.isEmpty() ? u"v pořádku"_s : copy.fault}}};
}

ShowCopy PresentState(const QString& folder) {
    ShowCopy present;
    present.path = DatabasePath(folder);
    try {
        RequireWholeDatabase(present.path);
        present.figures = FiguresOfDatabase(present.path);
    } catch (const Error& fault) {
        present.fault = QString::fromUtf8(fault.what());
    }
    return present;
}

} // namespace

CopiesPage::CopiesPage(const ShowAccess& show, QWidget* parent)
    : QWidget(parent), lvwZalohy(new ReportList("lvwZalohy",
                                                {u"Kopie"_s, u"Psů"_s, u"Majitelů"_s, u"Plateb"_s,
                                                 u"Součet plateb"_s, u"Kontrola"_s},
                                                this)),
      cmdMake(Named(new QPushButton(u"&Udělat kopii"_s, this), u"cmdMake"_s)),
      cmdCompare(Named(new QPushButton(u"&Porovnat"_s, this), u"cmdCompare"_s)),
      cmdPutBack(Named(new QPushButton(u"&Vrátit"_s, this), u"cmdPutBack"_s)),
      lblPorovnani(Named(new QLabel(this), u"lblPorovnani"_s)), show_(show) {
    lvwZalohy->setAccessibleName(u"Kopie databáze"_s);
    lvwZalohy->SetColumnWidths({230, 70, 80, 80, 130, 320});
    lvwZalohy->AlignRight({1, 2, 3, 4});
    lvwZalohy->SetMultiSelect(true);
    lblPorovnani->setTextFormat(Qt::PlainText);
    lblPorovnani->setWordWrap(true);
    lblPorovnani->setText(u"Jedna vybraná kopie se porovná s dnešním stavem, dvě mezi sebou."_s);
    LayOut();
    ConnectControls();
    Enable();
}

void CopiesPage::LayOut() {
    auto* column = new QVBoxLayout(this);
    column->addWidget(lvwZalohy, 1);
    column->addWidget(lblPorovnani);
    column->addLayout(ButtonRow({cmdMake, cmdCompare, cmdPutBack}));
}

void CopiesPage::ConnectControls() {
    Connect(lvwZalohy, &ReportList::SelectionChanged, this, &CopiesPage::Enable);
    Connect(cmdMake, &QPushButton::clicked, this, &CopiesPage::Make);
    Connect(cmdCompare, &QPushButton::clicked, this, &CopiesPage::Compare);
    Connect(cmdPutBack, &QPushButton::clicked, this, &CopiesPage::PutBack);
}

void CopiesPage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    Guarded([this, event] {
        if (!event->spontaneous()) // else the whole window came back, and no other page was worked
                                   // on
            Later(this, [this] { Refill(); });
    });
}

void CopiesPage::Refill() {
    const WaitCursor wait(show_.Screen());
    if (show_.SayingFailure([this] { copies_ = ListCopies(show_.Folder(), true); }))
        AddRows();
    Enable();
}

void CopiesPage::AddRows() {
    std::vector<ReportRow> rows = {RowOf(u"dnešní stav"_s, PresentState(show_.Folder()))};
    for (const ShowCopy& copy : copies_)
        rows.push_back(RowOf(show_.DateText(copy.moment), copy));
    lvwZalohy->SetRows(std::move(rows));
}

void CopiesPage::Enable() {
    const std::vector<int> chosen = lvwZalohy->SelectedRows();
    cmdCompare->setEnabled(chosen.size() == 2 || (chosen.size() == 1 && chosen.front() > 0));
    cmdPutBack->setEnabled(chosen.size() == 1 && chosen.front() > 0);
}

QString CopiesPage::PathOf(int position) const {
    return lvwZalohy->Row(position).key;
}

void CopiesPage::Make() {
    if (show_.SayingFailure([this] { show_.CopyNow(); }))
        Refill();
}

void CopiesPage::Compare() {
    std::vector<int> chosen = lvwZalohy->SelectedRows();
    if (chosen.size() == 1)
        chosen.insert(chosen.begin(), 0);
    // Newer copies stand higher.
    show_.SayingFailure([&] {
        lblPorovnani->setText(
            CompareDatabases(PathOf(chosen.back()), PathOf(chosen.front())).join(u'\n'));
    });
}

void CopiesPage::PutBack() {
    const int chosen = lvwZalohy->SelectedRow();
    const QString name = lvwZalohy->CellText(chosen, 0);
    const QString question =
        u"Vrátit stav z kopie "_s + name + u"? Dnešní stav se předtím zkopíruje."_s;
    if (show_.Ask(question, MessageButtons::YesNoCancel) != MessageAnswer::Yes)
        return;
    if (show_.AloneInFolder([&] { PutCopyBack(show_.Folder(), PathOf(chosen), show_.Now()); }))
        lblPorovnani->setText(u"Vráceno: "_s + name);
    Refill();
}

} // namespace lorvo
