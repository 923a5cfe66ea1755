#include "display/deflate.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace varnstride {
namespace {

constexpr std::size_t kWindow = 32768;
constexpr std::size_t kShortestRun = 3;
constexpr std::size_t kLongestRun = 258;
constexpr int kTries = 24;  // places looked at for the longest run
constexpr std::size_t kHashSize = 1 << 15;
constexpr std::size_t kNowhere = ~std::size_t{0};

// Bits come from the lowest of each byte on.
class BitWriter {
 public:
    explicit BitWriter(std::vector<std::byte>& out) : out_(out) {}

    void Put(unsigned value, int count) {
        held_ |= std::uint64_t{value} << heldCount_;
        heldCount_ += count;
        while (heldCount_ >= 8) {
            out_.push_back(static_cast<std::byte>(held_ & 255U));
            held_ >>= 8;
            heldCount_ -= 8;
        }
    }
    // Codes of symbols stand with their highest bit first.
    void PutCode(unsigned code, int count) {
        unsigned turned = 0;
        for (int bit = 0; bit < count; ++bit)
            turned |= (code >> bit & 1U) << (count - 1 - bit);
        Put(turned, count);
    }
    void Finish() {
        if (heldCount_ > 0) Put(0, 8 - heldCount_);
    }

 private:
    std::vector<std::byte>& out_;
    std::uint64_t held_ = 0;
    int heldCount_ = 0;
};

void PutSymbol(BitWriter& writer, unsigned symbol) {
    if (symbol < 144) {
        writer.PutCode(0x30 + symbol, 8);
    } else if (symbol < 256) {
        writer.PutCode(0x190 + symbol - 144, 9);
    } else if (symbol < 280) {
        writer.PutCode(symbol - 256, 7);
    } else {
        writer.PutCode(0xC0 + symbol - 280, 8);
    }
}

// Lengths and distances fall into classes; a class has a first value and some bits that tell which
// of its values is meant.
struct Step {
    unsigned first;
    int bits;
};

template <std::size_t Count>
constexpr std::array<Step, Count> Steps(unsigned first, std::size_t plain, std::size_t perBit) {
    std::array<Step, Count> steps{};
    for (std::size_t index = 0; index < Count; ++index) {
        const int bits = index < plain ? 0 : static_cast<int>((index - plain) / perBit) + 1;
        steps[index] = {first, bits};
        first += 1U << bits;
    }
    return steps;
}

constexpr auto kLengths = Steps<28>(3, 8, 4);  // 258 has a class of its own behind these
constexpr auto kDistances = Steps<30>(1, 4, 2);

template <std::size_t Count>
std::size_t ClassOf(const std::array<Step, Count>& steps, unsigned value) {
    const auto next = std::upper_bound(steps.begin(), steps.end(), value,
                                       [](unsigned v, const Step& step) { return v < step.first; });
    return static_cast<std::size_t>(next - steps.begin()) - 1;
}

struct Run {
    std::size_t length = 0;
    std::size_t distance = 0;
};

void PutRun(BitWriter& writer, const Run& run) {
    constexpr unsigned kFirstLengthSymbol = 257;
    const auto length = static_cast<unsigned>(run.length);
    if (length == kLongestRun) {
        PutSymbol(writer, kFirstLengthSymbol + kLengths.size());
    } else {
        const std::size_t index = ClassOf(kLengths, length);
        PutSymbol(writer, kFirstLengthSymbol + static_cast<unsigned>(index));
        writer.Put(length - kLengths[index].first, kLengths[index].bits);
    }
    const auto distance = static_cast<unsigned>(run.distance);
    const std::size_t index = ClassOf(kDistances, distance);
    writer.PutCode(static_cast<unsigned>(index), 5);
    writer.Put(distance - kDistances[index].first, kDistances[index].bits);
}

// Finds earlier places with the same next bytes by chains of places with the same hash.
class RunFinder {
 public:
    explicit RunFinder(std::span<const std::byte> bytes)
        : bytes_(bytes), newest_(kHashSize, kNowhere), older_(kWindow, kNowhere) {}

    Run Longest(std::size_t at) const {
        Run longest;
        if (at + kShortestRun > bytes_.size()) return longest;
        std::size_t place = newest_[HashAt(at)];
        for (int tries = 0; tries < kTries && place != kNowhere && at - place <= kWindow; ++tries) {
            const std::size_t length = CommonLength(place, at);
            if (length > longest.length) longest = {length, at - place};
            place = older_[place % kWindow];
        }
        return longest.length < kShortestRun ? Run{} : longest;
    }
    void Note(std::size_t at) {
        if (at + kShortestRun > bytes_.size()) return;
        std::size_t& newest = newest_[HashAt(at)];
        older_[at % kWindow] = newest;
        newest = at;
    }

 private:
    std::size_t HashAt(std::size_t at) const {
        const auto byte = [&](std::size_t next) {
            return std::to_integer<std::uint32_t>(bytes_[at + next]);
        };
        return (byte(0) << 16 | byte(1) << 8 | byte(2)) * 0x9E3779B1U >> 17;
    }
    std::size_t CommonLength(std::size_t place, std::size_t at) const {
        const std::size_t most = std::min(kLongestRun, bytes_.size() - at);
        std::size_t length = 0;
        while (length < most && bytes_[place + length] == bytes_[at + length])
            ++length;
        return length;
    }

    std::span<const std::byte> bytes_;
    std::vector<std::size_t> newest_;
    std::vector<std::size_t> older_;  // of the places of the window, by place modulo its size
};

// One block with the fixed codes.
void PutBlock(BitWriter& writer, std::span<const std::byte> bytes) {
    constexpr unsigned kLastBlock = 1;
    constexpr unsigned kFixedCodes = 1;
    constexpr unsigned kEndOfBlock = 256;
    writer.Put(kLastBlock, 1);
    writer.Put(kFixedCodes, 2);
    RunFinder runs(bytes);
    for (std::size_t at = 0; at < bytes.size();) {
        const Run run = runs.Longest(at);
        if (run.length == 0) {
            PutSymbol(writer, std::to_integer<unsigned>(bytes[at]));
        } else {
            PutRun(writer, run);
        }
        for (const std::size_t end = at + std::max<std::size_t>(run.length, 1); at < end; ++at)
            runs.Note(at);
    }
    PutSymbol(writer, kEndOfBlock);
    writer.Finish();
}

std::uint32_t Adler32(std::span<const std::byte> bytes) {
    constexpr std::uint32_t kModulus = 65521;
    std::uint32_t low = 1;
    std::uint32_t high = 0;
    for (const std::byte byte : bytes) {
        low = (low + std::to_integer<std::uint32_t>(byte)) % kModulus;
        high = (high + low) % kModulus;
    }
    return high << 16 | low;
}

}  // namespace

std::vector<std::byte> PackZlib(std::span<const std::byte> bytes) {
    std::vector<std::byte> packed = {std::byte{0x78}, std::byte{0x01}};
    BitWriter writer(packed);
    PutBlock(writer, bytes);
    const std::uint32_t sum = Adler32(bytes);
    for (int shift = 24; shift >= 0; shift -= 8)
        packed.push_back(static_cast<std::byte>(sum >> shift & 255U));
    return packed;
}

}  // namespace varnstride
