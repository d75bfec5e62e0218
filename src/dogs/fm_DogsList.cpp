#include "dogs/fm_DogsList.h"

#include "app/amount_texts.h"
#include "app/common_routines.h"
#include "app/main_window_services.h"
#include "dogs/frmDogListFilter.h"
#include "dogs/totals_bar.h"
#include "forms/command_collection.h"
#include "forms/make_cells.h"
#include "forms/report_list.h"
#include "office/dogs/dog_counts_line.h"
#include "office/dogs/dog_list_figures.h"
#include "office/texts/colours.h"
#include "office/texts/dog_texts.h"
#include "office/texts/money_texts.h"
#include "office/tree/node_key.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "store/data_module.h"
#include "store/oceneni.h"
#include "store/psi_oceneni.h"

#include <QToolBar>
#include <QVBoxLayout>
#include <utility>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

enum Column { kPrice = 7, kCompetitionFees = 9, kAwards = 10, kPaid = 11, kBalance = 12 };

QStringList Headings() {
    return {u"Jméno"_s,   u"Pohlaví"_s,  u"Majitel"_s, u"Plemeno"_s, u"Poznámka"_s,
            u"Výstava"_s, u"Uzávěrka"_s, u"Cena"_s,    u"Soutěže"_s, u"Soutěže"_s,
            u"Ocenění"_s, u"Uhrazeno"_s, u"Bilance"_s};
}

/// The texts move from the dog to its row.
ReportRow RowOf(DogListRow&& dog, DogListFigures&& figures, AmountTexts& prices) {
    const Account& account = figures.account;
    const std::optional<Currency> fee = account.LastFee();
    const Currency balance = account.Balance();
    return {NodeKey::Dog(dog.IDPsa).ToText(), QString::number(dog.IDPsa),
            MakeCells(FullName(dog), SexText(dog.PohlaviPes), std::move(dog.JmenoMajitele),
                      BreedName(dog.NazevPlemene, dog.NazevOrig), std::move(dog.Poznamka),
                      std::move(figures.shows), ClosingText(dog.PrvniUzaverka),
                      fee ? prices.Of(*fee) : QString(), std::move(figures.competitions),
                      prices.Of(account.CompetitionFees()), std::move(figures.awards),
                      prices.Of(account.paid),
                      ReportCell{prices.Of(balance), BalanceColour(balance, kOverpaidInDogList)})};
}

std::vector<MenuEntry> AwardsMenu(int psiID) {
    std::vector<MenuEntry> menu;
    for (const Oceneni& award : AwardsByName()) {
        MenuEntry& entry = menu.emplace_back();
        entry.number = award.ID;
        entry.text = award.Nazev;
        entry.checked = CountAwardOfDog(psiID, award.ID) > 0;
    }
    return menu;
}

} // namespace

fm_DogsList::fm_DogsList(QWidget* parent)
    : Form("fm_DogsList", u"Seznam psů"_s, Border::Sizable, parent),
      commands_(new CommandCollection(u"cmdBar"_s, {u"DOGLIST"_s}, this)),
      lvwList(new ReportList("lvwList", Headings(), this)), sbDogs(new TotalsBar("sbDogs", this)) {
    lvwList->setAccessibleName(windowTitle());
    lvwList->SetColumnWidths({180, 60, 110, 150, 90, 110, 70, 70, 120, 70, 80, 75, 80});
    lvwList->AlignRight({kPrice, kCompetitionFees, kPaid, kBalance});
    lvwList->SetSorting(true);
    LayOut();
    Connect(commands_, &CommandCollection::CommandClick, this, [this] {
        frmDogListFilter filter(this);
        OpenModal(filter);
    });
    Connect(lvwList, &ReportList::DoubleClick, this, &fm_DogsList::JumpToDog);
    Connect(lvwList, &ReportList::RightClick, this, &fm_DogsList::ShowAwardsMenu);
}

void fm_DogsList::LayOut() {
    auto* column = new QVBoxLayout(this);
    column->addWidget(commands_->MakeBar(u"DOGLIST"_s, this));
    column->addWidget(lvwList);
    column->addWidget(sbDogs);
    resize(1310, 620);
    lvwList->setFocus();
}

void fm_DogsList::Load() {
    const WaitCursor wait = Waiting();
    FillList();
    sbDogs->SetPanel(1, DogCountsLine(CountMales(), CountFemales()));
}

void fm_DogsList::FillList() {
    const ReadRun run(TheDataModule().Conn1);
    std::vector<DogListRow> dogs = DogsWithOwnersByName();
    const DogListTables tables;
    std::vector<ReportRow> rows;
    rows.reserve(dogs.size());
    AccountTotals totals;
    AmountTexts prices(PriceText);
    for (DogListRow& dog : dogs) {
        DogListFigures figures = tables.Of(dog);
        totals.Add(figures.account);
        rows.push_back(RowOf(std::move(dog), std::move(figures), prices));
    }
    lvwList->SetRows(std::move(rows));
    sbDogs->SetPanel(2, TotalsLine(totals.owed, totals.paid));
}

void fm_DogsList::JumpToDog(int position) {
    const QString node = lvwList->Row(position).key;
    // A breed that is not in use has its dogs here and no place in the tree.
    if (!TheMainWindow().NodeExists(node))
        return;
    jumpedToDog_ = true;
    TheMainWindow().SelectNode(node);
    accept();
}

void fm_DogsList::ShowAwardsMenu(int position) {
    if (position < 0)
        return;
    const std::vector<MenuEntry> menu = AwardsMenu(lvwList->Row(position).tag.toInt());
    if (menu.empty())
        return;
    if (const int chosen = ThePlatform().menus->TrackPopup(menu))
        ToggleAward(position, chosen);
}

void fm_DogsList::ToggleAward(int position, int oceneniID) {
    const int psiID = lvwList->Row(position).tag.toInt();
    if (CountAwardOfDog(psiID, oceneniID) > 0)
        DeleteAwardOfDog(psiID, oceneniID);
    else
        AddAwardsToDog(psiID, {oceneniID});
    lvwList->SetCell(position, kAwards, AwardsText(AwardNamesOfDog(psiID)));
}

} // namespace lorvo
