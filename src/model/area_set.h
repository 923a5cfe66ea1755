// A set of areas of one map by ordinal. Lit ground, reach and membership are such sets, so that
// joining them costs two machine words however large the map is.
#pragma once

#include <bit>
#include <cstdint>

namespace varnstride {

constexpr int kMostAreas = 127;  // ordinals run from 1; the largest battlefield has 105

class AreaSet {
 public:
    constexpr void Add(int ordinal) { words_[ordinal >> 6] |= Bit(ordinal); }
    constexpr bool Has(int ordinal) const { return (words_[ordinal >> 6] & Bit(ordinal)) != 0; }
    constexpr bool IsEmpty() const { return (words_[0] | words_[1]) == 0; }
    constexpr bool Meets(const AreaSet& other) const {
        return ((words_[0] & other.words_[0]) | (words_[1] & other.words_[1])) != 0;
    }
    constexpr AreaSet& operator|=(const AreaSet& other) {
        words_[0] |= other.words_[0];
        words_[1] |= other.words_[1];
        return *this;
    }
    friend constexpr bool operator==(const AreaSet&, const AreaSet&) = default;

    // Calls visit(ordinal) for each member by rising ordinal.
    template <typename Visit>
    constexpr void ForEach(Visit visit) const {
        for (int word = 0; word < 2; ++word) {
            for (std::uint64_t rest = words_[word]; rest != 0; rest &= rest - 1) {
                visit(word * 64 + std::countr_zero(rest));
            }
        }
    }

 private:
    static constexpr std::uint64_t Bit(int ordinal) { return std::uint64_t{1} << (ordinal & 63); }

    std::uint64_t words_[2] = {0, 0};
};

}  // namespace varnstride
