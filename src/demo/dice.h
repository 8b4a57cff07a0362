#pragma once

#include <cstddef>
#include <random>
#include <utility>
#include <vector>

namespace kurbo {

// Chance that falls alike everywhere for one seed: the generator is fixed by the standard, its distributions are not.
// One expression may throw only once unless its order is fixed.
class Dice final {
  public:
    explicit Dice(std::uint32_t seed) : generator_(seed) {}
    // 0 to `count` - 1.
    [[nodiscard]] int below(int count) { return static_cast<int>(generator_() % static_cast<std::uint32_t>(count)); }
    // Both ends included.
    [[nodiscard]] int between(int low, int high) { return low + below(high - low + 1); }
    [[nodiscard]] bool oneIn(int count) { return below(count) == 0; }

  private:
    std::mt19937 generator_;
};

// Cards drawn to the last before they are shuffled anew, so that rare ones turn up in a small company as well.
template <typename Card>
class Deck final {
  public:
    explicit Deck(std::initializer_list<std::pair<Card, int>> shares) {
        for (const auto& [card, count] : shares) cards_.insert(cards_.end(), static_cast<std::size_t>(count), card);
        next_ = cards_.size();
    }

    [[nodiscard]] Card draw(Dice& dice) {
        if (next_ == cards_.size()) shuffle(dice);
        return cards_[next_++];
    }

  private:
    void shuffle(Dice& dice) {
        for (std::size_t i = cards_.size() - 1; i > 0; --i)
            std::swap(cards_[i], cards_[static_cast<std::size_t>(dice.below(static_cast<int>(i) + 1))]);
        next_ = 0;
    }

    std::vector<Card> cards_;
    std::size_t next_;
};

} // namespace kurbo
