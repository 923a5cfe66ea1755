#include "platform/headless/settable_fields.h"

#include <array>
#include <cmath>
#include <string_view>
#include <type_traits>

#include "model/record_fields.h"
#include "model/state_fields.h"

namespace varnstride {
namespace {

struct Bounds {
    std::string_view field;
    int least;
    int most;
};

// Fields by which tables are looked up or phases chosen; every other one holds an int16 at least.
constexpr std::array kBounds = {
    Bounds{"turnPhase", 0, 6},
    Bounds{"gameMode", 0, 2},
    Bounds{"currentArmy", 0, kLastPlayingArmy},
    Bounds{"turnCursor", 0, kLastPlayingArmy},
    Bounds{"endingArmy", 0, kLastPlayingArmy},
    Bounds{"endGameArmy", 0, kLastPlayingArmy},
    Bounds{"steadyNervesArmy", 0, kLastPlayingArmy},
    Bounds{"computerSide", 0, 2},
    Bounds{"computerPlays", 0, 2},
    Bounds{"unitLimit", 1, kUnitsPerArmy},
    Bounds{"currentUnit", 0, kUnitsPerArmy - 1},
    Bounds{"undoUnit", 0, kUnitsPerArmy - 1},
    Bounds{"undoFormation", 0, static_cast<int>(Formation::NoFormation)},
    Bounds{"selectedSlot", 0, kSlotsPerSide},
    Bounds{"rollCursor", 0, kRollLogSize - 1},
    Bounds{"mapReady", 0, 0},  // only a load makes a map ready
    Bounds{"mapView", 1, 2},
};

constexpr int kLeastInt16 = -32768;
constexpr int kMostInt16 = 32767;

Bounds BoundsOf(std::string_view field) {
    for (const Bounds& bounds : kBounds) {
        if (bounds.field == field) return bounds;
    }
    return {field, kLeastInt16, kMostInt16};
}

// The first field of that name, as visit(field); whether there is one.
template <typename Visit>
bool VisitNamed(Game& game, DriverSwitches& switches, const std::string& wanted, Visit visit) {
    bool found = false;
    const auto tryField = [&](std::string_view name, auto& field) {
        if (found || name != wanted) return;
        found = true;
        visit(field);
    };
    tryField("traceDice", switches.traceDice);
    tryField("riders", switches.riders);
    RecordFields<Settings>::ForEach(
        [&](const char* name, auto member, Width) { tryField(name, game.settings.*member); });
    ForEachStateField(game, tryField);
    return found;
}

template <typename Field>
constexpr bool kHoldsANumber = std::is_arithmetic_v<Field> || std::is_enum_v<Field>;

template <typename Field>
std::optional<std::string> WrongFor(const Field&, const std::string& name, double value) {
    if constexpr (!kHoldsANumber<Field>) {
        return name + " does not hold a single number";
    } else {
        if (!std::is_same_v<Field, double> && value != std::trunc(value)) {
            return name + " takes a whole number";
        }
        Bounds bounds = BoundsOf(name);
        if (std::is_same_v<Field, bool>) bounds = {name, 0, 1};
        if (value >= bounds.least && value <= bounds.most) return std::nullopt;
        return name + " takes " + std::to_string(bounds.least) + " to " +
               std::to_string(bounds.most);
    }
}

template <typename Field>
void Assign(Field& field, double value) {
    if constexpr (std::is_same_v<Field, double>) {
        field = value;
    } else if constexpr (kHoldsANumber<Field>) {
        field = static_cast<Field>(static_cast<int>(value));
    }
}

}  // namespace

std::optional<std::string> WrongSetting(const std::string& field, double value) {
    const AtlasCatalogue atlases;
    SilentPerson person;
    Game game(atlases, person);
    DriverSwitches switches;
    std::optional<std::string> wrong = "no setting and no field of the game is called " + field;
    VisitNamed(game, switches, field,
               [&](const auto& found) { wrong = WrongFor(found, field, value); });
    return wrong;
}

void SetField(Game& game, DriverSwitches& switches, const std::string& field, double value) {
    VisitNamed(game, switches, field, [&](auto& found) { Assign(found, value); });
}

}  // namespace varnstride
