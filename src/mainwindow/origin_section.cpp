#include "mainwindow/origin_section.h"

#include "mainwindow/panel_builders.h"

#include <QVBoxLayout>

namespace lorvo {

namespace {
constexpr int kOpenUnits = 1956;
}

OriginSection::OriginSection(QWidget* parent)
    : CollapsibleFrame("fraPuvod", QStringLiteral("Původ"), kOpenUnits, Growth::Fixed, parent) {
    ValueGrid grid(2, SectionCaptions());
    breed_ = grid.AddText(0, QStringLiteral("Plemeno:"));
    sex_ = grid.AddText(0, QStringLiteral("Pohlaví:"));
    birthDate_ = grid.AddText(0, QStringLiteral("Datum narození:"));
    class_ = grid.AddText(0, QStringLiteral("Třída:"));
    note_ = grid.AddText(0, QStringLiteral("Poznámka:"));
    kennel_ = grid.AddText(1, QStringLiteral("Chovatelská stanice:"));
    studBook_ = grid.AddText(1, QStringLiteral("PK:"));
    father_ = grid.AddText(1, QStringLiteral("Otec:"));
    mother_ = grid.AddText(1, QStringLiteral("Matka:"));
    breeder_ = grid.AddText(1, QStringLiteral("Chovatel:"));
    // Captions whose values stay empty.
    grid.AddText(0, QStringLiteral("Velikost:"));
    grid.AddText(0, QStringLiteral("Srst:"));
    grid.AddText(1, QStringLiteral("Barva:"));
    grid.AddText(1, QStringLiteral("FCI:"));
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
