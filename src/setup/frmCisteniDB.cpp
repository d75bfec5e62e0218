#include "setup/frmCisteniDB.h"

#include "app/module_values.h"
#include "forms/controls.h"
#include "forms/messages.h"
#include "office/copies/sweep_copy.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "store/barvy.h"
#include "store/kruhy.h"
#include "store/majitele.h"
#include "store/meny.h"
#include "store/oceneni.h"
#include "store/ostatni.h"
#include "store/plemena.h"
#include "store/psi.h"
#include "store/psi_oceneni.h"
#include "store/psi_ve_vystavach.h"
#include "store/souteze.h"
#include "store/uhrady.h"
#include "store/vazby_souteze.h"
#include "store/vystavy.h"

#include <QCheckBox>
#include <QFrame>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

enum Table {
    kAwards,
    kOwnBreeds,
    kOwners,
    kColours,
    kCompetitions,
    kCurrencies,
    kFees,
    kPayments,
    kShows
};

constexpr QStringView kCaptions[] = {
    u"Ocenění",
    u"Plemena (budou odstraněna pouze vlastní)",
    u"Majitelé",
    u"Barvy",
    u"Soutěže",
    u"Měny",
    u"Ceny výstav a soutěží",
    u"Úhrady",
    u"Výstavy",
};

void DeleteAwards() {
    DeleteAllAwardsOfDogs();
    DeleteAllAwards();
}

struct Clearing {
    Table table;
    void (*run)();
};

// In this order: the fees of the first show go to 0 before the other shows are deleted.
constexpr Clearing kClearings[] = {
    {kOwnBreeds, DeleteOwnBreeds},
    {kOwners, DeleteAllOwners},
    {kColours, DeleteAllColours},
    {kCompetitions, DeleteAllCompetitions},
    {kCurrencies, DeleteAllCurrencies},
    {kFees, ClearFeesOfFirstShow},
    {kPayments, DeleteAllPayments},
    {kShows, DeleteShowsButOldest},
    {kAwards, DeleteAwards},
};

QFrame* RedFrame(QWidget* inner, QWidget* parent) {
    auto* frame = new QFrame(parent);
    frame->setFrameStyle(QFrame::Box | QFrame::Plain);
    frame->setLineWidth(2);
    QPalette palette = frame->palette();
    palette.setColor(QPalette::WindowText, Qt::red);
    frame->setPalette(palette);
    inner->setPalette(parent->palette());
    auto* row = new QHBoxLayout(frame);
    row->setContentsMargins(3, 3, 3, 3);
    row->addWidget(inner);
    return frame;
}

} // namespace

frmCisteniDB::frmCisteniDB(QWidget* parent)
    : Form("frmCisteniDB", u"Smazat data"_s, Border::Fixed, parent) {
    auto* lblInfo =
        Named(new QLabel(
                  u"\nSeznamy PSŮ a KRUHŮ a veškeré vazby budou kompletně smazány. Z následujících "
                  u"položek zatrhněte další tabulky, které se mají smazat. Smazání je NEVRATNÁ "
                  u"operace."_s,
                  this),
              u"lblInfo"_s);
    lblInfo->setWordWrap(true);
    auto* column = new QVBoxLayout(this);
    column->addWidget(lblInfo);
    for (int table = 0; table < kTables; ++table) {
        chkTable[table] =
            Named(new QCheckBox(kCaptions[table].toString(), this), ElementName("chkTable", table));
        column->addWidget(chkTable[table]);
    }
    chkTable[kColours]->hide();

    auto* cmdCleaa = Named(new QPushButton(u"Smazat"_s, this), u"cmdCleaa"_s);
    auto* cmdCancel = Named(new QPushButton(u"Storno"_s, this), u"cmdCancel"_s);
    for (QPushButton* button : {cmdCleaa, cmdCancel})
        button->setAutoDefault(false);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(RedFrame(cmdCleaa, this));
    buttons->addStretch();
    buttons->addWidget(cmdCancel);
    column->addLayout(buttons);
    cmdCancel->setFocus();

    Connect(cmdCleaa, &QPushButton::clicked, this, &frmCisteniDB::Clear);
    Connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

bool frmCisteniDB::IsSure() const {
    return ThePlatform().messages->Show(
               u"Vymazání databáze je zásadní krok. Ve vybraných tabulkách ztratíte veškerá data "
               u"bez možnosti opravy. Jste si jist?"_s,
               MessageIcon::Exclamation, MessageButtons::YesNo,
               windowTitle()) == MessageAnswer::Yes;
}

void frmCisteniDB::Clear() {
    if (IsSure()) {
        ClearTables();
        Inform(*this, u"Vybrané položky byly vymazány."_s);
        Module().TreeDirty = true;
    }
    accept();
}

void frmCisteniDB::ClearTables() {
    const WaitCursor waiting = Waiting();
    CopyBeforeSweep();
    DeleteAllDogs();
    // kept: clearing-leaves-rings-of-breeds
    DeleteAllRings();
    DeleteAllCompetitionEntries();
    DeleteAllShowEntries();
    ClearShowDate();
    for (const Clearing& clearing : kClearings) {
        if (chkTable[clearing.table]->isChecked())
            clearing.run();
    }
}

} // namespace lorvo
