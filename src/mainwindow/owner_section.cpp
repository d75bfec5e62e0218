#include "mainwindow/owner_section.h"

#include "forms/controls.h"
#include "forms/elided_label.h"
#include "mainwindow/elided_link.h"
#include "mainwindow/panel_builders.h"
#include "platform/failure_guard.h"

#include <QHBoxLayout>
#include <QToolButton>
#include <vector>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kOpenUnits = 1815;

QToolButton* Picture(const QString& name, const QString& icon, const QString& toolTip,
                     QWidget* parent) {
    auto* picture = Named(new QToolButton(parent), name);
    picture->setIcon(ProgramIcon(icon));
    picture->setToolTip(toolTip);
    picture->setAccessibleName(toolTip);
    picture->setAutoRaise(true);
    return picture;
}

void ShowNeighbour(QToolButton& picture, const DogCard::Neighbour& neighbour) {
    picture.setVisible(!neighbour.key.isEmpty());
    if (!neighbour.key.isEmpty())
        picture.setToolTip(PlainToolTip(neighbour.name));
}

} // namespace

OwnerSection::OwnerSection(QWidget* parent)
    : CollapsibleFrame("fraMajitel", u"Majitel"_s, kOpenUnits, Growth::Fixed, parent) {
    auto* column = new QVBoxLayout(Content());
    column->addLayout(Lines());
    SetFirstControl(*name_);
    column->addStretch();
    // The lines came into the window after the pictures below them.
    const std::vector<QWidget*> inReadingOrder = {name_,   email_,  picPrev,
                                                  picNext, picList, picEditMajitele};
    for (std::size_t i = 1; i < inReadingOrder.size(); ++i)
        setTabOrder(inReadingOrder[i - 1], inReadingOrder[i]);

    Connect(name_, &LinkLabel::Clicked, this, &OwnerSection::OwnerClicked);
    Connect(email_, &LinkLabel::Clicked, this, [this] { Q_EMIT EmailClicked(email_->text()); });
    Connect(picPrev, &QToolButton::clicked, this,
            [this] { Q_EMIT NeighbourClicked(previousKey_); });
    Connect(picNext, &QToolButton::clicked, this, [this] { Q_EMIT NeighbourClicked(nextKey_); });
    Connect(picList, &QToolButton::clicked, this, &OwnerSection::DogListClicked);
    Connect(picEditMajitele, &QToolButton::clicked, this, &OwnerSection::EditOwnerClicked);
}

QLayout* OwnerSection::Lines() {
    ValueGrid grid(2, SectionCaptions());
    name_ = grid.AddLink(0, u"Jméno:"_s);
    street_ = grid.AddText(0, u"Ulice:"_s);
    postCode_ = grid.AddText(0, u"PSČ:"_s);
    town_ = grid.AddText(0, u"Město:"_s);
    country_ = grid.AddText(1, u"Stát:"_s);
    phone_ = grid.AddText(1, u"Telefon:"_s);
    email_ = grid.AddLink(1, u"Email:"_s);
    grid.AddRow(1, Pictures());
    return grid.Layout();
}

QLayout* OwnerSection::Pictures() {
    picPrev = Picture(u"picPrev"_s, u"previous"_s, u"Předchozí pes tohoto majitele"_s, Content());
    picNext = Picture(u"picNext"_s, u"next"_s, u"Další pes tohoto majitele"_s, Content());
    picList = Picture(u"picList"_s, u"list"_s, u"Seznam psů tohoto majitele"_s, Content());
    picEditMajitele = Picture(u"picEditMajitele"_s, u"edit"_s, u"Upravit majitele"_s, Content());
    auto* row = new QHBoxLayout;
    for (QToolButton* picture : {picPrev, picNext, picList, picEditMajitele})
        row->addWidget(picture);
    row->addStretch();
    return row;
}

void OwnerSection::ShowCard(const DogCard& card) {
    // A picture that comes makes the toolkit lay out the section at once: before its texts change.
    previousKey_ = card.previous.key;
    nextKey_ = card.next.key;
    ShowNeighbour(*picPrev, card.previous);
    ShowNeighbour(*picNext, card.next);
    picList->setVisible(!previousKey_.isEmpty() || !nextKey_.isEmpty());
    ShowOwnerName(card.JmenoMajitele);
    street_->setText(card.Ulice);
    postCode_->setText(card.PSC);
    town_->setText(card.Mesto);
    country_->setText(card.Stat);
    phone_->setText(card.Telefon);
    email_->setText(card.Email);
}

// The link reaches a little beyond the name, so that a short name is easy to hit too.
void OwnerSection::ShowOwnerName(const QString& name) {
    name_->setText(name);
    name_->setEnabled(!name.isEmpty());
    name_->SetReach(name_->fontMetrics().horizontalAdvance(name) * 13 / 10);
}

} // namespace lorvo
