#include "mainwindow/frmFind.h"

#include "app/main_window_services.h"
#include "forms/controls.h"
#include "mainwindow/tree_search.h"
#include "platform/failure_guard.h"

#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {
constexpr int kTextWidth = 260;
}

frmFind::frmFind(TreeSearch& search, QWidget* parent)
    : Form("frmFind", u"Hledat text"_s, Border::Fixed, parent), search_(search),
      txtFind(Named(new QLineEdit(this), u"txtFind"_s)),
      cdmOK(Named(new QPushButton(u"Hledat"_s, this), u"cdmOK"_s)),
      cmdCancel(Named(new QPushButton(u"Zavřít"_s, this), u"cmdCancel"_s)) {
    txtFind->setMinimumWidth(kTextWidth);
    auto* frame = Named(new QGroupBox(u"Hledat v"_s, this), u"fraFind"_s);
    auto* row = new QFormLayout(frame);
    row->addRow(CaptionFor(txtFind, u"Hledat text"_s, frame), txtFind);

    auto* column = new QVBoxLayout(this);
    column->addWidget(frame);
    column->addLayout(ButtonRow({cdmOK, cmdCancel}));

    Connect(cdmOK, &QPushButton::clicked, this, &frmFind::Find);
    Connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmFind::Load() {
    search_.start = 1;
}

void frmFind::Find() {
    if (txtFind->text().isEmpty())
        return;
    search_.text = txtFind->text();
    if (SelectNextMatch(search_, TheMainWindow()))
        cdmOK->setText(u"Další"_s);
}

} // namespace lorvo
