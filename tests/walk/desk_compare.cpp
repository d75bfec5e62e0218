// What lies in the database and stands in the window, held against the model.
#include "office/tree/tree_nodes.h"
#include "store/data_module.h"
#include "store/query.h"
#include "support/print_qt.h"
#include "walk/desk.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <algorithm>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

QString Bit(bool on) {
    return on ? u"1"_s : u"0"_s;
}

QStringList Lines(const DeskLinks& links) {
    QStringList lines;
    for (const auto& [from, to] : links)
        lines << QString::number(from) + u'|' + QString::number(to);
    return lines;
}

/// A line for each row: its ID and what `rest` says of it.
template<class Rows, class Rest> QStringList LinesOf(const Rows& rows, Rest rest) {
    QStringList lines;
    for (const auto& [id, row] : rows)
        lines << QString::number(id) + u'|' + rest(row);
    return lines;
}

QString DogLine(const DeskDog& dog) {
    return QStringList{dog.name,
                       QString::number(dog.breed),
                       QString::number(dog.owner),
                       Bit(dog.male),
                       QString::number(dog.trida),
                       Bit(dog.firstClosing),
                       Bit(dog.firstDog),
                       dog.number ? QString::number(*dog.number) : QString()}
        .join(u'|');
}

void AddNodeLine(const TreeNode& node, int depth, QStringList& lines) {
    lines << QString(2 * depth, u' ') + node.Key() + u' ' + node.text;
    for (const auto& child : node.children)
        AddNodeLine(*child, depth + 1, lines);
}

QString Ticked(const ReportList& list) {
    QStringList keys;
    for (int row = 0; row < list.RowCount(); ++row)
        if (list.Row(row).checked)
            keys << list.Row(row).key;
    return keys.join(u' ');
}

} // namespace

void Desk::CompareRows(const char* table, const char* fields, QStringList expected) {
    const std::string statement = std::string("SELECT ") + fields + " FROM " + table;
    const auto columns = 1 + std::ranges::count(std::string_view(fields), ',');
    QStringList rows;
    for (Query query(TheDataModule().Conn1, statement); query.Next();) {
        QStringList cells;
        for (int column = 0; column < columns; ++column) {
            const Value cell = query.Cell(column);
            const bool* bit = std::get_if<bool>(&cell.Data());
            cells << (bit ? Bit(*bit) : cell.ToText());
        }
        rows << cells.join(u'|');
    }
    rows.sort();
    expected.sort();
    EXPECT_EQ(rows, expected) << statement;
}

void Desk::CompareData() {
    CompareRows("Kruhy", "ID, Nazev",
                LinesOf(model.rings, [](const QString& name) { return name; }));
    CompareRows("Plemena", "ID, ID_Kruhu, FCI", LinesOf(model.breeds, [](const DeskBreed& breed) {
                    return QString::number(breed.ring) + u'|' + QString::number(breed.fci);
                }));
    CompareRows("Majitele", "ID, Jmeno, Ulice", LinesOf(model.owners, [](const DeskOwner& owner) {
                    return owner.name + u'|' + owner.street;
                }));
    CompareRows(
        "Psi", "ID, Jmeno, PlemenoID, MajitelID, PohlaviPes, Trida, PrvniUzaverka, PrvniPes, Cislo",
        LinesOf(model.dogs, DogLine));
    CompareRows("Uhrady", "ID, ID_Psa, Kc, Printed",
                LinesOf(model.payments, [](const DeskPayment& payment) {
                    return QString::number(payment.dog) + u'|' + QString::number(payment.units) +
                           u'|' + Bit(payment.printed);
                }));
    CompareRows("PsiVeVystavach", "PesID, VystavaID", Lines(model.entries));
    CompareRows("Vazby_Souteze", "ID_Psa, ID_Souteze", Lines(model.inCompetitions));
    CompareRows("PsiOceneni", "IDPsa, IDOceneni", Lines(model.won));
}

QString Desk::ShownText(const QString& name) {
    if (name == u"lvwSouteze" || name == u"lvwOceneni")
        return Ticked(Get<ReportList>(name));
    if (name == u"picPrev" || name == u"picNext") {
        const auto& picture = Get<QAbstractButton>(name);
        return picture.isHidden() ? QString() : picture.toolTip();
    }
    for (const QLabel* label : window->findChildren<QLabel*>())
        if ((label->objectName() == name || label->accessibleName() == name) && label->isVisible())
            return label->text();
    return u"-"_s;
}

PanelTexts Desk::ShownPanel() {
    PanelTexts texts;
    for (const auto& [name, text] : model.panel)
        if (!name.startsWith(u'P') || name.endsWith(u':'))
            texts[name] = ShownText(name);
    if (!model.ownerOnShow)
        return texts;
    const auto& list = Get<ReportList>(u"lvwDogs"_s);
    for (int row = 0; row < list.RowCount(); ++row) {
        QStringList cells;
        for (const int column : {0, 2, 3, 5, 6, 7})
            cells << list.CellText(row, column);
        texts[list.Row(row).key] = cells.join(u'|');
    }
    return texts;
}

void Desk::Compare() {
    // What the event loop does between two deeds of a clerk.
    for (int times = 0; times < 3; ++times)
        QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    CompareData();
    QStringList tree;
    for (const auto& node : window->Nodes().TopLevel())
        AddNodeLine(*node, 0, tree);
    EXPECT_EQ(tree, model.nodes.Lines());
    EXPECT_EQ(Selected(), model.selected);
    const PanelTexts shown = ShownPanel();
    for (const auto& [name, text] : model.panel)
        EXPECT_EQ(shown.contains(name) ? shown.at(name) : u"(none)"_s, text) << name.toStdString();
    EXPECT_EQ(shown.size(), model.panel.size());
    EXPECT_EQ(Get<QAbstractButton>(u"cmdHistoryBack"_s).isEnabled(), model.backEnabled);
    EXPECT_EQ(Get<QAbstractButton>(u"cmdHistoryFwd"_s).isEnabled(), model.forwardEnabled);
}

} // namespace lorvo::test
