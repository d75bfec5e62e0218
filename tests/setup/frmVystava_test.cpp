#include "setup/frmVystava.h"

#include "setup/setup_fixture.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStackedWidget>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class ShowEditorTest : public SetupTest {
  protected:
    ShowEditorTest() : show(AddShow("Hlavní")) {}

    void OpenEditor(const std::function<void(QWidget&)>& inside) {
        frmVystava window(show, nullptr);
        WhileOpen([&] { OpenModal(window); }, inside);
        result = window.Result();
    }
    static QLineEdit& Price(QWidget& window, int closing, int slot) {
        return Box(
            window,
            ("txtPrice" + std::to_string(closing) + "(" + std::to_string(slot) + ")").c_str());
    }
    static bool IsSimple(QWidget& window) {
        return Control<QWidget>(window, "Picture1").isVisible();
    }
    std::string Fee(const char* part) const {
        return One(std::string("SELECT Poplatky") + part +
                   " FROM Vystavy WHERE ID = " + std::to_string(show));
    }
    void SetFee(const char* part, int units) {
        ChangeRow(TheDataModule().rsrsQuery1, "Vystavy", show,
                  {{(std::string("Poplatky") + part).c_str(), Currency::FromUnits(units)}});
    }
    QString IniPath() const { return platform.ProgramFolder() + u"/Lorvosys.ini"_s; }
    void WriteIni(const QByteArray& bytes) const {
        QFile file(IniPath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray Ini() const {
        QFile file(IniPath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }

    int show;
    std::optional<QString> result; ///< of the editor opened last
};

TEST_F(ShowEditorTest, ShowsNullFeesAsZeroWithTheClassesWhenTheKeyIsMissing) {
    OpenEditor([&](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), u"Výstava");
        EXPECT_EQ(Box(window, "txtName").text(), u"Hlavní");
        EXPECT_TRUE(Tick(window, "chkRozliseni").isChecked());
        EXPECT_FALSE(IsSimple(window));
        for (int slot = 0; slot < 20; ++slot) {
            EXPECT_EQ(Price(window, 1, slot).text(), u"0") << slot;
            EXPECT_EQ(Price(window, 2, slot).text(), u"0") << slot;
        }
    });
    EXPECT_EQ(Ini(), "none");
}

TEST_F(ShowEditorTest, EachBoxKeepsItsField) {
    OpenEditor([&](QWidget& window) {
        for (int slot = 0; slot < 18; ++slot) {
            Price(window, 1, slot).setText(QString::number(100 + slot));
            Price(window, 2, slot).setText(QString::number(200 + slot));
        }
        Press(window, "cmdOK");
        EXPECT_FALSE(window.isVisible());
    });
    for (int slot = 0; slot < 18; ++slot) {
        const std::string part =
            "Class" + std::to_string(slot / 2 + 1) + "D" + std::to_string(slot % 2 + 1);
        EXPECT_EQ(Fee(("I" + part).c_str()), std::to_string(100 + slot)) << part;
        EXPECT_EQ(Fee(("II" + part).c_str()), std::to_string(200 + slot)) << part;
    }
    OpenEditor([&](QWidget& window) {
        EXPECT_EQ(Price(window, 1, 17).text(), u"117");
        EXPECT_EQ(Price(window, 2, 3).text(), u"203");
    });
}

TEST_F(ShowEditorTest, TheRowsOfClassNineLieCrosswise) {
    const auto captionOf = [](QWidget& window, QWidget& box) {
        for (const QLabel* label : window.findChildren<QLabel*>())
            if (label->buddy() == &box)
                return std::pair(label->text(), box.mapTo(&window, QPoint()).y());
        return std::pair(QString(), 0);
    };
    OpenEditor([&](QWidget& window) {
        const auto [next, nextTop] = captionOf(window, Price(window, 1, 16));
        const auto [first, firstTop] = captionOf(window, Price(window, 1, 17));
        EXPECT_EQ(next, u"Třída dospívajících, další pes");
        EXPECT_EQ(first, u"Třída dospívajících, první pes");
        EXPECT_LT(firstTop, nextTop);
        Price(window, 1, 17).setText(Text("300"));
        Price(window, 1, 16).setText(Text("200"));
        Press(window, "cmdOK");
    });
    EXPECT_EQ(Fee("IClass9D1"), "200");
    EXPECT_EQ(Fee("IClass9D2"), "300");
}

TEST_F(ShowEditorTest, FlatPricesFillEveryClassAndTheIniFile) {
    OpenEditor([&](QWidget& window) {
        Tick(window, "chkRozliseni").click();
        EXPECT_TRUE(IsSimple(window));
        Price(window, 1, 18).setText(Text("300"));
        Price(window, 1, 19).setText(Text("200"));
        Price(window, 2, 18).setText(Text("400"));
        Price(window, 2, 19).setText(Text("350"));
        Press(window, "cmdOK");
    });
    for (int trida = 1; trida <= 9; ++trida) {
        const std::string part = "Class" + std::to_string(trida);
        const bool crosswise = trida == 9;
        EXPECT_EQ(Fee(("I" + part + "D1").c_str()), crosswise ? "200" : "300");
        EXPECT_EQ(Fee(("I" + part + "D2").c_str()), crosswise ? "300" : "200");
        EXPECT_EQ(Fee(("II" + part + "D1").c_str()), crosswise ? "350" : "400");
        EXPECT_EQ(Fee(("II" + part + "D2").c_str()), crosswise ? "400" : "350");
    }
    EXPECT_EQ(Ini(), "[Main]\r\nIgnorovat tridy=1\r\n");
}

// kept: equal-fees-flatten-classes
TEST_F(ShowEditorTest, WithClassesIgnoredItShowsTheFirstClassAndOKFlattens) {
    WriteIni("[Main]\r\nIgnorovat tridy=1\r\n");
    SetFee("IClass1D1", 300);
    SetFee("IClass1D2", 200);
    SetFee("IIClass1D1", 400);
    SetFee("IClass3D1", 777);
    const auto check = [&](QWidget& window) {
        EXPECT_FALSE(Tick(window, "chkRozliseni").isChecked());
        EXPECT_TRUE(IsSimple(window));
        EXPECT_EQ(Price(window, 1, 18).text(), u"300");
        EXPECT_EQ(Price(window, 1, 19).text(), u"200");
        EXPECT_EQ(Price(window, 2, 18).text(), u"400");
        EXPECT_EQ(Price(window, 2, 19).text(), u"0");
    };
    OpenEditor([&](QWidget& window) {
        check(window);
        Press(window, "cmdCancel");
    });
    EXPECT_EQ(Fee("IClass3D1"), "777");
    OpenEditor([&](QWidget& window) {
        check(window);
        Press(window, "cmdOK");
    });
    EXPECT_EQ(Fee("IClass3D1"), "300");
    EXPECT_EQ(Fee("IIClass9D2"), "400");
}

TEST_F(ShowEditorTest, UntickingAndTickingLosesTheClassRowsOnTheScreenAlone) {
    SetFee("IClass3D1", 777);
    SetFee("IClass1D1", 300);
    OpenEditor([&](QWidget& window) {
        Tick(window, "chkRozliseni").click();
        EXPECT_EQ(Price(window, 1, 18).text(), u"300");
        Tick(window, "chkRozliseni").click();
        EXPECT_EQ(Price(window, 1, 4).text(), u"300");
        EXPECT_EQ(Price(window, 1, 17).text(), u"300");
        EXPECT_EQ(Price(window, 1, 16).text(), u"0");
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(Fee("IClass3D1"), "777");
    EXPECT_EQ(Ini(), "none");
}

TEST_F(ShowEditorTest, OKLeavesTheOtherSectionsAndTheEncodingOfTheIniFile) {
    WriteIni("; pozn\xe1mka\r\n[Jin\xe1]\r\nKl\xed\xe8=\x9e\r\n[Main]\r\nA=1\r\n");
    OpenEditor([&](QWidget& window) {
        EXPECT_TRUE(Tick(window, "chkRozliseni").isChecked());
        Press(window, "cmdOK");
    });
    EXPECT_EQ(Ini(), "; pozn\xe1mka\r\n[Jin\xe1]\r\nKl\xed\xe8=\x9e\r\n[Main]\r\nA=1\r\n"
                     "Ignorovat tridy=0\r\n");
}

TEST_F(ShowEditorTest, OnlyTheTextOneIgnoresClasses) {
    for (const char* value : {"0", "2", "ano", "", "11"}) {
        WriteIni("[main]\r\nIGNOROVAT TRIDY=" + QByteArray(value) + "\r\n");
        OpenEditor([&](QWidget& window) {
            EXPECT_TRUE(Tick(window, "chkRozliseni").isChecked()) << value;
        });
    }
    WriteIni("[main]\r\nIGNOROVAT TRIDY=1\r\n");
    OpenEditor([&](QWidget& window) { EXPECT_FALSE(Tick(window, "chkRozliseni").isChecked()); });
}

TEST_F(ShowEditorTest, AnIniFileThatCannotBeWrittenDoesNotStopTheShow) {
    ASSERT_TRUE(QDir().mkpath(IniPath()));
    OpenEditor([&](QWidget& window) {
        Price(window, 1, 0).setText(Text("300"));
        Press(window, "cmdOK");
    });
    EXPECT_EQ(Fee("IClass1D1"), "300");
    EXPECT_TRUE(QFileInfo(IniPath()).isDir());
}

TEST_F(ShowEditorTest, AChoiceThatCannotBeStoredIsSaidOnceAndTheShowIsStored) {
    ASSERT_TRUE(QDir().mkpath(IniPath()));
    OpenEditor([&](QWidget& window) {
        Box(window, "txtName").setText(Text("Krajská"));
        Tick(window, "chkRozliseni").click();
        platform.ExpectMessage(
            Text("Výstava je uložena, ale volbu „Rozlišovat ceny podle tříd“ se nepodařilo zapsat "
                 "do souboru ") +
                IniPath() +
                Text(". Zkontrolujte, zda do složky programu smíte zapisovat a zda na disku zbývá "
                     "místo."),
            MessageAnswer::Ok, MessageIcon::Exclamation, MessageButtons::Ok, Text("Výstava"));
        Press(window, "cmdOK");
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(One("SELECT Nazev FROM Vystavy"), "Krajská");
    EXPECT_EQ(result, u"Krajská");
}

TEST_F(ShowEditorTest, AnEmptyNameIsRefusedAndBlanksPass) {
    OpenEditor([&](QWidget& window) {
        Box(window, "txtName").clear();
        platform.ExpectMessage(Text("Neplatný název výstavy"), MessageAnswer::Ok, MessageIcon::Stop,
                               MessageButtons::Ok, Text("Výstava"));
        Press(window, "cmdOK");
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(Ini(), "none");
        Box(window, "txtName").setText(Text("   "));
        Press(window, "cmdOK");
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(One("SELECT Nazev FROM Vystavy"), "");
    EXPECT_EQ(result, u"");
}

TEST_F(ShowEditorTest, TwoShowsMayGetOneName) {
    AddShow("Krajská");
    OpenEditor([&](QWidget& window) {
        Box(window, "txtName").setText(Text("Krajská"));
        Press(window, "cmdOK");
    });
    EXPECT_EQ(Column("SELECT Nazev FROM Vystavy"), (Texts{"Krajská", "Krajská"}));
    EXPECT_EQ(result, u"Krajská");
}

TEST_F(ShowEditorTest, AnEmptiedBoxMeansZero) {
    SetFee("IClass2D1", 300);
    OpenEditor([&](QWidget& window) {
        Price(window, 1, 2).clear();
        Price(window, 1, 3).setText(Text(" 150 "));
        Press(window, "cmdOK");
    });
    EXPECT_EQ(Fee("IClass2D1"), "0");
    EXPECT_EQ(Fee("IClass2D2"), "150");
}

TEST_F(ShowEditorTest, APastedTextThatIsNoAmountIsRefusedByTheNameOfItsBox) {
    OpenEditor([&](QWidget& window) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        QLineEdit& box = Price(window, 2, 5);
        box.setFocus();
        QTest::keyClicks(&box, u"a-1"_s);
        EXPECT_EQ(box.text(), u"1");
        QApplication::clipboard()->setText(Text("zdarma"));
        box.selectAll();
        QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(box.text(), u"zdarma");
        platform.ExpectMessage(Text("Třída mladých, další pes, II. uzávěrka: Text „zdarma“ není "
                                    "částka, zapište ji například jako 1234,50."));
        Press(window, "cmdOK");
        EXPECT_TRUE(window.isVisible());
    });
    EXPECT_TRUE(IsNull("SELECT PoplatkyIClass1D1 FROM Vystavy"));
    EXPECT_EQ(Ini(), "none");
}

TEST_F(ShowEditorTest, TheSimpleGridTakesLettersAndIsRefusedByItsOwnName) {
    OpenEditor([&](QWidget& window) {
        Tick(window, "chkRozliseni").click();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        QLineEdit& box = Price(window, 1, 19);
        box.setFocus();
        QTest::keyClicks(&box, u"x"_s);
        EXPECT_EQ(box.text(), u"x");
        platform.ExpectMessage(Text(
            "Další pes, I. uzávěrka: Text „x“ není částka, zapište ji například jako 1234,50."));
        Press(window, "cmdOK");
        EXPECT_TRUE(window.isVisible());
        box.setText(Text("1 200,50"));
        Press(window, "cmdOK");
    });
    EXPECT_EQ(Fee("IClass1D2"), "1200.5");
}

TEST_F(ShowEditorTest, TheFocusSelectsTheWholePrice) {
    SetFee("IClass1D1", 300);
    OpenEditor([&](QWidget& window) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        QLineEdit& box = Price(window, 1, 0);
        box.setFocus(Qt::OtherFocusReason);
        EXPECT_EQ(box.selectedText(), u"300");
        QLineEdit& other = Price(window, 2, 0);
        QTest::mouseClick(&other, Qt::LeftButton);
        QCoreApplication::processEvents();
        EXPECT_EQ(other.selectedText(), u"0");
    });
}

} // namespace
} // namespace lorvo::test
