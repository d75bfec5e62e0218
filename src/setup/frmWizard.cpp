#include "setup/frmWizard.h"

#include "app/common_routines.h"
#include "app/module_values.h"
#include "forms/controls.h"
#include "forms/messages.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "setup/breed_tree.h"
#include "store/plemena.h"

#include <QKeyEvent>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kBreedsHeight = 320;
constexpr int kBreedNameWidth = 410;

// How wide the texts are: pixels at least, and letters.
constexpr int kTextWidth = 520;
constexpr int kTextLetters = 72;

enum Page { kWelcome, kDate, kShow, kCurrency, kBreeds };

constexpr QStringView kTexts[] = {
    u"Vítejte v průvodci. S jeho pomocí můžete pohodlně nastavit všechny všechny údaje, potřebné k "
    u"tomu, abyste mohli začít přidávat psy do výstavy. Klikněte na tlačítko Dále.",
    u"Zadejte datum výstavy. Toto je základní údaj, bez kterého Vám program neumožní přidat "
    u"žádného "
    u"psa, protože bez informace o věku psa v den výstavy by nebylo možné určit, do kterých tříd "
    u"může "
    u"být přihlášen.",
    u"Zadejte název hlavní výstavy. V okně Tabulky/Výstavy můžete dodatečně vytvořit libovolný "
    u"počet "
    u"výstav. Jedna (hlavní) výstava je ale v seznamu povinná.",
    u"Zadejte (či spíše potvrďte) název a zkratku hlavní používané měny. V okně Nastavení/Měny "
    u"můžete "
    u"přidat libovolný počet dalších měn a zadat jejich kursy.",
    u"Vyberte plemena, která chcete vystavovat. Tento výběr nemusí být definitivní a v seznamu "
    u"plemen "
    u"si později můžete vytvořit i vlastní podskupiny.",
};

constexpr QStringView kSummaryCaptions[] = {u"Datum výstavy", u"Název hlavní výstavy",
                                            u"Název hlavní měny", u"Zkratka hlavní měny"};

const QString kForward = u"Dále >"_s;
const QString kFinish = u"Dokončit"_s;

std::vector<std::unique_ptr<BreedNode>> ReadBreeds() {
    std::vector<std::unique_ptr<BreedNode>> top;
    for (const Plemena& breed : TopBreeds())
        top.push_back(MakeBreedNode(breed));
    std::vector<std::pair<int, std::unique_ptr<BreedNode>>> subgroups;
    for (const Plemena& breed : Subgroups())
        subgroups.emplace_back(breed.Parent, MakeBreedNode(breed));
    return JoinSubgroups(std::move(top), std::move(subgroups));
}

QGroupBox* AddFrame(QWidget* page, const QString& caption, QWidget* field) {
    auto* frame = new QGroupBox(caption, page);
    field->setParent(frame);
    field->setAccessibleName(caption);
    (new QVBoxLayout(frame))->addWidget(field);
    page->layout()->addWidget(frame);
    return frame;
}

} // namespace

frmWizard::frmWizard(QWidget* parent)
    : Form("frmWizard", u"Průvodce"_s, Border::Fixed, parent), pages_(new QStackedWidget(this)),
      lblTitle(Named(new QLabel(this), u"lblTitle"_s)) {
    QFont titleFont = lblTitle->font();
    titleFont.setBold(true);
    titleFont.setPointSize(titleFont.pointSize() + 4);
    lblTitle->setFont(titleFont);

    AddPage(kTexts[kWelcome].toString());
    QWidget* date = AddPage(kTexts[kDate].toString());
    AddFrame(date, u"Datum výstavy"_s, dtDatum = DatePicker(u"dtDatum"_s, date));
    txtNazevVystavy = AddBox(AddPage(kTexts[kShow].toString()), "txtNazevVystavy",
                             u"Název hlavní výstavy"_s, u"Hlavní výstava"_s);
    QWidget* currency = AddPage(kTexts[kCurrency].toString());
    txtNazevMeny = AddBox(currency, "txtNazevMeny", u"Název hlavní měny"_s, u"Koruna česká"_s);
    txtCurrency = AddBox(currency, "txtCurrency", u"Zkratka hlavní měny"_s, u"Kč"_s);
    QWidget* breeds = AddPage(kTexts[kBreeds].toString());
    tvwWizardPlemena =
        new BreedTree("tvwWizardPlemena",
                      {{kBreedName, u"Název (Původní název)"_s}, {kBreedFci, u"FCI"_s}}, breeds);
    tvwWizardPlemena->setMinimumHeight(kBreedsHeight);
    tvwWizardPlemena->setColumnWidth(0, kBreedNameWidth);
    breeds->layout()->addWidget(tvwWizardPlemena);
    breeds->layout()->addWidget(MakeSummary(breeds));
    for (int page = kWelcome; page < kBreeds; ++page)
        static_cast<QVBoxLayout*>(pages_->widget(page)->layout())->addStretch();
    BuildButtons();
}

QWidget* frmWizard::AddPage(const QString& text) {
    auto* page = Named(new QWidget(pages_), ElementName("picWiz", pages_->count()));
    auto* lblText = Named(new QLabel(text, page), ElementName("lblText", pages_->count()));
    lblText->setWordWrap(true);
    lblText->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    texts_.push_back(lblText);
    (new QVBoxLayout(page))->addWidget(lblText);
    pages_->addWidget(page);
    return page;
}

QLineEdit* frmWizard::AddBox(QWidget* page, const char* name, const QString& frame,
                             const QString& text) {
    auto* box = Named(new QLineEdit(text, page), QString::fromLatin1(name));
    AddFrame(page, frame, box);
    return box;
}

QWidget* frmWizard::MakeSummary(QWidget* page) {
    auto* Frame2 = Named(new QGroupBox(page), u"Frame2"_s);
    auto* form = new QFormLayout(Frame2);
    for (std::size_t i = 0; i < summary_.size(); ++i) {
        summary_[i] = ValueLabel(kSummaryCaptions[i].toString(), Frame2);
        summary_[i]->setText(u"-"_s);
        form->addRow(kSummaryCaptions[i].toString(), summary_[i]);
    }
    Frame2->hide();
    return Frame2;
}

void frmWizard::BuildButtons() {
    cmdBack = Named(new QPushButton(u"< Zpět"_s, this), u"cmdBack"_s);
    cmdFwd = Named(new QPushButton(kForward, this), u"cmdFwd"_s);
    auto* cmdCancel = Named(new QPushButton(u"Storno"_s, this), u"cmdCancel"_s);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* button : {cmdBack, cmdFwd, cmdCancel}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    cmdFwd->setDefault(true);
    auto* column = new QVBoxLayout(this);
    column->addWidget(lblTitle);
    column->addWidget(pages_);
    column->addLayout(buttons);
    Connect(cmdBack, &QPushButton::clicked, this, [this] { ShowPage(page_ - 1); });
    Connect(cmdFwd, &QPushButton::clicked, this, &frmWizard::GoForward);
    Connect(cmdCancel, &QPushButton::clicked, this, &frmWizard::Quit);
}

// As high as the longest text asks for in the window's font.
void frmWizard::SizeTexts() {
    const int width = std::max(kTextWidth, fontMetrics().averageCharWidth() * kTextLetters);
    int height = 0;
    for (const QLabel* text : texts_)
        height = std::max(height, text->heightForWidth(width));
    for (QLabel* text : texts_)
        text->setFixedSize(width, height);
}

void frmWizard::Load() {
    SizeTexts();
    SetPickedDate(*dtDatum, DateValue::FromCalendar(2000, 1, 1));
    tvwWizardPlemena->FollowGridPreference();
    Module().BreedsDirty = false;
    tvwWizardPlemena->Model().SetNodes(ReadBreeds());
    const QString symbol = GetLocaleText(kLocaleCurrencySymbol);
    txtCurrency->setText(symbol.isEmpty() ? u"Kč"_s : symbol);
    ShowPage(kWelcome);
}

void frmWizard::ShowPage(int page) {
    page_ = page;
    const bool last = page == kPages - 1;
    cmdBack->setEnabled(page >= 1);
    cmdFwd->setText(last ? kFinish : kForward);
    if (last)
        FillSummary();
    pages_->setCurrentIndex(page);
    QWidget* const focused[] = {nullptr, dtDatum, txtNazevVystavy, txtNazevMeny, nullptr};
    if (focused[page])
        focused[page]->setFocus();
    lblTitle->setText(u"Průvodce nastavením"_s);
}

void frmWizard::FillSummary() {
    summary_[0]->setText(ThePlatform().locale->ShortDate(PickedDate(*dtDatum)));
    summary_[1]->setText(txtNazevVystavy->text());
    summary_[2]->setText(txtNazevMeny->text());
    summary_[3]->setText(txtCurrency->text());
}

void frmWizard::GoForward() {
    if (page_ == kPages - 1)
        accept();
    else
        ShowPage(page_ + 1);
}

void frmWizard::Quit() {
    if (Ask(*this, u"Určitě chcete ukončit průvodce?"_s, MessageButtons::YesNo) ==
        MessageAnswer::Yes)
        reject();
}

void frmWizard::keyPressEvent(QKeyEvent* event) {
    Guarded([&] {
        if (event->matches(QKeySequence::Cancel))
            Quit();
        else
            Form::keyPressEvent(event);
    });
}

} // namespace lorvo
