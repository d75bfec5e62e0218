// How the dog editor is laid out: the dog on the left, its owner on the right. Controls are made in
// reading order, which is the order that the Tab key follows.
#include "dogs/dog_class_box.h"
#include "dogs/dog_owner_box.h"
#include "dogs/fm_Dog.h"
#include "dogs/stored_texts_combo.h"
#include "forms/controls.h"
#include "office/texts/dog_texts.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QRadioButton>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kDesignedWidth = 760;
constexpr int kGapBetweenSides = 18;

template<typename Field> Field* AddRow(QGridLayout& grid, const QString& caption, Field* field) {
    const int row = grid.rowCount();
    grid.addWidget(CaptionFor(field, caption, field->parentWidget()), row, 0);
    grid.addWidget(field, row, 1);
    return field;
}

QLineEdit* TextBox(int index, QWidget* parent) {
    return Named(new QLineEdit(parent), ElementName("txtbox", index));
}

} // namespace

fm_Dog::fm_Dog(const DogTask& task, QWidget* parent)
    : Form("fm_Dog", u"Přidat psa"_s, Border::Sizable, parent), task_(task) {
    auto* sides = new QHBoxLayout;
    sides->setSpacing(kGapBetweenSides);
    sides->addWidget(MakeDogSide(), 1);
    sides->addWidget(MakeOwnerSide(), 1);
    cmd_OK = Named(new QPushButton(u"OK"_s, this), u"cmd_OK"_s);
    cmdCancel = Named(new QPushButton(u"Storno"_s, this), u"cmdCancel"_s);
    cmd_OK->setEnabled(false);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(sides);
    layout->addStretch();
    layout->addLayout(ButtonRow({cmd_OK, cmdCancel}));
    resize(kDesignedWidth, sizeHint().height());
    LimitTexts();
    Connect(txtbox[0], &QLineEdit::textChanged, this, &fm_Dog::UpdateOKButton);
    Connect(classes_, &DogClassBox::Clicked, this, &fm_Dog::UpdateOKButton);
    Connect(cmd_OK, &QPushButton::clicked, this, &fm_Dog::OK);
    Connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

/// A box takes what the store keeps of its text and no more.
void fm_Dog::LimitTexts() {
    txtbox[0]->setMaxLength(kJmenoWidth);
    for (QComboBox* parent : {icOtec, icMatka})
        parent->lineEdit()->setMaxLength(kParentWidth);
    icStanice->lineEdit()->setMaxLength(kDogTextWidth);
    for (const std::size_t index : {1U, 2U, 3U})
        txtbox[index]->setMaxLength(kDogTextWidth);
}

QWidget* fm_Dog::MakeDogSide() {
    auto* side = new QWidget(this);
    auto* grid = new QGridLayout(side);
    grid->setContentsMargins({});
    txtbox[0] = AddRow(*grid, u"&Jméno"_s, TextBox(0, side));
    icStanice =
        AddRow(*grid, u"Chovatelská &stanice"_s, new StoredTextsCombo(u"icStanice"_s, side));
    grid->addWidget(new QLabel(u"Pohlaví"_s, side), grid->rowCount(), 0);
    grid->addWidget(MakeGenderRow(side), grid->rowCount() - 1, 1);
    dtBorn = AddRow(*grid, u"&Datum narození"_s, DatePicker(u"dtBorn"_s, side, YearWindow::Past));
    SetPickedDate(*dtBorn, ThePlatform().clock->Now().DateOnly());
    classes_ = new DogClassBox(ClassListOf(task_.breedID), side);
    grid->addWidget(classes_, grid->rowCount(), 0, 1, 2);
    icOtec = AddRow(*grid, u"&Otec"_s, new StoredTextsCombo(u"icOtec"_s, side));
    icMatka = AddRow(*grid, u"&Matka"_s, new StoredTextsCombo(u"icMatka"_s, side));
    txtbox[1] = AddRow(*grid, u"&Chovatel"_s, TextBox(1, side));
    txtbox[2] = AddRow(*grid, u"Zkr. PK a č. &záp."_s, TextBox(2, side));
    grid->setColumnStretch(1, 1);
    return side;
}

QWidget* fm_Dog::MakeGenderRow(QWidget* parent) {
    auto* gender = new QWidget(parent);
    auto* row = new QHBoxLayout(gender);
    row->setContentsMargins({});
    optGender = {Named(new QRadioButton(u"&Pes"_s, gender), ElementName("optGender", 0)),
                 Named(new QRadioButton(u"&Fena"_s, gender), ElementName("optGender", 1))};
    for (QRadioButton* button : optGender)
        row->addWidget(button);
    row->addStretch();
    optGender[0]->setChecked(true);
    return gender;
}

QWidget* fm_Dog::MakeOwnerSide() {
    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins({});
    owner_ = new DogOwnerBox(side);
    column->addWidget(owner_);
    auto* grid = new QGridLayout;
    txtbox[3] = AddRow(*grid, u"Poznám&ka"_s, TextBox(3, side));
    column->addLayout(grid);
    column->addStretch();
    return side;
}

} // namespace lorvo
