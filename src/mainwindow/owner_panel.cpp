#include "mainwindow/owner_panel.h"

#include "forms/controls.h"
#include "forms/report_list.h"
#include "mainwindow/elided_link.h"
#include "mainwindow/panel_builders.h"
#include "platform/failure_guard.h"

#include <QHBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

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
      lvwDogs(new ReportList("lvwDogs",
                             {u"Jméno"_s, u"Výstava"_s, u"Uzávěrka"_s, u"První pes"_s, u"Soutěže"_s,
                              u"Cena"_s, u"Uhrazeno"_s, u"Rozdíl"_s, u"Poznámka"_s},
                             this)),
      lblSeznamPlateb1(
          Named(new LinkLabel(u"Seznam přijatých plateb"_s, this), u"lblSeznamPlateb1"_s)),
      Label21(Named(new LinkLabel(u"Zpět"_s, this), u"Label21"_s)) {
    setObjectName(u"picMajitelInfo"_s);
    lvwDogs->setAccessibleName(u"Psi vystavovatele"_s);
    lvwDogs->SetLabelEdit(false);
    lvwDogs->AlignRight({5, 6, 7});
    lvwDogs->SetColumnWidths({110, 112, 64, 64, 124, 72, 68, 76, 104});

    auto* top = new QHBoxLayout;
    top->addWidget(PanelHeading(u"Detailní informace o vystavovateli"_s, this));
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
    name_ = grid.AddText(0, u"Jméno:"_s);
    street_ = grid.AddText(0, u"Ulice:"_s);
    postCode_ = grid.AddText(0, u"PSČ:"_s);
    town_ = grid.AddText(1, u"Město:"_s);
    phone_ = grid.AddText(1, u"Telefon:"_s);
    email_ = grid.AddLink(1, u"Email:"_s);
    return grid.Layout();
}

QLayout* OwnerPanel::Totals() {
    ValueGrid grid(2);
    Label19 = Named(grid.AddAmount(0, u"Celkem psů:"_s), u"Label19"_s);
    price_ = grid.AddAmount(1, u"Cena:"_s);
    paid_ = grid.AddAmount(0, u"Uhrazeno:"_s);
    balance_ = grid.AddAmount(1, u"Bilance:"_s);
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
}

void OwnerPanel::ShowDogs(const std::vector<OwnerDogLine>& dogs) {
    std::vector<ReportRow> rows;
    rows.reserve(dogs.size());
    for (const OwnerDogLine& dog : dogs) {
        ReportRow row;
        row.key = dog.key;
        row.tag = dog.tag;
        for (const InkedText& text : CellsOf(dog))
            row.cells.push_back({text.text, text.colour, -1, text.spoken});
        rows.push_back(std::move(row));
    }
    lvwDogs->SetRows(std::move(rows));
}

} // namespace lorvo
