#include "platform/headless/state_hash.h"

#include <cmath>

#include "platform/headless/all_records.h"

namespace varnstride {
namespace {

// FNV-1a over words instead of bytes, with a shift that lets the high bits play on.
class Hash {
 public:
    explicit Hash(std::uint64_t start) : value_(start) {}

    template <typename Number>
    requires std::is_integral_v<Number> || std::is_enum_v<Number>
    void Add(Number number) {
        value_ = (value_ ^ static_cast<std::uint32_t>(number)) * 1099511628211ULL;
        value_ ^= value_ >> 32;
    }
    // Hours and minutes with their two decimals.
    void Add(double hours) { Add(static_cast<int>(std::lround(hours * 1000))); }
    void Add(Cell cell) {
        Add(cell.x);
        Add(cell.y);
    }
    template <typename Value, std::size_t kSize>
    void Add(const std::array<Value, kSize>& values) {
        for (const Value& value : values)
            Add(value);
    }
    template <typename Record>
    void AddRecord(const Record& record) {
        RecordFields<Record>::ForEach(
            [&](const char*, auto member, auto...) { Add(record.*member); });
    }

    std::uint64_t Value() const { return value_; }

 private:
    std::uint64_t value_;
};

}  // namespace

std::uint64_t HashOf(const Game& game, std::uint64_t earlier) {
    Hash hash(earlier);
    ForEachStateField(game, [&](const char*, const auto& field) { hash.Add(field); });
    hash.Add(game.generator.State());
    hash.Add(game.turnLog.advanceDirection);
    hash.Add(game.turnLog.rollLog);
    ForEachRecord([&](const RecordName&, const auto& record) { hash.AddRecord(record); }, game);
    return hash.Value();
}

}  // namespace varnstride
