#include "mainwindow/entries_section.h"

#include "forms/controls.h"
#include "forms/report_list.h"
#include "mainwindow/line_label.h"
#include "mainwindow/panel_builders.h"
#include "office/cards/entry_ticks.h"
#include "platform/failure_guard.h"

#include <QHBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kOpenUnits = 3000;

LinkLabel* PaymentLink(const char* name, const QString& text, const QString& toolTip,
                       QWidget* parent) {
    auto* link = Named(new LinkLabel(text, parent), QString::fromLatin1(name));
    link->setToolTip(toolTip);
    return link;
}

} // namespace

EntriesSection::EntriesSection(QWidget* parent)
    : CollapsibleFrame("fraVystavy", u"Výstavy a soutěže"_s, kOpenUnits, Growth::TakesRest,
                       parent) {
    // Closing and first-dog mark of an entered show stand beside its price, without a heading.
    lvwSouteze =
        new ReportList("lvwSouteze", {u"Název"_s, u"Cena"_s, QString(), QString()}, Content());
    lvwSouteze->setAccessibleName(u"Výstavy a soutěže psa"_s);
    lvwSouteze->SetCheckBoxes(true);
    lvwSouteze->SetLabelEdit(false);
    lvwSouteze->SetColumnWidths({260, 90, 100, 60});
    lvwSouteze->SetIcons({ProgramIcon(u"show"_s), ProgramIcon(u"competition"_s)});
    SetFirstControl(*lvwSouteze);
    auto* column = new QVBoxLayout(Content());
    column->addLayout(Values());
    column->addWidget(lvwSouteze, 1);
    column->addLayout(Links());

    Connect(lvwSouteze, &ReportList::ItemCheck, this, &EntriesSection::Tick);
    Connect(lblNovaPlatba, &LinkLabel::Clicked, this, &EntriesSection::NewPaymentClicked);
    Connect(lblSeznamPlateb, &LinkLabel::Clicked, this, &EntriesSection::PaymentsClicked);
}

QLayout* EntriesSection::Values() {
    ValueGrid grid(2, SectionCaptions());
    closing_ = grid.AddText(0, u"Uzávěrka:"_s);
    firstDog_ = grid.AddText(0, u"První pes:"_s);
    price_ = grid.AddAmount(1, u"Cena celkem:"_s);
    paid_ = grid.AddAmount(1, u"Uhrazeno:"_s);
    balance_ = new LineLabel(u"Rozdíl:"_s);
    balanceWord_ = new LineLabel(QString());
    balanceWord_->setObjectName(u"lblBalanceWord"_s);
    balance_->setFont(paid_->font());
    balanceWord_->setFont(paid_->font());
    auto* both = new QWidget;
    auto* row = new QHBoxLayout(both);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(balance_);
    row->addWidget(balanceWord_, 1);
    grid.Add(1, u"Rozdíl:"_s, both);
    return grid.Layout();
}

QLayout* EntriesSection::Links() {
    lblNovaPlatba =
        PaymentLink("lblNovaPlatba", u"Příjem platby"_s, u"Přidat novou platbu"_s, Content());
    lblSeznamPlateb = PaymentLink("lblSeznamPlateb", u"Seznam přijatých plateb"_s,
                                  u"Zobrazit seznam všech přijatých plateb za psa"_s, Content());
    auto* row = new QHBoxLayout;
    row->addWidget(lblNovaPlatba);
    row->addSpacing(fontMetrics().height());
    row->addWidget(lblSeznamPlateb);
    row->addStretch();
    return row;
}

void EntriesSection::ShowCard(const DogCard& card) {
    lines_ = card.shows;
    ShowLines(*lvwSouteze, lines_);
    closing_->setText(card.Uzaverka);
    firstDog_->setText(card.PrvniPes);
    price_->setText(card.CenaCelkem);
    paid_->setText(card.Uhrazeno);
    ShowText(*balance_, card.Rozdil);
    ShowText(*balanceWord_, card.balanceWord);
}

void EntriesSection::Tick(int position) {
    lines_[static_cast<std::size_t>(position)].checked = lvwSouteze->Row(position).checked;
    ApplyShowRules(lines_, position);
    for (int row = 0; row < lvwSouteze->RowCount(); ++row)
        lvwSouteze->SetChecked(row, lines_[static_cast<std::size_t>(row)].checked);
    Q_EMIT EntriesTicked(lines_);
}

} // namespace lorvo
