#include "dogs/frmEditMan.h"

#include "app/common_routines.h"
#include "app/module_values.h"
#include "forms/controls.h"
#include "forms/messages.h"
#include "office/texts/post_code.h"
#include "platform/failure_guard.h"
#include "store/majitele.h"

#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

enum Box { kName, kStreet, kTown, kPostCode, kTelephone, kEmail, kCountry };

/// What the box of an address holds as long as there is none.
const QString kNoEmail = u"@"_s;

} // namespace

frmEditMan::frmEditMan(QWidget* parent) : Form("frmEditMan", u"Majitel"_s, Border::Fixed, parent) {
    const std::array<QString, kBoxes> captions = {u"Jméno"_s,   u"Ulice"_s,  u"Město"_s, u"PSČ"_s,
                                                  u"Telefon"_s, u"E-mail"_s, u"Stát"_s};
    auto* form = new QFormLayout;
    for (int i = 0; i < kBoxes; ++i) {
        const auto place = static_cast<size_t>(i);
        txtItem[place] = Named(new QLineEdit(this), ElementName("txtItem", i));
        txtItem[place]->setMinimumWidth(300);
        form->addRow(CaptionFor(txtItem[place], captions[place], this), txtItem[place]);
    }
    auto* cmdOK = Named(new QPushButton(u"OK"_s, this), u"cmdOK"_s);
    auto* cmdCancel = Named(new QPushButton(u"Storno"_s, this), u"cmdCancel"_s);
    Connect(cmdOK, &QPushButton::clicked, this, &frmEditMan::Store);
    Connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addLayout(form);
    column->addLayout(ButtonRow({cmdOK, cmdCancel}));
}

void frmEditMan::Load() {
    ownerID_ = Module().CurrentOwner;
    const Majitele owner = ExistingOwner(ownerID_);
    txtItem[kName]->setText(owner.Jmeno);
    txtItem[kStreet]->setText(owner.Ulice);
    txtItem[kTown]->setText(owner.Mesto);
    txtItem[kPostCode]->setText(PostCodeText(owner.PSC));
    txtItem[kTelephone]->setText(owner.Telefon);
    txtItem[kEmail]->setText(owner.Email.isEmpty() ? kNoEmail : owner.Email);
    txtItem[kCountry]->setText(owner.Stat.value_or(QString()));
}

void frmEditMan::Store() {
    const auto postCode = PostCodeFromText(txtItem[kPostCode]->text());
    if (!postCode)
        return Refuse(*this, u"Chyba v zadání PSČ"_s);
    if (txtItem[kEmail]->text() == kNoEmail)
        txtItem[kEmail]->clear();
    Majitele owner;
    owner.ID = ownerID_;
    owner.Jmeno = txtItem[kName]->text().trimmed();
    owner.Ulice = txtItem[kStreet]->text().trimmed();
    owner.Mesto = txtItem[kTown]->text().trimmed();
    owner.PSC = *postCode;
    owner.Telefon = txtItem[kTelephone]->text().trimmed();
    owner.Email = txtItem[kEmail]->text().trimmed();
    owner.Stat = txtItem[kCountry]->text().trimmed();
    UpdateOwner(owner);
    accept();
}

} // namespace lorvo
