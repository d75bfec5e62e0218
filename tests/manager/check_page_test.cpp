// The page of the full check, in words.

#include "manager/manager_fixture.h"

namespace lorvo::test {
namespace {

using namespace Qt::StringLiterals;

class CheckPageTest : public ManagerPageTest {
  protected:
    QString Verdict() {
        Show(4);
        Press("cmdCheck");
        return Control<QPlainTextEdit>(window, "txtNalez").toPlainText();
    }
};

TEST_F(CheckPageTest, AWholeShowIsWell) {
    EXPECT_TRUE(Verdict().startsWith(u"Všechno je v pořádku."_s));
}

TEST_F(CheckPageTest, APaymentOfNoDogIsNamed) {
    TheDataModule().Conn1.Open(DatabasePath(platform.ProgramFolder()));
    Add("Uhrady", {{"ID_Psa", 77}, {"Kc", Currency::FromUnits(100)}});
    TheDataModule().Conn1.Close();
    const QString verdict = Verdict();
    EXPECT_TRUE(verdict.startsWith(u"Něco není v pořádku:"_s)) << verdict.toStdString();
    EXPECT_TRUE(verdict.contains(u"77"_s) || verdict.contains(u"plat"_s, Qt::CaseInsensitive))
        << verdict.toStdString();
}

} // namespace
} // namespace lorvo::test
