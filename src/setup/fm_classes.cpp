#include "setup/fm_classes.h"

#include "app/module_values.h"
#include "forms/messages.h"
#include "forms/report_list.h"
#include "platform/failure_guard.h"
#include "setup/code_list.h"
#include "store/psi_lists.h"

#include <QToolBar>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {
constexpr int kRows = 10;
}

// kept: dead-toolbar-of-classes
// The bar's buttons do nothing; names are edited by a click on the text.
fm_classes::fm_classes(QWidget* parent)
    : Form("fm_classes", u"Třídy"_s, Border::Sizable, parent),
      lvwClasses(new ReportList("lvwClasses", {u"Název třídy"_s, u"Počet psů"_s}, this)) {
    lvwClasses->SetColumnWidths({260, 90});
    lvwClasses->SetLabelEdit(true);
    lvwClasses->SetUntouchedEdits(false);
    auto* column = new QVBoxLayout(this);
    column->addWidget(CodeListToolBar("tbrPlemena", this));
    column->addWidget(lvwClasses);
    resize(400, 360);
    lvwClasses->setFocus();
    Connect(lvwClasses, &ReportList::AfterLabelEdit, this, &fm_classes::Rename);
}

void fm_classes::Load() {
    ModuleValues& shared = Module();
    shared.BreedsDirty = false;
    std::vector<ReportRow> rows;
    for (int trida = 1; trida <= kRows; ++trida) {
        const QString& name = shared.ClassNames[static_cast<std::size_t>(trida - 1)];
        if (!name.isEmpty())
            rows.push_back({u"C"_s + QString::number(trida),
                            {},
                            {{name}, {QString::number(CountDogsWithClass(trida))}}});
    }
    while (rows.size() < kRows)
        rows.push_back({u"C"_s + QString::number(rows.size() + 1), {}, {{u"-nepoužito-"_s}}});
    lvwClasses->SetRows(std::move(rows));
}

void fm_classes::Rename(int position, const QString& text, bool* cancel) {
    if (text.isEmpty()) {
        Refuse(*this, u"Název musí být zadán!"_s);
        *cancel = true;
        return;
    }
    ModuleValues& shared = Module();
    shared.ClassNames[static_cast<std::size_t>(position)] = text;
    shared.BreedsDirty = true;
}

} // namespace lorvo
