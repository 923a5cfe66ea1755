// Every field of the whole-game state stands in the table of names. The compiler counts them.
#include "model/state_fields.h"

namespace varnstride {
namespace {

struct AnyValue {
    template <typename Value>
    constexpr operator Value() const {  // NOLINT: it stands for a value of any type
        return Value{};
    }
};

template <typename Record, typename... Values>
consteval std::size_t CountFields() {
    if constexpr (requires { Record{Values{}..., AnyValue{}}; }) {
        return CountFields<Record, Values..., AnyValue>();
    } else {
        return sizeof...(Values);
    }
}

template <typename Record>
consteval std::size_t CountNames() {
    std::size_t count = 0;
    StateFields<Record>::ForEach([&count](const char*, auto) { ++count; });
    return count;
}

static_assert(CountNames<GameState>() == CountFields<GameState>());
static_assert(CountNames<UndoRecord>() == CountFields<UndoRecord>());
static_assert(CountNames<Census>() == CountFields<Census>());

}  // namespace
}  // namespace varnstride
