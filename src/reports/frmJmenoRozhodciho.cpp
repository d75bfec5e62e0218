#include "reports/frmJmenoRozhodciho.h"

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

/// ID of the ring whose node is selected; nullopt when no node or none of a ring is.
std::optional<int> SelectedRing() {
    return NodeKey::IdIn(TheMainWindow().SelectedNode(), NodeKind::Ring);
}

} // namespace

frmJmenoRozhodciho::frmJmenoRozhodciho(QWidget* parent)
    : Form("frmJmenoRozhodciho", u"Jméno rozhodčího"_s, Border::Fixed, parent),
      txtRozhodci(Named(new QLineEdit(this), u"txtRozhodci"_s)),
      cmdOK(Named(new QPushButton(u"OK"_s, this), u"cmdOK"_s)),
      cmdCancel(Named(new QPushButton(u"Storno"_s, this), u"cmdCancel"_s)) {
    txtRozhodci->setMinimumWidth(kNameWidth);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(CaptionFor(txtRozhodci, u"Jméno rozhodčího"_s, this));
    layout->addWidget(txtRozhodci);
    layout->addLayout(ButtonRow({cmdOK, cmdCancel}));

    Connect(cmdOK, &QPushButton::clicked, this, &frmJmenoRozhodciho::Store);
    Connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmJmenoRozhodciho::Load() {
    const auto ring = SelectedRing();
    if (!ring)
        return;
    if (const auto row = RingByID(*ring))
        txtRozhodci->setText(row->JmenoRozhodciho);
    txtRozhodci->selectAll();
}

void frmJmenoRozhodciho::Store() {
    if (const auto ring = SelectedRing())
        SetRingJudge(*ring, txtRozhodci->text());
    accept();
}

} // namespace lorvo
