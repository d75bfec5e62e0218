#include "reports/frmPrehledPlemen.h"

#include "forms/controls.h"
#include "forms/messages.h"
#include "office/papers/breed_overview.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "platform/values/errors.h"
#include "reports/document_message.h"

#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {
constexpr int kTitleWidth = 360;
}

frmPrehledPlemen::frmPrehledPlemen(QWidget* parent)
    : Form("frmPrehledPlemen", u"Přehled plemen"_s, Border::Fixed, parent) {
    auto* options = new QGroupBox(u"Volby"_s, this);
    txtTitle = Named(new QLineEdit(u"Krajská výstava psů společenských plemen v ..."_s, this),
                     u"txtTitle"_s);
    txtTitle->setMinimumWidth(kTitleWidth);
    (new QFormLayout(options))->addRow(CaptionFor(txtTitle, u"Titulek"_s, options), txtTitle);
    cmdOK = Named(new QPushButton(u"Tisk"_s, this), u"cmdOK"_s);
    cmdCancel = Named(new QPushButton(u"Storno"_s, this), u"cmdCancel"_s);
    Connect(cmdOK, &QPushButton::clicked, this, &frmPrehledPlemen::Print);
    Connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(options);
    layout->addStretch();
    layout->addLayout(ButtonRow({cmdOK, cmdCancel}));
}

void frmPrehledPlemen::Print() {
    ShownDocument document;
    try {
        document = PutOut();
    } catch (const Error& error) {
        return Refuse(*this, QString::fromUtf8(error.what()));
    }
    TellWhenNotOpened(document, windowTitle());
    accept();
}

ShownDocument frmPrehledPlemen::PutOut() const {
    const WaitCursor wait = Waiting();
    const auto word = ThePlatform().wordProcessors->Create(u"Přehled plemen"_s);
    TypeBreedOverview(*word, txtTitle->text());
    return word->Show();
}

} // namespace lorvo
