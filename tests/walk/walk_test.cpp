// A random walk over the windows, with a model beside it that knows what the database and the
// panels must show. LORVO_WALK_STEPS says how many steps (300), LORVO_SEED where chance begins (1);
// a seed gives the same walk again.

#include "walk/desk.h"

#include <gtest/gtest.h>
#include <iostream>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

constexpr int kStepsOfAShow = 150;
constexpr int kToldSteps = 12;
constexpr int kToldAfter = 10000;

int Setting(const char* name, int otherwise) {
    return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : otherwise;
}

QString TakeStep(Desk& desk) {
    const auto& kinds = {StepsInTree,    StepsInTree,  StepsOnPanels, StepsOnPanels,
                         StepsInEditors, StepsInLists, StepsInWindows};
    const auto& steps = (*(kinds.begin() + desk.Random(static_cast<int>(kinds.size()))))();
    return steps[static_cast<std::size_t>(desk.Random(static_cast<int>(steps.size())))](desk);
}

/// One show from its beginning to its clearing; how many steps were taken. Ends at the first fault.
int WalkThroughShow(unsigned seed, int steps) {
    Desk desk(seed);
    QStringList told;
    int taken = 0;
    desk.Compare();
    while (taken < steps && !testing::Test::HasFailure()) {
        const QString words = TakeStep(desk);
        if (words.isEmpty())
            continue;
        ++taken;
        told << words;
        desk.Compare();
    }
    if (!testing::Test::HasFailure()) {
        ClearShow(desk);
        told << u"clear"_s;
        desk.Compare();
    }
    if (testing::Test::HasFailure())
        std::cout << "LORVO_SEED=" << seed << ", step " << taken << ", the last ones: "
                  << told.mid(std::max<qsizetype>(0, told.size() - kToldSteps))
                         .join(u" / "_s)
                         .toStdString()
                  << '\n';
    return taken;
}

} // namespace

TEST(RandomWalk, WindowsShowWhatTheModelKnows) {
    const int steps = Setting("LORVO_WALK_STEPS", 300);
    auto seed = static_cast<unsigned>(Setting("LORVO_SEED", 1));
    int taken = 0;
    while (taken < steps && !HasFailure()) {
        const int before = taken;
        taken += WalkThroughShow(seed++, std::min(kStepsOfAShow, steps - taken));
        if (taken / kToldAfter > before / kToldAfter)
            std::cout << taken << " steps so far" << std::endl;
    }
    std::cout << taken << " steps\n";
}

} // namespace lorvo::test
