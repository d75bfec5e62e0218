#include "app/common_routines.h"
#include "office/exchange/entry_reading.h"
#include "office/exchange/entry_words.h"
#include "office/exchange/folded_text.h"
#include "platform/values/errors.h"

#include <QRegularExpression>
#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// The names of a cell: the whole of it where it is one, else its parts.
QStringList NamesIn(const QString& text, const std::map<QString, int>& known) {
    if (text.isEmpty() || known.contains(FoldedText(text)))
        return text.isEmpty() ? QStringList() : QStringList(text);
    return text.split(text.contains(u';') ? u';' : u',', Qt::SkipEmptyParts);
}

/// A dog enters a show once, however often a cell names it.
void AddOnce(std::vector<int>& ids, int id) {
    if (std::ranges::find(ids, id) == ids.end())
        ids.push_back(id);
}

/// The day of a moment as forms on the web write it, with or without a time of day behind.
std::optional<DateValue> DayOfMoment(QString text, DateValue today) {
    static const QRegularExpression timeOfDay(u"[T ]\\s*\\d{1,2}:\\d{2}(:\\d{2}([.,]\\d+)?)?Z?$"_s);
    return DayFromCell(text.remove(timeOfDay).trimmed(), today, YearWindow::Around);
}

/// An amount that isn't negative, as people write it ("650 Kč", "650,-"); nullopt for any other
/// text.
std::optional<Currency> AmountFromCell(const QString& text) {
    static const QRegularExpression behind(u"(?<=\\d)([.,]?[-–]+)?\\s*(Kč|CZK)?$"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    try {
        const Currency amount = AmountFromText(QString(text).remove(behind));
        return amount.IsNegative() ? std::nullopt : std::optional(amount);
    } catch (const RangeError&) {
        return std::nullopt;
    }
}

void ReadShow(EntryReading& reading, const EntryTables& tables) {
    const QString text = reading.Text(EntryField::Show);
    std::vector<int>& shows = reading.line.entry.shows;
    if (text.isEmpty() && tables.vystavaID != 0)
        shows.push_back(tables.vystavaID);
    if (FoldedText(text) == u"zadna")
        return;
    for (const QString& name : NamesIn(text, tables.shows)) {
        const auto found = tables.shows.find(FoldedText(name));
        if (found == tables.shows.end())
            reading.Refuse(u"Výstava "_s + InQuotes(name.trimmed()) + u" neexistuje."_s);
        else
            AddOnce(shows, found->second);
    }
}

void ReadClosing(EntryReading& reading, const EntryTables& tables) {
    const QString text = reading.Text(EntryField::Closing);
    bool& first = reading.line.entry.dog.PrvniUzaverka;
    if (const auto named = FirstClosingFromText(text)) {
        first = *named;
        return;
    }
    const auto came = text.isEmpty() ? tables.today : DayOfMoment(text, tables.today);
    if (!came)
        return reading.Refuse(u"Uzávěrka "_s + InQuotes(text) + u" není „I“, „II“ ani datum."_s);
    first = !tables.firstClosing || came->DateOnly() <= tables.firstClosing->DateOnly();
    if (tables.secondClosing && came->DateOnly() > tables.secondClosing->DateOnly())
        reading.Doubt(u"Přihláška došla po druhé uzávěrce."_s);
}

void ReadCompetitions(EntryReading& reading, const EntryTables& tables) {
    const QString text = reading.Text(EntryField::Competitions);
    if (FoldedText(text) == u"zadna")
        return;
    for (const QString& name : NamesIn(text, tables.competitions)) {
        const auto found = tables.competitions.find(FoldedText(name));
        if (found == tables.competitions.end())
            reading.Refuse(u"Soutěž "_s + InQuotes(name.trimmed()) + u" neexistuje."_s);
        else
            AddOnce(reading.line.entry.competitions, found->second);
    }
}

void ReadFirstDog(EntryReading& reading) {
    const QString text = reading.Text(EntryField::FirstDog);
    reading.line.entry.firstDog = YesFromText(text);
    if (!text.isEmpty() && !reading.line.entry.firstDog)
        reading.Refuse(u"První pes: "_s + InQuotes(text) + u" není „ano“ ani „ne“."_s);
}

void ReadPaid(EntryReading& reading) {
    const QString text = reading.Text(EntryField::Paid);
    if (text.isEmpty())
        return;
    const auto amount = AmountFromCell(text);
    if (amount)
        reading.line.entry.paid = *amount;
    else
        reading.Refuse(u"Uhrazeno: "_s + InQuotes(text) + u" není částka."_s);
}

} // namespace

void ReadShowCells(EntryReading& reading, const EntryTables& tables) {
    ReadShow(reading, tables);
    ReadClosing(reading, tables);
    ReadCompetitions(reading, tables);
    ReadFirstDog(reading);
    ReadPaid(reading);
}

} // namespace lorvo
