#include "dogs/frmPsiVSoutezi.h"

#include "forms/controls.h"
#include "forms/report_list.h"
#include "office/tree/node_key.h"
#include "platform/failure_guard.h"
#include "store/data_module.h"
#include "store/psi_lists.h"
#include "store/souteze.h"
#include "store/vazby_souteze.h"

#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kTagRole = Qt::UserRole + 1;
constexpr int kSecondDogWidth = 300;

ReportList* DogList(const char* name, QWidget* parent) {
    auto* list = new ReportList(name, {u"Jméno"_s, u"Jméno majitele"_s}, parent);
    list->SetColumnWidths({140, 140});
    list->SetCheckBoxes(true);
    list->SetSorting(true);
    return list;
}

} // namespace

frmPsiVSoutezi::frmPsiVSoutezi(int soutezID, QWidget* parent)
    : Form("frmPsiVSoutezi", u"Seznam psů v soutěži"_s, Border::Sizable, parent),
      soutezID_(soutezID), tvwDogs(Named(new QTreeView(this), u"tvwDogs"_s)),
      dogs_(new QStandardItemModel(tvwDogs)), lvwDogs1(DogList("lvwDogs1", this)),
      picSecondDog(MakeSecondDogPanel()) {
    BuildControls();
    Connect(lvwDogs1, &ReportList::ItemClick, this, &frmPsiVSoutezi::ListPartners);
    Connect(lvwDogs2, &ReportList::ItemCheck, this, &frmPsiVSoutezi::ChoosePartner);
    Connect(dogs_, &QStandardItemModel::itemChanged, this,
            [this](QStandardItem* item) { PassCheck(*item); });
}

void frmPsiVSoutezi::BuildControls() {
    tvwDogs->setModel(dogs_);
    tvwDogs->setHeaderHidden(true);
    tvwDogs->setUniformRowHeights(true);
    auto* lists = new QHBoxLayout;
    lists->addWidget(tvwDogs, 2);
    lists->addWidget(lvwDogs1, 3);
    lists->addWidget(picSecondDog);

    auto* cmdOK = Named(new QPushButton(u"OK"_s, this), u"cmdOK"_s);
    auto* cmdCancel = Named(new QPushButton(u"Storno"_s, this), u"cmdCancel"_s);
    Connect(cmdOK, &QPushButton::clicked, this, &frmPsiVSoutezi::Store);
    Connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addLayout(lists);
    column->addLayout(ButtonRow({cmdOK, cmdCancel}));
    resize(640, 420);
}

QWidget* frmPsiVSoutezi::MakeSecondDogPanel() {
    auto* panel = Named(new QWidget(this), u"picSecondDog"_s);
    lvwDogs2 = DogList("lvwDogs2", panel);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(CaptionFor(lvwDogs2, u"Do páru"_s, panel));
    column->addWidget(lvwDogs2);
    panel->setFixedWidth(kSecondDogWidth);
    panel->hide();
    return panel;
}

void frmPsiVSoutezi::Load() {
    lvwDogs1->ClearRows();
    const Souteze competition = ExistingCompetition(soutezID_);
    for (const QString& parameter : {competition.NazevPar1, competition.NazevPar2})
        if (!parameter.isEmpty())
            lvwDogs1->InsertColumn(lvwDogs1->ColumnCount(), parameter);
    if (competition.Parova) {
        picSecondDog->show();
        WidenBy(kSecondDogWidth);
    }
}

void frmPsiVSoutezi::ListPartners(int position) {
    if (picSecondDog->isHidden())
        return;
    lvwDogs2->ClearRows();
    const auto dog = DogByID(lvwDogs1->Row(position).tag.toInt());
    if (!dog)
        return;
    std::vector<ReportRow> rows;
    for (const Psi& bitch : BitchesOfBreeder(dog->Chovatel))
        rows.push_back({NodeKey::Dog(bitch.ID).ToText(), {}, {{bitch.Jmeno}, {bitch.Chovatel}}});
    lvwDogs2->SetRows(std::move(rows));
}

void frmPsiVSoutezi::ChoosePartner(int position) {
    for (int other = 0; other < lvwDogs2->RowCount(); ++other)
        if (other != position)
            lvwDogs2->SetChecked(other, false);
    const auto partner = NodeKey::FromText(lvwDogs2->Row(position).key);
    if (const int dog = lvwDogs1->SelectedRow(); partner && dog >= 0)
        partners_[lvwDogs1->Row(dog).tag] = partner->id;
}

void frmPsiVSoutezi::PassCheck(QStandardItem& changed) {
    const QSignalBlocker quiet(dogs_);
    for (int child = 0; child < changed.rowCount(); ++child)
        changed.child(child)->setCheckState(changed.checkState());
    QStandardItem* parent = changed.parent();
    if (parent && parent->rowCount() == 1)
        parent->setCheckState(changed.checkState());
    tvwDogs->viewport()->update();
}

// kept: ok-empties-the-competition
void frmPsiVSoutezi::Store() {
    std::vector<int> entered;
    for (int row = 0; row < dogs_->rowCount(); ++row) {
        const QStandardItem& dog = *dogs_->item(row);
        if (dog.checkState() != Qt::Checked)
            continue;
        const QString tag = dog.data(kTagRole).toString();
        entered.push_back(tag.toInt());
        if (partners_.contains(tag))
            entered.push_back(partners_[tag]);
    }
    EditRun run(TheDataModule().Conn1); // the entries before must not go alone
    DeleteDogsOfCompetition(soutezID_);
    AddDogsToCompetition(soutezID_, entered);
    run.Finish();
    accept();
}

} // namespace lorvo
