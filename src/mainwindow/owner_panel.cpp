#include "mainwindow/owner_panel.h"

#include "forms/controls.h"
#include "forms/report_list.h"
#include "mainwindow/panel_builders.h"
#include "mainwindow/window_opener.h"
#include "platform/failure_guard.h"

#include <QHBoxLayout>

namespace lorvo {

namespace {

std::array<InkedText, 9> CellsOf(const OwnerDogLine& dog) {
    const auto plain = [](const QString& text) {
        return InkedText{text, std::nullopt};
    };
    return {dog.name,
            plain(dog.show),
            plain(dog.closing),
            plain(dog.firstDog),
            plain(dog.competitions),
            plain(dog.price),
            plain(dog.paid),
            dog.balance,
            plain(dog.note)};
}

} // namespace

OwnerPanel::OwnerPanel(QWidget* parent)
    : QWidget(parent),
      lvwDogs(new ReportList(
          "lvwDogs",
          {QStringLiteral("Jméno"), QStringLiteral("Výstava"), QStringLiteral("Uzávěrka"),
           QStringLiteral("První pes"), QStringLiteral("Soutěže"), QStringLiteral("Cena"),
           QStringLiteral("Uhrazeno"), QStringLiteral("Rozdíl"), QStringLiteral("Poznámka")},
          this)),
      lblSeznamPlateb1(Named(new LinkLabel(QStringLiteral("Seznam přijatých plateb"), this),
                             QStringLiteral("lblSeznamPlateb1"))),
      Label21(Named(new LinkLabel(QStringLiteral("Zpět"), this), QStringLiteral("Label21"))) {
    setObjectName(QStringLiteral("picMajitelInfo"));
    lvwDogs->setAccessibleName(QStringLiteral("Psi vystavovatele"));
    lvwDogs->SetLabelEdit(false);
    lvwDogs->AlignRight({5, 6, 7});
    lvwDogs->SetColumnWidths({110, 112, 64, 64, 124, 72, 68, 76, 104});

    auto* top = new QHBoxLayout;
    top->addWidget(PanelHeading(QStringLiteral("Detailní informace o vystavovateli"), this));
    top->addStretch();
    top->addWidget(lblSeznamPlateb1);
    top->addSpacing(fontMetrics().height());
    top->addWidget(Label21);
    auto* column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addLayout(Lines());
    column->addWidget(lvwDogs, 1);
    column->addLayout(Totals());

    Connect(email_, &LinkLabel::Clicked, this, [this] { Q_EMIT EmailClicked(email_->text()); });
    Connect(lblSeznamPlateb1, &LinkLabel::Clicked, this, &OwnerPanel::PaymentsClicked);
    Connect(Label21, &LinkLabel::Clicked, this, &OwnerPanel::BackClicked);
    Connect(lvwDogs, &ReportList::ItemClick, this,
            [this](int position) { Q_EMIT DogClicked(lvwDogs->Row(position).key); });
    Connect(lvwDogs, &ReportList::DoubleClick, this, &OwnerPanel::DogDoubleClicked);
}

QLayout* OwnerPanel::Lines() {
    ValueGrid grid(2);
    name_ = grid.AddText(0, QStringLiteral("Jméno:"));
    street_ = grid.AddText(0, QStringLiteral("Ulice:"));
    postCode_ = grid.AddText(0, QStringLiteral("PSČ:"));
    town_ = grid.AddText(1, QStringLiteral("Město:"));
    phone_ = grid.AddText(1, QStringLiteral("Telefon:"));
    email_ = grid.AddLink(1, QStringLiteral("Email:"));
    return grid.Layout();
}

QLayout* OwnerPanel::Totals() {
    ValueGrid grid(2);
    Label19 = Named(grid.AddAmount(0, QStringLiteral("Celkem psů:")), QStringLiteral("Label19"));
    price_ = grid.AddAmount(1, QStringLiteral("Cena:"));
    paid_ = grid.AddAmount(0, QStringLiteral("Uhrazeno:"));
    balance_ = grid.AddAmount(1, QStringLiteral("Bilance:"));
    return grid.Layout();
}

void OwnerPanel::ShowCard(const OwnerCard& card) {
    name_->setText(card.Jmeno);
    street_->setText(card.Ulice);
    postCode_->setText(card.PSC);
    town_->setText(card.Mesto);
    phone_->setText(card.Telefon);
    email_->setText(card.Email);
    ShowDogs(card.dogs);
    Label19->setText(card.dogCount);
    price_->setText(card.price);
    paid_->setText(card.paid);
    ShowText(*balance_, card.balance);
    lblSeznamPlateb1->setEnabled(CanOpen(QStringLiteral("frmUhrady")));
}

void OwnerPanel::ShowDogs(const std::vector<OwnerDogLine>& dogs) {
    std::vector<ReportRow> rows;
    rows.reserve(dogs.size());
    for (const OwnerDogLine& dog : dogs) {
        ReportRow row;
        row.key = dog.key;
        row.tag = dog.tag;
        for (const InkedText& text : CellsOf(dog))
            row.cells.push_back({text.text, text.colour});
        rows.push_back(std::move(row));
    }
    lvwDogs->SetRows(std::move(rows));
}

} // namespace lorvo
