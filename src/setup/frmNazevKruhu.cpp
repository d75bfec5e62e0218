#include "setup/frmNazevKruhu.h"

#include "app/main_window_services.h"
#include "forms/controls.h"
#include "office/tree/node_key.h"
#include "platform/failure_guard.h"
#include "store/kruhy.h"

#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {
constexpr int kNameWidth = 280;
}

frmNazevKruhu::frmNazevKruhu(QWidget* parent)
    : Form("frmNazevKruhu", u"Název kruhu"_s, Border::Fixed, parent),
      txtName(Named(new QLineEdit(this), u"txtName"_s)),
      cmdOK(Named(new QPushButton(u"OK"_s, this), u"cmdOK"_s)),
      cmdCancel(Named(new QPushButton(u"Storno"_s, this), u"cmdCancel"_s)) {
    txtName->setMinimumWidth(kNameWidth);
    cmdOK->setEnabled(false);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(CaptionFor(txtName, u"Název kruhu"_s, this));
    layout->addWidget(txtName);
    layout->addLayout(ButtonRow({cmdOK, cmdCancel}));

    Connect(txtName, &QLineEdit::textChanged, this,
            [this](const QString& text) { cmdOK->setEnabled(!text.isEmpty()); });
    Connect(cmdOK, &QPushButton::clicked, this, &frmNazevKruhu::Store);
    Connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmNazevKruhu::Load() {
    const QString key = TheMainWindow().SelectedNode();
    if (key.isEmpty())
        return;
    txtName->setText(TheMainWindow().NodeText(key));
    txtName->selectAll();
}

void frmNazevKruhu::Store() {
    const QString key = TheMainWindow().SelectedNode();
    if (const auto ring = NodeKey::IdIn(key, NodeKind::Ring)) {
        RenameRing(*ring, txtName->text());
        TheMainWindow().SetNodeText(key, txtName->text());
    }
    accept();
}

} // namespace lorvo
