#include "setup/fee_grid.h"

#include "app/common_routines.h"
#include "forms/controls.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"

#include <QFocusEvent>
#include <QFrame>
#include <QGridLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kClassSlots = 18;
constexpr int kSimpleFirst = 18;
constexpr int kSimpleNext = 19;
// kept: class-nine-crosswise
// Class 9 lies crosswise: the row of the first dog carries D2, that of the next dog D1. The fees
// read the fields as they are named.
constexpr int kAdolescentNext = 16;
constexpr int kAdolescentFirst = 17;

constexpr QStringView kCaptions[kClassSlots] = {
    u"Třída puppy, první pes",         u"Třída puppy, další pes",
    u"Třída dorost, první pes",        u"Třída dorost, další pes",
    u"Třída mladých, první pes",       u"Třída mladých, další pes",
    u"Mezitřída, první pes",           u"Mezitřída, další pes",
    u"Třída otevřená, první pes",      u"Třída otevřená, další pes",
    u"Třída vítězů, první pes",        u"Třída vítězů, další pes",
    u"Třída pracovní, první pes",      u"Třída pracovní, další pes",
    u"Třída veteránů, první pes",      u"Třída veteránů, další pes",
    u"Třída dospívajících, další pes", u"Třída dospívajících, první pes",
};

constexpr QStringView kSimpleCaptions[] = {u"První pes", u"Další pes"};
constexpr QStringView kClosings[] = {u"I. uzávěrka", u"II. uzávěrka"};

void AddClosingHeadings(QGridLayout& grid, QWidget* parent) {
    for (int closing = 0; closing < 2; ++closing)
        grid.addWidget(new QLabel(kClosings[closing].toString(), parent), 0, closing + 1);
}

} // namespace

FeeGrid::FeeGrid(QWidget* parent) : QStackedWidget(parent) {
    addWidget(MakeClassRows());
    addWidget(Picture1 = MakeSimpleRows());
}

QWidget* FeeGrid::MakeClassRows() {
    auto* page = new QWidget(this);
    auto* grid = new QGridLayout(page);
    AddClosingHeadings(*grid, page);
    for (int slot = 0; slot < kAdolescentNext; ++slot)
        AddRow(*grid, slot, kCaptions[slot].toString());

    auto* line = new QFrame(page);
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    grid->addWidget(line, grid->rowCount(), 0, 1, 3);
    grid->addWidget(new QLabel(u" Speciální třída pro německého ovčáka"_s, page), grid->rowCount(),
                    0, 1, 3);
    for (const int slot : {kAdolescentFirst, kAdolescentNext})
        AddRow(*grid, slot, kCaptions[slot].toString());
    for (int slot = 0; slot < kClassSlots; ++slot) {
        SetNumberStyle(*txtPrice1[slot]);
        SetNumberStyle(*txtPrice2[slot]);
    }
    return page;
}

QWidget* FeeGrid::MakeSimpleRows() {
    auto* page = Named(new QWidget(this), u"Picture1"_s);
    auto* grid = new QGridLayout(page);
    AddClosingHeadings(*grid, page);
    AddRow(*grid, kSimpleFirst, kSimpleCaptions[0].toString());
    AddRow(*grid, kSimpleNext, kSimpleCaptions[1].toString());
    grid->setRowStretch(grid->rowCount(), 1);
    return page;
}

void FeeGrid::AddRow(QGridLayout& grid, int slot, const QString& caption) {
    const int row = grid.rowCount();
    QWidget* page = grid.parentWidget();
    txtPrice1[slot] = MakeBox("txtPrice1", slot);
    txtPrice2[slot] = MakeBox("txtPrice2", slot);
    txtPrice2[slot]->setAccessibleName(caption + u", II. uzávěrka"_s);
    grid.addWidget(CaptionFor(txtPrice1[slot], caption, page), row, 0);
    grid.addWidget(txtPrice1[slot], row, 1);
    grid.addWidget(txtPrice2[slot], row, 2);
}

QLineEdit* FeeGrid::MakeBox(const char* array, int slot) {
    auto* box = Named(new QLineEdit(u"0"_s, this), ElementName(array, slot));
    box->setAlignment(Qt::AlignRight);
    box->installEventFilter(this);
    return box;
}

bool FeeGrid::eventFilter(QObject* watched, QEvent* event) {
    return GuardedAnswer(false, [&]() -> bool {
        if (event->type() == QEvent::FocusIn) {
            auto* box = static_cast<QLineEdit*>(watched);
            box->selectAll();
            // The press that brings the focus places the text cursor afterwards.
            if (static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason)
                Later(box, [box] { box->selectAll(); });
        }
        return QStackedWidget::eventFilter(watched, event);
    });
}

void FeeGrid::SetFees(const FeeRow& fees) {
    const auto show = [](QLineEdit& box, const std::optional<Currency>& fee) {
        const QString text = fee ? PlainAmount(*fee) : QString();
        box.setText(ThePlatform().locale->IsNumeric(text) ? text : u"0"_s);
    };
    for (int slot = 0; slot < kClassSlots; ++slot) {
        show(*txtPrice1[slot], fees[slot]);
        show(*txtPrice2[slot], fees[kClassSlots + slot]);
    }
}

std::array<QString, kFeeColumns> FeeGrid::Texts() const {
    std::array<QString, kFeeColumns> texts;
    for (int slot = 0; slot < kClassSlots; ++slot) {
        texts[slot] = txtPrice1[slot]->text().trimmed();
        texts[kClassSlots + slot] = txtPrice2[slot]->text().trimmed();
    }
    return texts;
}

QString FeeGrid::BoxCaption(int feeColumn) const {
    const QStringView row = currentWidget() == Picture1 ? kSimpleCaptions[feeColumn % 2]
                                                        : kCaptions[feeColumn % kClassSlots];
    return row.toString() + u", "_s + kClosings[feeColumn / kClassSlots].toString();
}

void FeeGrid::ShowSimple(bool simple) {
    setCurrentWidget(simple ? Picture1 : widget(0));
}

void FeeGrid::CopyFirstClassToSimple() {
    for (const auto* boxes : {&txtPrice1, &txtPrice2}) {
        (*boxes)[kSimpleFirst]->setText((*boxes)[0]->text());
        (*boxes)[kSimpleNext]->setText((*boxes)[1]->text());
    }
}

// kept: equal-fees-flatten-classes
void FeeGrid::SpreadSimple() {
    for (const auto* boxes : {&txtPrice1, &txtPrice2}) {
        const QString first = (*boxes)[kSimpleFirst]->text();
        const QString next = (*boxes)[kSimpleNext]->text();
        for (int slot = 0; slot < kAdolescentNext; slot += 2) {
            (*boxes)[slot]->setText(first);
            (*boxes)[slot + 1]->setText(next);
        }
        (*boxes)[kAdolescentFirst]->setText(first);
        (*boxes)[kAdolescentNext]->setText(next);
    }
}

} // namespace lorvo
