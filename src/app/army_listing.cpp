#include "app/army_listing.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "app/locate_unit.h"
#include "app/unit_lines.h"
#include "model/unit_rules.h"
#include "model/units_on_map.h"
#include "resources/army_names.h"
#include "resources/dialog_ids.h"

namespace varnstride {
namespace {

constexpr int kList = 1285;

// Army Unit Listing -------------------------------------------------------------------------------

int HighestGroup(const Game& game) {
    int highest = 0;
    for (int index : UnitIndices(game)) {
        const Unit& unit = game.At({game.state.currentArmy, index});
        if (unit.strength > 0) highest = std::max(highest, unit.groupId);
    }
    return highest;
}

bool HasPlaceAndTime(const Unit& unit) {
    constexpr int kNoTurnOfBattle = 100;
    return unit.strength > 0 && unit.arrivalTurn < kNoTurnOfBattle && (unit.x > 0 || unit.y > 0);
}

UnitList ListByGroup(const Game& game) {
    UnitList list;
    for (int group = 0; group <= HighestGroup(game); ++group) {
        for (int index : UnitIndices(game)) {
            const UnitId id{game.state.currentArmy, index};
            const Unit& unit = game.At(id);
            if (unit.groupId != group || !HasPlaceAndTime(unit)) continue;
            list.Add("      " + std::to_string(unit.strength) + "          " + unit.name.data(),
                     id);
        }
        list.AddEmptyLine();
    }
    return list;
}

// Removed Units -----------------------------------------------------------------------------------

// Where a road leads off the field: cells strictly inside the bounds that stand.
struct ExitPlace {
    int map;
    int army;
    int areaId;
    std::optional<int> xAbove;
    std::optional<int> xBelow;
    std::optional<int> yAbove;
    std::optional<int> yBelow;
    std::string_view words;
};

constexpr std::nullopt_t kAny = std::nullopt;

// clang-format off
constexpr std::array<ExitPlace, 16> kExitPlaces = {{
    // map  army  area  x above, below  y above, below  where to
    {1, kFrench,  23,   17,   28,       -1,    9,       "To Brussels"},
    {1, kFrench,  24,   23,   37,       -1,    9,       "East of Brussels Road"},
    {1, kFrench,  25,   33,   41,       -1,   15,       "East of Brussels Road"},
    {1, kBritish, 27,   20,   36,       57,   70,       "To Cherleroi"},
    {2, kFrench,  22,   kAny, kAny,     kAny, 10,       "Road North of Hougoumont"},
    {2, kBritish, 24,   kAny, kAny,     32,   kAny,     "Road South of Mont Plaisir"},
    {3, kFrench,  24,   108,  119,      9,    23,       "Road North-East to Gembloux"},
    {3, kFrench,  21,   56,   74,       0,    11,       "Road North of Sombreffe"},
    {4, kFrench,  25,   kAny, kAny,     kAny, 17,       "To Fleurus"},
    {4, kFrench,  25,   kAny, kAny,     25,   42,       "East of Bois de TriCheheve"},
    {7, kFrench,  22,   7,    22,       0,    12,       "From Mont St Jean"},
    {7, kFrench,  24,   25,   36,       0,    12,       "From Mont St Jean"},
    {7, kFrench,  23,   45,   57,       0,    8,        "From Mont St Jean"},
    {7, kFrench,  22,   33,   44,       67,   81,       "From Rossomme"},
    {8, kFrench,  25,   10,   21,       0,    10,       "To Brussels"},
    {8, kFrench,  22,   0,    9,        10,   24,       "To Waterloo"},
}};
// clang-format on

bool IsInside(int value, std::optional<int> above, std::optional<int> below) {
    return (!above || value > *above) && (!below || value < *below);
}

std::string_view ExitPlaceOf(const Game& game, UnitId id) {
    const Cell cell = game.At(id).Place();
    if (!game.grid.Holds(cell)) return {};
    for (const ExitPlace& place : kExitPlaces) {
        if (place.map == game.header.mapNumber && place.army == id.army &&
            place.areaId == game.grid.Ground(cell).areaId &&
            IsInside(cell.x, place.xAbove, place.xBelow) &&
            IsInside(cell.y, place.yAbove, place.yBelow)) {
            return place.words;
        }
    }
    return {};
}

std::string RemovedLine(const Game& game, UnitId id) {
    const Unit& unit = game.At(id);
    std::string line = " " + PaddedName(unit);
    line += ExitPlaceOf(game, id);
    return line + std::string(15, ' ') +
           "VPs:  " + std::to_string(unit.strength * ValueOfUnit(unit) / 10);
}

std::vector<std::string> RemovedLines(const Game& game) {
    std::vector<std::string> lines;
    for (int army = 0; army < kArmyCount; ++army) {
        lines.emplace_back();
        const std::string_view name = ArmyName(army);
        if (game.Army(army).present != 0 && !name.empty()) {
            lines.push_back(std::string(name) + " Units:-");
        }
        for (int index : UnitIndices(game)) {
            const UnitId id{army, index};
            if (game.At(id).arrivalTurn == kLeftByExit) lines.push_back(RemovedLine(game, id));
        }
    }
    return lines;
}

}  // namespace

void ShowArmyUnitListing(Game& game) {
    const UnitId id =
        AskWhichUnit(game, {.templateId = kArmyUnitListing, .caption = "Army Unit Listing"}, kList,
                     ListByGroup(game));
    if (!id) return;
    TakeLocatedUnit(game, id);
    LightOwnArea(game);
    ShowUnitOnMap(game);
    ShowPanelsInOrders(game);
}

void ShowRemovedUnits(Game& game) {
    Dialog dialog{.templateId = kRemovedUnits, .caption = "Removed Units at Exit Areas"};
    dialog.AddList(kList, RemovedLines(game));
    dialog.AddButton(kOk, "OK");
    game.person->Ask(dialog);
}

}  // namespace varnstride
