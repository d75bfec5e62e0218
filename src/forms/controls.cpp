#include "forms/controls.h"

#include "forms/date_box.h"
#include "platform/platform.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QListView>
#include <QLocale>
#include <QStyledItemDelegate>

namespace lorvo {

using namespace Qt::StringLiterals;

QString ElementName(const char* array, int index) {
    return u"%1(%2)"_s.arg(QString::fromLatin1(array)).arg(index);
}

QLabel* CaptionFor(QWidget* field, const QString& caption, QWidget* parent) {
    auto* label = new QLabel(caption, parent);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(field);
    return label;
}

QLabel* ValueLabel(const QString& accessibleName, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setAccessibleName(accessibleName);
    return label;
}

namespace {
const QDate kFirstDate(1601, 1, 1);
const QDate kLastDate(9999, 12, 31);
} // namespace

QDateEdit* DatePicker(const QString& name, QWidget* parent, YearWindow window) {
    auto* picker = Named(new DateBox(window, parent), name);
    picker->setLocale(QLocale(QLocale::Czech, QLocale::CzechRepublic));
    picker->setDisplayFormat(ThePlatform().locale->ShortDatePattern());
    picker->setDateRange(kFirstDate, kLastDate);
    picker->setCalendarPopup(true);
    return picker;
}

DateValue PickedDate(const QDateEdit& picker) {
    const QDate date = picker.date();
    return DateValue::FromCalendar(date.year(), date.month(), date.day());
}

void SetPickedDate(QDateEdit& picker, DateValue value) {
    picker.setDate(QDate(value.Year(), value.Month(), value.Day()));
}

void PrepareForLongList(QComboBox& combo) {
    combo.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    // The list's own delegate sizes lines by the list, which would make the one size that is asked
    // for too wide.
    combo.setItemDelegate(new QStyledItemDelegate(&combo));
    if (auto* list = qobject_cast<QListView*>(combo.view()))
        list->setUniformItemSizes(true);
}

QLayout* ButtonRow(std::initializer_list<QPushButton*> buttons) {
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (QPushButton* button : buttons)
        row->addWidget(button);
    (*buttons.begin())->setDefault(true);
    return row;
}

} // namespace lorvo
