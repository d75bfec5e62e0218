#include "manager/people_page.h"

#include "forms/controls.h"
#include "office/exchange/people_removal.h"
#include "platform/failure_guard.h"

#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

PeoplePage::PeoplePage(const ShowAccess& show, QWidget* parent)
    : QWidget(parent),
      cmdPreview(Named(new QPushButton(u"&Ukázat, co se vymaže"_s, this), u"cmdPreview"_s)),
      cmdRemove(Named(new QPushButton(u"&Vymazat údaje osob"_s, this), u"cmdRemove"_s)),
      lblNahled(Named(new QLabel(this), u"lblNahled"_s)), show_(show) {
    lblNahled->setWordWrap(true);
    lblNahled->setTextFormat(Qt::PlainText);
    lblNahled->setText(u"Po výstavě se tu dají vymazat údaje osob; psi, platby a součty zůstanou. "
                       u"Nejdřív se udělá kopie databáze."_s);
    cmdRemove->setEnabled(false);
    auto* column = new QVBoxLayout(this);
    column->addWidget(lblNahled);
    column->addStretch(1);
    column->addLayout(ButtonRow({cmdPreview, cmdRemove}));
    Connect(cmdPreview, &QPushButton::clicked, this, &PeoplePage::Preview);
    Connect(cmdRemove, &QPushButton::clicked, this, &PeoplePage::Remove);
}

void PeoplePage::Preview() {
    PeopleCounts counts;
    if (!show_.OnShow([&counts] { counts = CountPeople(); }))
        return;
    lblNahled->setText(RemovalSentences(counts).join(u'\n'));
    cmdRemove->setEnabled(true);
}

void PeoplePage::Remove() {
    if (show_.Ask(u"Skutečně vymazat údaje osob?"_s, MessageButtons::YesNoCancel) !=
        MessageAnswer::Yes)
        return;
    const bool removed = show_.OnShowAlone([this] {
        show_.CopyNow();
        RemovePeople();
    });
    if (!removed)
        return;
    cmdRemove->setEnabled(false);
    lblNahled->setText(u"Údaje osob jsou vymazané."_s);
}

} // namespace lorvo
