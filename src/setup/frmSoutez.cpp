#include "setup/frmSoutez.h"

#include "app/common_routines.h"
#include "forms/controls.h"
#include "forms/messages.h"
#include "platform/failure_guard.h"
#include "platform/values/errors.h"
#include "store/souteze.h"
#include "store/vazby_souteze.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

enum Box { kName, kParameter1, kParameter2, kPrice };

constexpr QStringView kCaptions[] = {u"Název soutěže", u"Název parametru 1", u"Název parametru 2",
                                     u"Cena za účast (Kč)"};

/// An emptied box stores no price.
std::optional<Currency> PriceFromText(const QString& text) {
    if (text.trimmed().isEmpty())
        return {};
    return AmountFromText(text);
}

} // namespace

frmSoutez::frmSoutez(int soutezID, QWidget* parent)
    : Form("frmSoutez", {}, Border::Fixed, parent), soutezID_(soutezID) {
    BuildControls();
    SetNumberStyle(*txtNazev[kPrice]);
    for (QLineEdit* box : txtNazev)
        Connect(box, &QLineEdit::textChanged, this, &frmSoutez::EnableOK);
    Connect(cmdOK, &QPushButton::clicked, this, &frmSoutez::Store);
}

void frmSoutez::BuildControls() {
    auto* form = new QFormLayout;
    for (std::size_t i = 0; i < txtNazev.size(); ++i) {
        txtNazev[i] = Named(new QLineEdit(this), ElementName("txtNazev", static_cast<int>(i)));
        QLabel* caption = CaptionFor(txtNazev[i], kCaptions[i].toString(), this);
        form->addRow(caption, txtNazev[i]);
        // The names of the parameters only travel through the window.
        const bool hidden = i == kParameter1 || i == kParameter2;
        caption->setHidden(hidden);
        txtNazev[i]->setHidden(hidden);
    }
    txtNazev[kName]->setMinimumWidth(280);
    chkPairs = Named(new QCheckBox(u"Soutěž je určena pro páry"_s, this), u"chkPairs"_s);
    lblErr = Named(new QLabel(u"(Tuto volbu není možno přepínat, je-li v soutěži už přihlášen "
                              u"nějaký pes)"_s,
                              this),
                   u"lblErr"_s);
    cmdOK = Named(new QPushButton(u"OK"_s, this), u"cmdOK"_s);
    auto* cmdCancel = Named(new QPushButton(u"Storno"_s, this), u"cmdCancel"_s);
    Connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* column = new QVBoxLayout(this);
    column->addLayout(form);
    column->addWidget(chkPairs);
    column->addWidget(lblErr);
    column->addLayout(ButtonRow({cmdOK, cmdCancel}));
}

void frmSoutez::Load() {
    txtNazev[kPrice]->setText(u"0"_s);
    if (soutezID_ == 0) {
        setWindowTitle(u"Přidat soutěž"_s);
        lblErr->hide();
    } else {
        setWindowTitle(u"Upravit soutěž"_s);
        LoadCompetition();
    }
    EnableOK();
    txtNazev[kName]->selectAll();
}

void frmSoutez::LoadCompetition() {
    if (const auto competition = CompetitionByID(soutezID_)) {
        txtNazev[kName]->setText(competition->Nazev);
        txtNazev[kParameter1]->setText(competition->NazevPar1);
        txtNazev[kParameter2]->setText(competition->NazevPar2);
        txtNazev[kPrice]->setText(PlainAmount(competition->Cena.value_or(Currency())));
        chkPairs->setChecked(competition->Parova);
    }
    const bool entered = CountDogsInCompetition(soutezID_) > 0;
    lblErr->setVisible(entered);
    chkPairs->setEnabled(!entered);
}

void frmSoutez::EnableOK() {
    cmdOK->setEnabled(!txtNazev[kName]->text().isEmpty());
}

Souteze frmSoutez::Competition() const {
    Souteze competition;
    competition.ID = soutezID_;
    competition.Nazev = txtNazev[kName]->text();
    competition.Cena = PriceFromText(txtNazev[kPrice]->text());
    competition.Parova = chkPairs->isChecked();
    competition.NazevPar1 = txtNazev[kParameter1]->text();
    competition.NazevPar2 = txtNazev[kParameter2]->text();
    return competition;
}

void frmSoutez::Store() {
    const QString name = txtNazev[kName]->text();
    if (IsCompetitionNamed(name, soutezID_)) {
        Warn(*this, u"Soutěž "_s + name + u" už existuje. použijte jiný název."_s);
        return;
    }
    try {
        if (soutezID_ > 0)
            UpdateCompetition(Competition());
        else
            InsertCompetition(Competition());
    } catch (const RangeError& failure) {
        Refuse(*this, kCaptions[kPrice].toString() + u": "_s + QString::fromUtf8(failure.what()));
        return;
    }
    accept();
}

} // namespace lorvo
