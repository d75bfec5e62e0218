// Every paper of the small show by both routes, against files that were read by eye.

#include "reports/fmDiplom.h"
#include "reports/frmPrehledPlemen.h"
#include "reports/frmTiskPlateb.h"
#include "reports/frmTiskPosudku.h"
#include "reports/frmTiskPozvanek.h"
#include "reports/frmTiskSeznamVystavovatelu.h"
#include "reports/frmTiskSeznamuPsu.h"
#include "reports/paper_fixture.h"
#include "support/window_walk.h"

#include <QDir>
#include <QTest>
#include <ostream>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

struct Paper {
    const char* name; ///< of its golden files
    std::unique_ptr<ExportWindow> (*make)();
    bool closesAfterTemplate;
    bool closesAfterDocument;
    const char16_t* templateFile; ///< in the folder of templates
    const char16_t* output;
    const char16_t* caption;
    const char16_t* startCaption;
    const char16_t* closeCaption;
    const char16_t* document; ///< its title
};

void PrintTo(const Paper& paper, std::ostream* out) {
    *out << paper.name;
}

template<class Window> std::unique_ptr<ExportWindow> Make() {
    return std::make_unique<Window>(nullptr);
}

constexpr const char16_t* kOutput = u"Šablony/Výstup.html";

const Paper kPapers[] = {
    {"entry_confirmations", Make<frmTiskPozvanek>, true, true, u"Pozvánky.html", u"HTMLVýstup.html",
     u"Export pozvánek", u"Start", u"Zavřít", u"Pozvánky"},
    {"judging_sheets", Make<frmTiskPosudku>, true, false, u"Posudkové listy.html", kOutput,
     u"Export posudků", u"Start", u"Zavřít", u"Posudkové listy"},
    {"diplomas", Make<fmDiplom>, true, true, u"Diplomy.html", kOutput, u"Tisk diplomů", u"Tisk",
     u"Storno", u"Diplomy"},
    {"dog_list", Make<frmTiskSeznamuPsu>, true, true, u"Seznam psů.html", kOutput,
     u"Export seznamu psů", u"Start", u"Zavřít", u"Seznam psů"},
    {"exhibitor_list", Make<frmTiskSeznamVystavovatelu>, true, false, u"Seznam vystavovatelů.html",
     kOutput, u"Export seznamu vystavovatelů", u"Start", u"Zavřít", u"Seznam vystavovatelů"},
    {"payments", Make<frmTiskPlateb>, false, false, u"Platby.html", kOutput, u"Platby", u"Tisk",
     u"Storno", u"Platby"},
};

class EachPaper : public PaperFixture, public testing::WithParamInterface<Paper> {
  protected:
    QString Golden(const char* ending) const {
        return QString::fromUtf8(GetParam().name) + QString::fromUtf8(ending);
    }
};

std::string NameOf(const testing::TestParamInfo<Paper>& info) {
    return info.param.name;
}

} // namespace

TEST_P(EachPaper, AsADocument) {
    const auto window = GetParam().make();
    Start(*window, false);
    ExpectGolden(Golden(".txt"), Operations().toUtf8() + '\n');
    EXPECT_EQ(platform.documentTitles, QStringList{QString::fromUtf16(GetParam().document)});
    EXPECT_EQ(window->isVisible(), !GetParam().closesAfterDocument);
}

TEST_P(EachPaper, AsAPage) {
    InstallTemplates();
    const auto window = GetParam().make();
    Start(*window, true);
    const QString output = QString::fromUtf16(GetParam().output);
    ExpectGolden(Golden(".html"), File(output));
    EXPECT_EQ(platform.openedFiles, QStringList{platform.ProgramFolder() + u'/' + output});
    EXPECT_TRUE(platform.wordOperations.isEmpty());
    EXPECT_EQ(window->isVisible(), !GetParam().closesAfterTemplate);
}

TEST_P(EachPaper, ItsWindowIsLaidOutForReadingAndForTheKeyboard) {
    const auto window = GetParam().make();
    EXPECT_EQ(window->windowTitle(), QString::fromUtf16(GetParam().caption));
    EXPECT_EQ(Control<QPushButton>(*window, "cmdOK").text(),
              QString::fromUtf16(GetParam().startCaption));
    EXPECT_EQ(Control<QPushButton>(*window, "cmdCancel").text(),
              QString::fromUtf16(GetParam().closeCaption));
    EXPECT_FALSE(Control<QCheckBox>(*window, "chkHTML").isChecked());
    EXPECT_TRUE(Control<QPushButton>(*window, "cmdOK").isDefault());
    WalkWindow(*window);
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}

TEST_P(EachPaper, WithoutRowsIsThePageAlone) {
    show.Execute("DELETE FROM Psi; DELETE FROM Majitele; DELETE FROM Uhrady; DELETE FROM Plemena");
    InstallTemplates();
    const auto window = GetParam().make();
    Start(*window, true);
    const QByteArray page = File(QString::fromUtf16(GetParam().output));
    EXPECT_TRUE(page.startsWith("<!DOCTYPE HTML PUBLIC")) << page.left(60).constData();
    EXPECT_EQ(page.contains("</html>"), GetParam().name != std::string("dog_list"));
    EXPECT_EQ(platform.openedFiles.size(), 1);
}

TEST_P(EachPaper, AMissingTemplateFolderIsAMessageThatNamesTheFile) {
    QDir(platform.ProgramFolder() + u"/Šablony"_s).removeRecursively();
    const auto window = GetParam().make();
    const QString path = QDir::toNativeSeparators(platform.ProgramFolder() + u"/Šablony/"_s +
                                                  QString::fromUtf16(GetParam().templateFile));
    platform.ExpectMessage(
        u"Šablonu nelze otevřít „%1“: soubor nebo jeho složka neexistuje"_s.arg(path),
        MessageAnswer::Ok, MessageIcon::Stop, MessageButtons::Ok,
        QString::fromUtf16(GetParam().caption));
    Start(*window, true);
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(platform.openedFiles.isEmpty());
}

TEST_P(EachPaper, AMissingTemplateIsMadeEmptyAndAMessageComes) {
    const auto window = GetParam().make();
    platform.ExpectMessage(u"Šablona poškozena, položka nebyla nalezena."_s, MessageAnswer::Ok,
                           MessageIcon::None, MessageButtons::Ok, u"Lorvo"_s);
    Start(*window, true);
    EXPECT_EQ(File(u"Šablony/"_s + QString::fromUtf16(GetParam().templateFile)), "");
    EXPECT_EQ(window->isVisible(), !GetParam().closesAfterTemplate);
    // The dog list alone writes and opens its empty output.
    const bool writes = GetParam().name == std::string("dog_list");
    EXPECT_EQ(File(QString::fromUtf16(GetParam().output)), writes ? "" : "no file");
    EXPECT_EQ(platform.openedFiles.size(), writes ? 1 : 0);
}

TEST_P(EachPaper, AClosingMarkerBeforeItsOpeningOneIsAMessage) {
    WriteTemplate(QString::fromUtf16(GetParam().templateFile),
                  "__top_end__T__top____loop1____body____body_end____loop1_end__"
                  "__bottom____bottom_end__");
    const auto window = GetParam().make();
    platform.ExpectMessage(u"Šablona poškozena: značka __top_end__ stojí před značkou __top__."_s);
    Start(*window, true);
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(Control<QPushButton>(*window, "cmdCancel").isEnabled());
    EXPECT_TRUE(platform.openedFiles.isEmpty());
    EXPECT_EQ(platform.waitCursorDepth, 0);
}

TEST_P(EachPaper, AnOutputThatCannotBeWrittenIsAMessage) {
    InstallTemplates();
    const QString path = platform.ProgramFolder() + u'/' + QString::fromUtf16(GetParam().output);
    ASSERT_TRUE(QDir().mkdir(path));
    const auto window = GetParam().make();
    platform.ExpectMessage(
        u"Soubor nelze zapsat „%1“: tento název má složka"_s.arg(QDir::toNativeSeparators(path)));
    Start(*window, true);
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(platform.openedFiles.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Papers, EachPaper, testing::ValuesIn(kPapers), NameOf);

} // namespace lorvo::test
