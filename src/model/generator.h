// The one source of chance. It is part of a game, so that the same file, orders and time give the
// same battle in every build.
#pragma once

#include <cstdint>

namespace varnstride {

class DicePaths;

class Generator {
 public:
    // Starts the sequence anew; a program that never seeds stands at 1.
    void Seed(std::uint32_t seed) { state_ = seed; }

    // The next number, 0 to 32767.
    int Next() {
        state_ = state_ * 214013U + 2531011U;
        return static_cast<int>((state_ >> 16) & 0x7FFFU);
    }

    std::uint32_t State() const { return state_; }

    // While paths are set the dice follow them in place of the sequence; nothing to go back to it.
    void Follow(DicePaths* paths) { paths_ = paths; }
    DicePaths* Paths() const { return paths_; }

 private:
    std::uint32_t state_ = 1;
    DicePaths* paths_ = nullptr;
};

}  // namespace varnstride
