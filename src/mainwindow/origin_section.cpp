#include "mainwindow/origin_section.h"

#include "mainwindow/panel_builders.h"

#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {
constexpr int kOpenUnits = 1956;
}

OriginSection::OriginSection(QWidget* parent)
    : CollapsibleFrame("fraPuvod", u"Původ"_s, kOpenUnits, Growth::Fixed, parent) {
    ValueGrid grid(2, SectionCaptions());
    breed_ = grid.AddText(0, u"Plemeno:"_s);
    sex_ = grid.AddText(0, u"Pohlaví:"_s);
    birthDate_ = grid.AddText(0, u"Datum narození:"_s);
    class_ = grid.AddText(0, u"Třída:"_s);
    note_ = grid.AddText(0, u"Poznámka:"_s);
    kennel_ = grid.AddText(1, u"Chovatelská stanice:"_s);
    studBook_ = grid.AddText(1, u"PK:"_s);
    father_ = grid.AddText(1, u"Otec:"_s);
    mother_ = grid.AddText(1, u"Matka:"_s);
    breeder_ = grid.AddText(1, u"Chovatel:"_s);
    // Captions whose values stay empty.
    grid.AddText(0, u"Velikost:"_s);
    grid.AddText(0, u"Srst:"_s);
    grid.AddText(1, u"Barva:"_s);
    grid.AddText(1, u"FCI:"_s);
    note_->setAutoFillBackground(true);

    auto* column = new QVBoxLayout(Content());
    column->addLayout(grid.Layout());
    column->addStretch();
}

void OriginSection::ShowCard(const DogCard& card) {
    breed_->setText(card.Plemeno);
    ShowText(*sex_, card.Pohlavi);
    birthDate_->setText(card.DatumNar);
    class_->setText(card.Trida);
    ShowNote(card.Poznamka);
    kennel_->setText(card.ChovnaStanice);
    studBook_->setText(card.PK);
    father_->setText(card.Otec);
    mother_->setText(card.Matka);
    breeder_->setText(card.Chovatel);
}

void OriginSection::ShowNote(const QString& note) {
    QPalette palette;
    palette.setColor(note_->foregroundRole(), kNoteColour);
    if (note.isEmpty())
        palette.setColor(note_->backgroundRole(), Qt::white);
    note_->setPalette(palette);
    note_->setText(note);
}

} // namespace lorvo
