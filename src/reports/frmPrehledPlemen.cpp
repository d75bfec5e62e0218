#include "reports/frmPrehledPlemen.h"

#include "forms/controls.h"
#include "office/papers/breed_overview.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "platform/values/errors.h"
#include "reports/document_message.h"

#include <QVBoxLayout>

namespace lorvo {

namespace {
constexpr int kTitleWidth = 360;
}

frmPrehledPlemen::frmPrehledPlemen(QWidget* parent)
    : Form("frmPrehledPlemen", QStringLiteral("Přehled plemen"), Border::Fixed, parent) {
    auto* options = new QGroupBox(QStringLiteral("Volby"), this);
    txtTitle =
        Named(new QLineEdit(QStringLiteral("Krajská výstava psů společenských plemen v ..."), this),
              QStringLiteral("txtTitle"));
    txtTitle->setMinimumWidth(kTitleWidth);
    (new QFormLayout(options))
        ->addRow(CaptionFor(txtTitle, QStringLiteral("Titulek"), options), txtTitle);
    cmdOK = Named(new QPushButton(QStringLiteral("Tisk"), this), QStringLiteral("cmdOK"));
    cmdCancel = Named(new QPushButton(QStringLiteral("Storno"), this), QStringLiteral("cmdCancel"));
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
        ThePlatform().messages->Show(QString::fromUtf8(error.what()), MessageIcon::Stop,
                                     MessageButtons::Ok, windowTitle());
        return;
    }
    TellWhenNotOpened(document, windowTitle());
    accept();
}

ShownDocument frmPrehledPlemen::PutOut() const {
    const WaitCursor wait(*ThePlatform().ui);
    const auto word = ThePlatform().wordProcessors->Create(QStringLiteral("Přehled plemen"));
    TypeBreedOverview(*word, txtTitle->text());
    return word->Show();
}

} // namespace lorvo
