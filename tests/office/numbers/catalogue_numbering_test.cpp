#include "office/numbers/catalogue_numbering.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace lorvo {
namespace {

/// A tree written down as text: "K0(Rx(P1 P2)) K1(R1(P3))"; names that begin with P are dogs.
struct Plant {
    std::string name;
    Plant* parent = nullptr;
    std::vector<std::unique_ptr<Plant>> children;
};

Plant* SiblingOf(const Plant& plant) {
    const auto& siblings = plant.parent->children;
    for (std::size_t i = 0; i + 1 < siblings.size(); ++i) {
        if (siblings[i].get() == &plant)
            return siblings[i + 1].get();
    }
    return nullptr;
}

Plant* FirstChild(const Plant& plant) {
    return plant.children.empty() ? nullptr : plant.children.front().get();
}
Plant* NextSibling(const Plant& plant) {
    return SiblingOf(plant);
}
Plant* Parent(const Plant& plant) {
    return plant.parent->parent ? plant.parent : nullptr;
}
bool IsDog(const Plant& plant) {
    return plant.name.front() == 'P';
}

std::unique_ptr<Plant> Grow(const std::string& text) {
    auto ground = std::make_unique<Plant>();
    Plant* parent = ground.get();
    for (const char character : text) {
        if (character == '(') {
            parent = parent->children.back().get();
        } else if (character == ')') {
            parent = parent->parent;
        } else if (character != ' ' && (parent->children.empty() || isupper(character))) {
            parent->children.push_back(std::make_unique<Plant>());
            parent->children.back()->parent = parent;
            parent->children.back()->name = character;
        } else if (character != ' ') {
            parent->children.back()->name += character;
        }
    }
    return ground;
}

std::string Numbered(const std::string& text) {
    const auto ground = Grow(text);
    std::string order;
    WalkForNumbering<Plant>(FirstChild(*ground), [&order](Plant& dog, std::int16_t number) {
        order += dog.name + "=" + std::to_string(number) + " ";
    });
    return order;
}

TEST(CatalogueNumbering, RingsInTheirOrderWhenEveryBreedHasItsRing) {
    EXPECT_EQ(Numbered("K0 K1(R1(P5 P7) R2(P6)) K2(R3(P1))"), "P5=1 P7=2 P6=3 P1=4 ");
}

TEST(CatalogueNumbering, ClassNodesAreWalkedThrough) {
    EXPECT_EQ(Numbered("K0 K1(R1(T1(P5) T2 T3(P7))) K2(R3(T1 T2(P1)))"), "P5=1 P7=2 P1=3 ");
}

// kept: numbering-ends-outside-rings
TEST(CatalogueNumbering, DogsOutsideRingsEndTheWalk) {
    EXPECT_EQ(Numbered("K0(R9(P9 P8)) K1(R1(P5))"), "P9=1 P8=2 ");
    EXPECT_EQ(Numbered("K0(R9(P9) R8(P8)) K1(R1(P5))"), "P9=1 P8=2 ");
}

TEST(CatalogueNumbering, LastBreedOutsideRingsWithoutNodesLetsTheWalkGoOn) {
    EXPECT_EQ(Numbered("K0(R9(P9) R8) K1(R1(P5))"), "P9=1 P5=2 ");
}

TEST(CatalogueNumbering, EmptyClassesOutsideRingsEndTheWalkToo) {
    EXPECT_EQ(Numbered("K0(R9(T1 T2)) K1(R1(P5))"), "");
}

TEST(CatalogueNumbering, EmptyTree) {
    EXPECT_EQ(Numbered("K0"), "");
    EXPECT_EQ(Numbered(""), "");
}

TEST(CatalogueNumbering, StopsBeforeANumberThatDoesNotFit) {
    std::string text = "K0 K1(R1(";
    for (int i = 0; i < 32768; ++i)
        text += "P";
    const auto ground = Grow(text + "))");
    int visited = 0;
    EXPECT_THROW(WalkForNumbering<Plant>(FirstChild(*ground),
                                         [&visited](Plant&, std::int16_t) { ++visited; }),
                 RangeError);
    EXPECT_EQ(visited, 32767);
}

} // namespace
} // namespace lorvo
