#pragma once
// Chance that comes out the same on every machine: the standard library fixes its engines, but not
// its distributions.

#include <cstdint>
#include <random>
#include <utility>

namespace lorvo::show {

class Dice {
  public:
    explicit Dice(std::uint64_t seed) : engine_(seed) {}

    /// 0 to count - 1; count is above 0.
    int Below(int count) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(count)); }
    /// first to last, both included.
    int Between(int first, int last) { return first + Below(last - first + 1); }
    bool Chance(int percent) { return Below(100) < percent; }

    /// One element of a container or array.
    template<class Range> auto& Pick(Range& range) {
        return range[static_cast<std::size_t>(Below(static_cast<int>(std::size(range))))];
    }
    /// Position of one of the weights, each as likely as it weighs.
    template<class Weights> int PickWeighted(const Weights& weights) {
        int total = 0;
        for (const int weight : weights)
            total += weight;
        int left = Below(total);
        int at = 0;
        for (const int weight : weights) {
            if (left < weight)
                break;
            left -= weight;
            ++at;
        }
        return at;
    }
    template<class Range> void Shuffle(Range& range) {
        for (int i = static_cast<int>(std::size(range)) - 1; i > 0; --i)
            std::swap(range[static_cast<std::size_t>(i)],
                      range[static_cast<std::size_t>(Below(i + 1))]);
    }

  private:
    std::mt19937_64 engine_;
};

} // namespace lorvo::show
