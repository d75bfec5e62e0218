#include "reports/paper_fixture.h"

#include "app/module_values.h"
#include "support/source_file.h"

#include <QDir>
#include <QFile>
#include <QTest>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

// Breeds: one with dogs of both sexes, one with no Czech name, one without dogs, one not in use.
// Owners: one without dogs. Dogs: one without a number, one whose owner is gone, one of a breed
// that is not in use. Payments: one for a dog that is gone.
constexpr const char* kShow =
    "INSERT INTO Plemena (ID, Nazev, NazevOrig, FCI, Pouzivat) VALUES "
    "(10, 'Boxer', 'Deutscher Boxer', 2, -1), (11, '', 'Pug', 9, -1), "
    "(12, 'Čuvač', '', 1, -1), (13, 'Chrt', '', 10, 0), (14, 'Kříženec', '', 11, -1);"
    "INSERT INTO Majitele (ID, Jmeno, Prijmeni, Ulice, Mesto, PSC) VALUES "
    "(5, 'Jan', 'Novák', 'Dlouhá 5', 'Zlín', 76001), "
    "(6, 'Eva', 'Žižková', 'Krátká 1', 'Ústí nad Labem', 1234), "
    "(7, 'Bedřich', 'Bezpsa', '', 'Brno', 60200);"
    "INSERT INTO Psi (ID, Jmeno, ChovnaStanice, Cislo, PlemenoID, MajitelID, PohlaviPes, Trida, "
    "DatumNar, PK) VALUES "
    "(1, 'Rex', 'z Dvora', 12, 10, 5, -1, 2, '2003-05-14T00:00:00', 'CMKU/B/1'), "
    "(2, 'Aša', 'od Řeky', 3, 10, 6, 0, 4, '2004-11-02T00:00:00', 'CMKU/B/2'), "
    "(3, 'Čert', '', NULL, 10, 99, -1, 1, NULL, ''), "
    "(4, 'Brok & syn', 'z \"Údolí\" <x>', 7, 11, 5, -1, 2, '2002-01-31T00:00:00', 'CLP/7'), "
    "(5, 'Dora', 'z Hor', 1, 13, 6, 0, 9, '2001-03-03T00:00:00', 'CLP/8'), "
    "(6, 'Áron', 'z Lesa', 4, 11, 5, -1, 1, '2004-06-01T00:00:00', 'CLP/9'), "
    "(7, 'Zita', 'z Lesa', 5, 11, 6, 0, 3, '2003-02-28T00:00:00', 'CLP/10');"
    "INSERT INTO Uhrady (ID, ID_Psa, Datum, Castka, Mena, Kurs, Kc, Uhrada, Ucet, Printed) VALUES "
    "(1, 2, '2005-04-01T09:05:00', 3000000, 1, 10000, 3000000, 1, '', 0), "
    "(2, 1, '2005-03-31T00:00:00', 12345000, 1, 10000, 12345000, 0, '123456/0100', -1), "
    "(3, 4, '2005-04-02T14:30:15', 500000, 1, 10000, 500000, 2, '', 0), "
    "(4, 88, '2005-04-03T00:00:00', 990000, 1, 10000, 990000, 1, '', 0);";

QByteArray ReadAll(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "no file";
}

} // namespace

PaperFixture::PaperFixture() {
    Module().MainCurrency = u"Kč"_s;
    show.Execute(kShow);
    QDir(platform.ProgramFolder()).mkdir(u"Šablony"_s);
}

void PaperFixture::InstallTemplates() {
    const QDir from(test::SourceFile(u"Šablony"_s));
    for (const QString& name : from.entryList(QDir::Files))
        ASSERT_TRUE(
            QFile::copy(from.filePath(name), platform.ProgramFolder() + u"/Šablony/"_s + name));
}

void PaperFixture::WriteTemplate(const QString& name, const QByteArray& text) {
    QFile file(platform.ProgramFolder() + u"/Šablony/"_s + name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

QByteArray PaperFixture::File(const QString& name) const {
    return ReadAll(QDir(platform.ProgramFolder()).filePath(name));
}

void PaperFixture::Click(QWidget& window, const char* button) {
    QTest::mouseClick(&Control<QAbstractButton>(window, button), Qt::LeftButton);
}

void PaperFixture::Start(QWidget& window, bool asTemplate) {
    window.show();
    Control<QCheckBox>(window, "chkHTML").setChecked(asTemplate);
    Click(window, "cmdOK");
}

void PaperFixture::StopAt(QWidget& window, const QString& figure) {
    platform.onProcessEvents = [this, &window, figure] {
        if (!window.windowTitle().endsWith(u' ' + figure))
            return;
        QWidget& stopped = window; // outlives this function object
        platform.onProcessEvents = nullptr;
        Click(stopped, "cmdOK");
    };
}

QString PaperFixture::Text() const {
    QString text;
    for (const QString& operation : platform.wordOperations) {
        if (operation == u"TypeParagraph")
            text += u"¶\n"_s;
        else if (operation == u"InsertPageBreak")
            text += u"--- page\n"_s;
        else if (operation.startsWith(u"TypeText \""))
            text += operation.mid(10).chopped(1);
    }
    return text;
}

void ExpectGolden(const QString& name, const QByteArray& bytes) {
    QFile file(test::SourceFile(u"tests/reports/golden/"_s + name));
    if (qEnvironmentVariableIsSet("LORVO_WRITE_GOLDEN")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return;
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    EXPECT_EQ(bytes.toStdString(), file.readAll().toStdString()) << name.toStdString();
}

} // namespace lorvo::test
