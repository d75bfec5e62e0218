#include "office/dogs/dog_counts_line.h"

#include "support/print_qt.h"

#include <gtest/gtest.h>

namespace lorvo {
namespace {

TEST(DogCountsLine, DeclinesDogsAndBitchesByTheirNumbers) {
    struct Case {
        int males, females;
        const char* line;
    };
    constexpr Case kCases[] = {
        {0, 0, "V seznamu  je 0 psů a 0 fen, celkem 0."},
        {1, 1, "V seznamu  je 1 pes a 1 fena, celkem 2."},
        {2, 2, "V seznamu  jsou 2 psi a 2 feny, celkem 4."},
        {4, 4, "V seznamu  jsou 4 psi a 4 feny, celkem 8."},
        {5, 5, "V seznamu  je 5 psů a 5 fen, celkem 10."},
        {22, 101, "V seznamu  je 22 psů a 101 fen, celkem 123."},
    };
    for (const Case& each : kCases)
        EXPECT_EQ(DogCountsLine(each.males, each.females), QString::fromUtf8(each.line));
}

} // namespace
} // namespace lorvo
