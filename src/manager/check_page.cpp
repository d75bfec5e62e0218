#include "manager/check_page.h"

#include "forms/controls.h"
#include "office/exchange/show_check.h"
#include "platform/failure_guard.h"

#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

CheckPage::CheckPage(const ShowAccess& show, QWidget* parent)
    : QWidget(parent), cmdCheck(Named(new QPushButton(u"&Zkontrolovat"_s, this), u"cmdCheck"_s)),
      txtNalez(Named(new QPlainTextEdit(this), u"txtNalez"_s)), show_(show) {
    txtNalez->setReadOnly(true);
    txtNalez->setTabChangesFocus(true);
    auto* column = new QVBoxLayout(this);
    column->addWidget(CaptionFor(txtNalez, u"&Nález"_s, this));
    column->addWidget(txtNalez);
    column->addLayout(ButtonRow({cmdCheck}));
    setTabOrder(txtNalez, cmdCheck);
    Connect(cmdCheck, &QPushButton::clicked, this, &CheckPage::Check);
}

void CheckPage::Check() {
    ShowCheck check;
    if (!show_.OnShow([&check] { check = CheckShow(); }))
        return;
    const QString verdict = check.IsWell() ? u"Všechno je v pořádku."_s : u"Něco není v pořádku:"_s;
    txtNalez->setPlainText((QStringList(verdict) + check.faults + check.figures).join(u'\n'));
}

} // namespace lorvo
