#pragma once
// What the tests of the data's own program share: a small show in a program folder, and its window.

#include "app/module_values.h"
#include "forms/report_list.h"
#include "manager/frmSpravce.h"
#include "office/copies/show_copies.h"
#include "platform/program_lock.h"
#include "store/ostatni.h"
#include "store/routines_fixture.h"
#include "store/vystavy.h"
#include "support/modal_driver.h"
#include "support/recording_platform.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

namespace lorvo::test {

class ManagerTest : public RoutinesTest {
  protected:
    ManagerTest() {
        platform.now = DateValue::FromCalendar(2027, 3, 1);
        Add("Plemena", {{"Nazev", Text("Boxer")}, {"Pouzivat", true}});
        Add("Vystavy", {{"Nazev", Text("Hlavní výstava")},
                        {"PoplatkyIClass5D1", Currency::FromUnits(600)},
                        {"PoplatkyIClass5D2", Currency::FromUnits(500)}});
        SetShowDate(DateValue::FromCalendar(2027, 5, 14));
        const QString path = TheDataModule().Conn1.Path();
        TheDataModule().Conn1.Close();
        EXPECT_TRUE(QFile::copy(path, DatabasePath(platform.ProgramFolder())));
    }

    QString Write(const QByteArray& text) {
        const QString path = platform.ProgramFolder() + QStringLiteral("/prihlasky.csv");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return path;
    }
    static QByteArray Read(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QString Path(const QString& name) const { return platform.ProgramFolder() + u'/' + name; }
    /// The path as messages show it.
    QString Shown(const QString& name) const { return QDir::toNativeSeparators(Path(name)); }

    /// What the data say now.
    DatabaseFigures Figures() const {
        return FiguresOfDatabase(DatabasePath(platform.ProgramFolder()));
    }
    /// What has to be said where the main program has the folder.
    void ExpectRefusalBesideLorvo() {
        platform.ExpectMessage(QStringLiteral("Nad složkou „") +
                                   QDir::toNativeSeparators(platform.ProgramFolder()) +
                                   QStringLiteral("“ běží Lorvo. Zavřete ho a zkuste to znovu."),
                               MessageAnswer::Ok, MessageIcon::Exclamation);
    }

    RecordingPlatform platform;
};

/// The window on one of its pages.
class ManagerPageTest : public ManagerTest {
  protected:
    void Show(int page) {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        window.tabSpravce->setCurrentIndex(page);
        QCoreApplication::processEvents();
    }
    /// Presses a button as its key does.
    void Press(const char* name) {
        auto& button = Control<QPushButton>(window, name);
        ASSERT_TRUE(button.isEnabled()) << name;
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Space);
    }
    bool IsOffered(const char* name) { return Control<QPushButton>(window, name).isEnabled(); }
    ReportList& List(const char* name) { return Control<ReportList>(window, name); }
    QString LabelText(const char* name) { return Control<QLabel>(window, name).text(); }
    void OpenEntries(const QByteArray& text) {
        platform.chosenFiles << Write(text);
        Show(1);
        Press("cmdFile");
    }

    frmSpravce window{ThePlatform()};
};

inline const QByteArray kEntries =
    "Jméno psa;Plemeno;Pohlaví;Datum narození;Třída;Majitel;Město;PSČ\n"
    "Alík;boxer;pes;5.6.2024;otevřená;Eva Nová;Brno;60200\n"
    "Bára;boxer;fena;1.1.2023;otevřená;Eva Nová;Brno;60200\n"
    "Rek;jezevčík;pes;1.1.2023;otevřená;Jan Malý;Zlín;76001\n";

} // namespace lorvo::test
