#include "dogs/frmEditMan.h"

#include "app/common_routines.h"
#include "app/module_values.h"
#include "forms/controls.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "store/majitele.h"

#include <QVBoxLayout>
#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

enum Box { kName, kStreet, kTown, kPostCode, kTelephone, kEmail, kCountry };

/// What the box of an address holds as long as there is none.
const QString kNoEmail = u"@"_s;

constexpr qsizetype kPostCodeDigits = 5;

/// The number that a typed post code means, blanks in it or not; 0 for none. Nullopt when it is no
/// post code.
std::optional<int> PostCodeOf(QString text) {
    text.remove(u' ');
    if (text.isEmpty() || text == u"0")
        return 0;
    const bool digits = std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
    return digits && text.size() == kPostCodeDigits ? std::optional(text.toInt()) : std::nullopt;
}

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
    const auto owner = OwnerByID(Module().CurrentOwner);
    if (!owner)
        return;
    txtItem[kName]->setText(owner->Jmeno);
    txtItem[kStreet]->setText(owner->Ulice);
    txtItem[kTown]->setText(owner->Mesto);
    txtItem[kPostCode]->setText(PostCodeText(owner->PSC));
    txtItem[kTelephone]->setText(owner->Telefon);
    txtItem[kEmail]->setText(owner->Email.isEmpty() ? kNoEmail : owner->Email);
    txtItem[kCountry]->setText(owner->Stat.value_or(QString()));
}

void frmEditMan::Store() {
    const auto postCode = PostCodeOf(txtItem[kPostCode]->text());
    if (!postCode) {
        ThePlatform().messages->Show(u"Chyba v zadání PSČ"_s, MessageIcon::Stop, MessageButtons::Ok,
                                     windowTitle());
        return;
    }
    if (txtItem[kEmail]->text() == kNoEmail)
        txtItem[kEmail]->clear();
    Majitele owner;
    owner.ID = Module().CurrentOwner;
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
