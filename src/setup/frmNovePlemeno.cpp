#include "setup/frmNovePlemeno.h"

#include "forms/controls.h"
#include "platform/failure_guard.h"
#include "store/plemena.h"

#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

frmNovePlemeno::frmNovePlemeno(int plemenoID, QWidget* parent)
    : Form("frmNovePlemeno", u"Přejmenovat plemeno"_s, Border::Fixed, parent),
      plemenoID_(plemenoID), txtPlemenoName(Named(new QLineEdit(this), u"txtPlemenoName"_s)),
      txtPlemenoNameOrig(Named(new QLineEdit(this), u"txtPlemenoNameOrig"_s)) {
    auto* form = new QFormLayout;
    form->addRow(CaptionFor(txtPlemenoName, u"Český název"_s, this), txtPlemenoName);
    form->addRow(CaptionFor(txtPlemenoNameOrig, u"Originální název"_s, this), txtPlemenoNameOrig);
    for (QLineEdit* box : {txtPlemenoName, txtPlemenoNameOrig})
        box->setMinimumWidth(300);
    auto* cmdOK = Named(new QPushButton(u"OK"_s, this), u"cmdOK"_s);
    auto* cmdCancel = Named(new QPushButton(u"Storno"_s, this), u"cmdCancel"_s);
    auto* column = new QVBoxLayout(this);
    column->addLayout(form);
    column->addLayout(ButtonRow({cmdOK, cmdCancel}));
    Connect(cmdOK, &QPushButton::clicked, this, &frmNovePlemeno::Store);
    Connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmNovePlemeno::Load() {
    if (const auto breed = BreedByID(plemenoID_)) {
        txtPlemenoName->setText(breed->Nazev);
        txtPlemenoNameOrig->setText(breed->NazevOrig);
    }
    txtPlemenoName->selectAll();
}

void frmNovePlemeno::Store() {
    SetBreedNames(plemenoID_, txtPlemenoName->text(), txtPlemenoNameOrig->text());
    title_ = txtPlemenoName->text() + u" ("_s + txtPlemenoNameOrig->text().trimmed() + u')';
    accept();
}

} // namespace lorvo
