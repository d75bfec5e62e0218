#include "dogs/dog_class_box.h"

#include "forms/controls.h"
#include "forms/literal_caption.h"
#include "office/texts/dog_texts.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "store/connection.h"
#include "store/ostatni.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QRadioButton>
#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kColumns = 2;
constexpr int kCaptionLines = 3; ///< at the narrowest

// kept: show-date-row-by-looking
/// The day of the show; the date value 0 as long as it isn't set. Gives the table its row.
DateValue ShowDate() {
    DateValue date;
    SkipFailure([&date] {
        const auto values = ShowWideValues();
        if (!values)
            InsertEmptyShowWideValues();
        else
            date = values->DatumVystavy.value_or(DateValue());
    });
    return date;
}

} // namespace

DogClassBox::DogClassBox(ClassList list, QWidget* parent)
    : QGroupBox(u"Třída"_s, parent), list_(list), Label8(Named(new QLabel(this), u"Label8"_s)),
      choice_(new QButtonGroup(this)) {
    setObjectName(u"fraClasses"_s);
    Label8->setToolTip(
        u"Vyberte jednu ze tříd. Třídy jsou dostupné podle věku psa v den výstavy"_s);
    Label8->setText(Label8->toolTip());
    Label8->setTextFormat(Qt::PlainText);
    Label8->setWordWrap(true);
    Label8->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* layout = new QGridLayout(this);
    layout->addWidget(Label8, 0, 0, 1, kColumns);
    for (int i = 0; i < static_cast<int>(optClasses.size()); ++i) {
        auto* button = Named(new QRadioButton(this), ElementName("optClasses", i));
        layout->addWidget(button, 1 + i / kColumns, i % kColumns);
        choice_->addButton(button, i);
        optClasses[static_cast<size_t>(i)] = button;
    }
    Connect(choice_, &QButtonGroup::idClicked, this, &DogClassBox::Clicked);
}

void DogClassBox::NameClasses() {
    // Room for the caption at any date, so that nothing moves when its length changes.
    Label8->setMinimumHeight(kCaptionLines * Label8->fontMetrics().lineSpacing());
    const TextTable& names = ClassNamesOf(list_);
    for (size_t i = 0; i < optClasses.size(); ++i) {
        optClasses[i]->setText(LiteralCaption(names[i]));
        optClasses[i]->setHidden(names[i].isEmpty());
    }
}

void DogClassBox::Choose(int trida) {
    if (QAbstractButton* button = choice_->button(trida - 1))
        button->setChecked(true);
}

int DogClassBox::Chosen() const {
    return choice_->checkedId() + 1;
}

void DogClassBox::Drop(QRadioButton* button) {
    if (button->isChecked())
        dropped_ = Chosen();
    choice_->setExclusive(false);
    button->setChecked(false);
    choice_->setExclusive(true);
}

void DogClassBox::UpdateClassButtons(DateValue born) {
    const bool special = list_ == ClassList::Special;
    const NumberTable& from = special ? Tables().SpecialClassFrom : Tables().ClassFrom;
    const NumberTable& to = special ? Tables().SpecialClassTo : Tables().ClassTo;
    const DateValue show = ShowDate();
    const int age = AgeInMonths(born, show, list_);
    const std::vector<int> open = OpenClasses(age, from, to);
    for (size_t i = 0; i < optClasses.size(); ++i) {
        QRadioButton* button = optClasses[i];
        if (button->isHidden())
            continue;
        button->setEnabled(std::ranges::count(open, static_cast<int>(i) + 1) > 0);
        if (!button->isEnabled())
            Drop(button);
    }
    if (Chosen() == 0 && dropped_ > 0 && choice_->button(dropped_ - 1)->isEnabled())
        Choose(dropped_);
    Label8->setText(QString::fromStdString(
        ClassCaption(Label8->toolTip().toStdString(),
                     ThePlatform().locale->ShortDate(show).toStdString(), age)));
}

} // namespace lorvo
