#include "office/cards/entry_ticks.h"

#include "store/psi_oceneni.h"
#include "store/psi_ve_vystavach.h"
#include "store/vazby_souteze.h"

#include "office/cards/card_test.h"
#include "office/cards/ticked_lines.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

struct RuleCase {
    const char* ticks; ///< as the clerk left them
    int changed;
    const char* outcome;
};

TEST(ShowRules, KeepOneShowPerDog) {
    const RuleCase cases[] = {
        {"xx..", 1, ".x.."}, // a second show unticks the first
        {"xx.x", 0, "x..x"}, // competitions stay
        {"....", 0, "x..."}, // the last show can't be unticked
        {"x.x.", 2, "x.x."}, // a competition beside a show
        {"x...", 2, "x..."}, // and taken back
        {"....", 3, "...x"}, // taken back without a show: it is ticked again
        {"..x.", 2, "..x."}, // a competition without a show may be ticked
    };
    for (const RuleCase& rule : cases) {
        CheckLines lines = Lines(rule.ticks);
        ApplyShowRules(lines, rule.changed);
        std::string outcome;
        for (const CheckLine& line : lines)
            outcome += line.checked ? 'x' : '.';
        EXPECT_EQ(outcome, rule.outcome) << rule.ticks << " changed " << rule.changed;
    }
}

using EntryTicksTest = CardTest;

TEST_F(EntryTicksTest, EntriesAreRewrittenWholeForThatDogAlone) {
    Run("INSERT INTO PsiVeVystavach VALUES (5, 1), (6, 1)");
    Run("INSERT INTO Vazby_Souteze VALUES (5, 3), (5, 9), (6, 3)");
    WriteEntries(5, Lines(".x.x"));
    EXPECT_EQ(ShowsOfDog(5), std::vector({20}));
    EXPECT_EQ(CompetitionsOfDog(5), std::vector({41}));
    EXPECT_EQ(ShowsOfDog(6), std::vector({1}));
    EXPECT_EQ(CompetitionsOfDog(6), std::vector({3}));
}

TEST_F(EntryTicksTest, AwardsAreRewrittenWholeForThatDogAlone) {
    Run("INSERT INTO PsiOceneni VALUES (5, 1), (6, 1)");
    WriteAwards(5, {Line(u"C1"_s, LineIcon::None, false), Line(u"C2"_s, LineIcon::None, true),
                    Line(u"C30"_s, LineIcon::None, true)});
    EXPECT_EQ(AwardsOfDog(5), std::vector({2, 30}));
    EXPECT_EQ(AwardsOfDog(6), std::vector({1}));
}

} // namespace
} // namespace lorvo
