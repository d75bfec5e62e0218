#include "manager/frmSpravce.h"

#include "forms/controls.h"
#include "manager/check_page.h"
#include "manager/copies_page.h"
#include "manager/entries_page.h"
#include "manager/lists_page.h"
#include "manager/people_page.h"
#include "platform/failure_guard.h"

#include <QTabWidget>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

frmSpravce::frmSpravce(Platform& platform, QWidget* parent)
    : Form("frmSpravce", u"Správce dat"_s, Border::Sizable, parent),
      tabSpravce(Named(new QTabWidget(this), u"tabSpravce"_s)) {
    const ShowAccess show(platform);
    tabSpravce->addTab(new CopiesPage(show, this), u"Zálohy"_s);
    tabSpravce->addTab(new EntriesPage(show, this), u"Převzetí přihlášek"_s);
    tabSpravce->addTab(new ListsPage(show, this), u"Seznamy"_s);
    tabSpravce->addTab(new PeoplePage(show, this), u"Po výstavě"_s);
    tabSpravce->addTab(new CheckPage(show, this), u"Kontrola"_s);
    auto* cmdCancel = Named(new QPushButton(u"Zavřít"_s, this), u"cmdCancel"_s);
    auto* column = new QVBoxLayout(this);
    column->addWidget(tabSpravce);
    column->addLayout(ButtonRow({cmdCancel}));
    resize(1100, 640);
    Connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

} // namespace lorvo
