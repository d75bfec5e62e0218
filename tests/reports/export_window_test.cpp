// The frame of all export windows, on a window with little of its own.

#include "platform/values/errors.h"
#include "reports/export_window.h"
#include "support/recording_platform.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

ExportTraits SampleTraits() {
    return {
        .name = "frmSample",
        .caption = u"Export"_s,
        .title = u"Export vzorků"_s,
        .startCaption = u"Tisk"_s,
        .closeCaption = u"Storno"_s,
        .paper = u"Vzorek"_s,
        .templateFile = u"Vzorek.html"_s,
        .outputFile = u"Výstup.html"_s,
    };
}

/// Types and fills five rows, or as many as it is told.
class frmSample : public ExportWindow {
  public:
    explicit frmSample(const ExportTraits& traits = SampleTraits())
        : ExportWindow(traits, nullptr) {
        LayOut(new QLabel(u"(žádné volby)"_s, this));
    }

    QString Tag() const { return cmdOK->property("tag").toString(); }
    void ClickStart() { QTest::mouseClick(cmdOK, Qt::LeftButton); }
    void ClickClose() { QTest::mouseClick(cmdCancel, Qt::LeftButton); }
    using ExportWindow::chkHTML;
    using ExportWindow::cmdCancel;
    using ExportWindow::cmdOK;

    std::function<void(int row)> onRow; ///< runs before the row's progress is shown
    int rows = 5;
    int rowsDone = 0;

  protected:
    void TypeDocument(WordProcessor& word) override {
        Walk([&](int row) { word.TypeText(QString::number(row)); });
    }
    void AppendRows(QByteArray& output, const ReportTemplate& pattern) override {
        Walk([&](int) { output += pattern.Body(); });
    }

  private:
    void Walk(const std::function<void(int)>& take) {
        for (int row = 1; row <= rows; ++row) {
            if (onRow)
                onRow(row);
            if (!Advance(row, rows))
                return;
            take(row);
            ++rowsDone;
        }
    }
};

class ExportWindowFrame : public testing::Test {
  protected:
    void WriteTemplate(const QByteArray& text) const {
        QFile file(platform.ProgramFolder() + u"/Vzorek.html"_s);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    QByteArray Output() const {
        QFile file(platform.ProgramFolder() + u"/Výstup.html"_s);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : "no file";
    }

    RecordingPlatform platform;
};

constexpr const char* kTemplate =
    "a note__top__<t>__top_end__between__body__<b>__body_end____bottom__<z>__bottom_end__behind";

} // namespace

TEST_F(ExportWindowFrame, OpensForTheDocumentRoute) {
    frmSample window;
    EXPECT_EQ(window.windowTitle(), u"Export");
    EXPECT_EQ(window.cmdOK->text(), u"Tisk");
    EXPECT_EQ(window.cmdCancel->text(), u"Storno");
    EXPECT_EQ(window.chkHTML->text(), u"HTML formát");
    EXPECT_FALSE(window.chkHTML->isChecked());
    EXPECT_EQ(window.Tag(), u"");
}

TEST_F(ExportWindowFrame, ADocumentRunTypesUnderTheWaitCursorAndShowsTheDocument) {
    frmSample window;
    window.show();
    QStringList captions;
    window.onRow = [&](int) {
        captions << window.windowTitle();
        EXPECT_EQ(platform.waitCursorDepth, 1);
        EXPECT_EQ(window.cmdOK->text(), u"Přerušit");
        EXPECT_FALSE(window.cmdCancel->isEnabled());
        EXPECT_EQ(window.Tag(), u"jede");
    };
    window.ClickStart();
    EXPECT_EQ(captions.mid(1), QStringList({u"Export vzorků - Generuji výpis - 20%"_s,
                                            u"Export vzorků - Generuji výpis - 40%"_s,
                                            u"Export vzorků - Generuji výpis - 60%"_s,
                                            u"Export vzorků - Generuji výpis - 80%"_s}));
    EXPECT_EQ(platform.shownDocuments, 1);
    EXPECT_EQ(platform.wordOperations.last(), u"Show");
    EXPECT_EQ(platform.waitCursorDepth, 0);
    EXPECT_EQ(window.cmdOK->text(), u"Start");
    EXPECT_TRUE(window.cmdCancel->isEnabled());
    EXPECT_EQ(window.windowTitle(), u"Export vzorků");
    EXPECT_TRUE(window.isVisible());
}

// kept: two-clicks-to-restart
TEST_F(ExportWindowFrame, AfterARunTheFirstClickDoesNothingAndTheSecondStarts) {
    frmSample window;
    window.show();
    window.ClickStart();
    EXPECT_EQ(window.Tag(), u"jede");
    window.ClickStart();
    EXPECT_EQ(window.Tag(), u"");
    EXPECT_EQ(window.cmdOK->text(), u"Start");
    EXPECT_EQ(platform.shownDocuments, 1);
    window.ClickStart();
    EXPECT_EQ(platform.shownDocuments, 2);
}

TEST_F(ExportWindowFrame, AStopRequestLeavesTheRowsAndShowsWhatStands) {
    frmSample window;
    window.show();
    window.onRow = [&](int row) {
        if (row == 3) {
            platform.onProcessEvents = [&] {
                platform.onProcessEvents = nullptr;
                window.ClickStart();
                EXPECT_EQ(window.cmdOK->text(), u"Start");
                EXPECT_TRUE(window.cmdCancel->isEnabled());
                window.ClickStart(); // no second run inside the first
                EXPECT_EQ(window.Tag(), u"");
            };
        }
    };
    window.ClickStart();
    EXPECT_EQ(window.rowsDone, 2);
    EXPECT_EQ(platform.shownDocuments, 1);
    window.ClickStart();
    EXPECT_EQ(platform.shownDocuments, 2) << "a stopped run is started again by one click";
}

/// A hand isn't as fast as a short run.
TEST_F(ExportWindowFrame, AClickThatIsOnItsWayStopsAShortRun) {
    frmSample window;
    window.rows = 40;
    window.show();
    QTimer click;
    click.setSingleShot(true);
    QObject::connect(&click, &QTimer::timeout, [&] { window.ClickStart(); });
    window.onRow = [&](int row) {
        if (row == 1)
            click.start(1);
    };
    window.ClickStart();
    EXPECT_LT(window.rowsDone, 40);
    EXPECT_EQ(platform.shownDocuments, 1);
}

TEST_F(ExportWindowFrame, AStopRequestMayLeaveTheCloseButtonAlone) {
    ExportTraits traits = SampleTraits();
    traits.stopEnablesClosing = false;
    frmSample window(traits);
    window.show();
    platform.onProcessEvents = [&] {
        platform.onProcessEvents = nullptr;
        window.ClickStart();
        EXPECT_FALSE(window.cmdCancel->isEnabled());
    };
    window.ClickStart();
    EXPECT_TRUE(window.cmdCancel->isEnabled());
}

TEST_F(ExportWindowFrame, ATemplateRunMayLeaveTheCloseButtonEnabled) {
    WriteTemplate(kTemplate);
    ExportTraits traits = SampleTraits();
    traits.templateDisablesClosing = false;
    frmSample window(traits);
    window.show();
    window.onRow = [&](int) {
        EXPECT_TRUE(window.cmdCancel->isEnabled());
    };
    window.chkHTML->setChecked(true);
    window.ClickStart();
    window.chkHTML->setChecked(false);
    window.ClickStart();
    window.onRow = [&](int) {
        EXPECT_FALSE(window.cmdCancel->isEnabled());
    };
    window.ClickStart();
    EXPECT_EQ(window.rowsDone, 10);
}

TEST_F(ExportWindowFrame, ClosesAfterTheRouteThatIsToldTo) {
    WriteTemplate(kTemplate);
    for (const bool asTemplate : {false, true}) {
        ExportTraits traits = SampleTraits();
        (asTemplate ? traits.closesAfterTemplate : traits.closesAfterDocument) = true;
        for (const bool run : {false, true}) {
            frmSample window(traits);
            window.show();
            window.chkHTML->setChecked(run);
            window.ClickStart();
            EXPECT_EQ(window.isVisible(), run != asTemplate);
        }
    }
}

TEST_F(ExportWindowFrame, AWindowClosedDuringARunGoesWhenTheRunHasEnded) {
    frmSample window;
    window.show();
    platform.onProcessEvents = [&] {
        platform.onProcessEvents = nullptr;
        window.close();
        EXPECT_TRUE(window.isVisible());
    };
    window.ClickStart();
    EXPECT_EQ(window.rowsDone, 0);
    EXPECT_EQ(platform.shownDocuments, 1);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(ExportWindowFrame, TheCloseButtonCloses) {
    frmSample window;
    window.show();
    window.ClickClose();
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(platform.wordOperations.isEmpty());
}

TEST_F(ExportWindowFrame, AFailedRunEndsWithAMessageAndTheWindowAsItWas) {
    frmSample window;
    window.show();
    window.onRow = [](int) {
        throw StoreError("Tabulku nelze číst.");
    };
    platform.ExpectMessage(u"Tabulku nelze číst."_s, MessageAnswer::Ok, MessageIcon::Stop,
                           MessageButtons::Ok, u"Export"_s);
    window.ClickStart();
    EXPECT_EQ(platform.shownDocuments, 0);
    EXPECT_EQ(platform.waitCursorDepth, 0);
    EXPECT_EQ(window.windowTitle(), u"Export");
    EXPECT_TRUE(window.cmdCancel->isEnabled());
    EXPECT_TRUE(window.isVisible());
    window.onRow = nullptr;
    window.ClickStart();
    EXPECT_EQ(platform.shownDocuments, 1);
}

TEST_F(ExportWindowFrame, ADocumentThatNothingOpensIsNamedInAMessage) {
    frmSample window;
    window.show();
    platform.filesOpen = false;
    platform.ExpectMessage(
        u"Dokument je uložen v souboru „%1“, ale na tomto počítači jej nemá co "
        u"otevřít. Otevřete jej na kterémkoli počítači s textovým procesorem (Microsoft Word, "
        u"LibreOffice Writer)."_s.arg(
            QDir::toNativeSeparators(platform.ProgramFolder() + u"/Tisky/Vzorek.docx"_s)),
        MessageAnswer::Ok, MessageIcon::Information, MessageButtons::Ok, u"Export"_s,
        [&] { EXPECT_EQ(platform.waitCursorDepth, 0) << "the run is over"; });
    window.ClickStart();
    EXPECT_EQ(window.windowTitle(), u"Export vzorků");
    EXPECT_TRUE(window.cmdCancel->isEnabled());
}

TEST_F(ExportWindowFrame, APageThatNothingOpensIsNoMatter) {
    WriteTemplate(kTemplate);
    frmSample window;
    window.show();
    platform.filesOpen = false;
    window.chkHTML->setChecked(true);
    window.ClickStart();
    EXPECT_EQ(Output(), "<t><b><b><b><b><b><z>");
}

TEST_F(ExportWindowFrame, ATemplateRunPutsTheSectionsTogetherAndOpensTheOutput) {
    WriteTemplate(kTemplate);
    frmSample window;
    window.show();
    window.chkHTML->setChecked(true);
    window.ClickStart();
    EXPECT_EQ(Output(), "<t><b><b><b><b><b><z>");
    EXPECT_EQ(platform.openedFiles, QStringList({platform.ProgramFolder() + u"/Výstup.html"_s}));
    EXPECT_EQ(platform.shownDocuments, 0);
    EXPECT_EQ(window.windowTitle(), u"Export vzorků");
}

TEST_F(ExportWindowFrame, AStoppedTemplateRunOpensTheRowsDoneSoFar) {
    WriteTemplate(kTemplate);
    frmSample window;
    window.show();
    window.chkHTML->setChecked(true);
    window.onRow = [&](int row) {
        if (row == 3)
            platform.onProcessEvents = [&] {
                platform.onProcessEvents = nullptr;
                window.ClickStart();
            };
    };
    window.ClickStart();
    EXPECT_EQ(Output(), "<t><b><b><z>");
    EXPECT_EQ(platform.openedFiles.size(), 1);
}

TEST_F(ExportWindowFrame, AMissingTemplateIsMadeEmptyAndNothingIsOpened) {
    frmSample window;
    window.show();
    window.chkHTML->setChecked(true);
    platform.ExpectMessage(u"Šablona poškozena, položka nebyla nalezena."_s, MessageAnswer::Ok,
                           MessageIcon::None, MessageButtons::Ok);
    window.ClickStart();
    EXPECT_TRUE(QFile::exists(platform.ProgramFolder() + u"/Vzorek.html"_s));
    EXPECT_EQ(Output(), "no file");
    EXPECT_TRUE(platform.openedFiles.isEmpty());
    EXPECT_TRUE(window.cmdCancel->isEnabled());
}

TEST_F(ExportWindowFrame, ATemplateInTheWrongOrderPassesAndIsPutTogetherInTheFixedOne) {
    WriteTemplate("__bottom__<z>__bottom_end____body__<b>__body_end____top__<t>__top_end__");
    frmSample window;
    window.show();
    window.chkHTML->setChecked(true);
    window.ClickStart();
    EXPECT_EQ(Output(), "<t><b><b><b><b><b><z>");
}

} // namespace lorvo::test
