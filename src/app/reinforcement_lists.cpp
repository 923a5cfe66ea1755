#include "app/reinforcement_lists.h"

#include <array>
#include <string_view>

#include "app/locate_unit.h"
#include "app/unit_lines.h"
#include "model/units_on_map.h"
#include "resources/dialog_ids.h"

namespace varnstride {
namespace {

struct EntryPlace {
    int map;
    int army;
    bool (*comesHere)(const Unit&);
    std::string_view words;
};

bool IsAnyUnit(const Unit&) {
    return true;
}
bool IsLight(const Unit& unit) {
    return unit.type == UnitType::LightInfantry;
}
bool IsLine(const Unit& unit) {
    return unit.type == UnitType::LineInfantry;
}
bool IsHorseOrGuns(const Unit& unit) {
    return unit.type > UnitType::Leader;
}
bool ComesByBrussels(const Unit& unit) {
    if (!IsLine(unit)) return IsFoot(unit.type) || IsFieldGun(unit.type);
    return unit.quality == Quality::Veteran || unit.quality == Quality::Experienced;
}
bool ComesByNivelles(const Unit& unit) {
    if (!IsLine(unit)) return unit.type == UnitType::LightCavalry;
    return unit.quality == Quality::Elite || unit.quality == Quality::Militia;
}
bool ComesAfterTurnThree(const Unit& unit) {
    return unit.arrivalTurn > 3;
}

// clang-format off
constexpr std::array<EntryPlace, 11> kEntryPlaces = {{
    // map  army      who                  from where
    {1,     kFrench,   IsLight,             "West of Frasnes"},
    {1,     kFrench,   IsLine,              "East of Frasnes"},
    {1,     kFrench,   IsHorseOrGuns,       "On the road from Charleroi"},
    {1,     kBritish,  ComesByBrussels,     "On Brussels Road"},
    {1,     kBritish,  ComesByNivelles,     "From Nivelles"},
    {2,     kFrench,   IsAnyUnit,           "From Mont Plaisir"},
    {2,     kBritish,  IsAnyUnit,           "Arriving on main road"},
    {7,     kFrench,   IsAnyUnit,           "Arriving at Rossomme"},
    {7,     kBritish,  IsAnyUnit,           "North of Merbe"},
    {7,     kPrussian, IsAnyUnit,           "South of Frichermont"},
    {8,     kFrench,   ComesAfterTurnThree, "From Bois de Manil"},
}};
// clang-format on

std::string_view EntryPlaceOf(const Game& game, UnitId id) {
    for (const EntryPlace& place : kEntryPlaces) {
        if (place.map == game.header.mapNumber && place.army == id.army &&
            place.comesHere(game.At(id))) {
            return place.words;
        }
    }
    return {};
}

std::string ArrivalLine(const Game& game, UnitId id) {
    const Unit& unit = game.At(id);
    std::string line = " " + PaddedName(unit);
    line += EntryPlaceOf(game, id);
    line += ",    ,    GT:  " + std::to_string(unit.arrivalTurn);
    return line + ",    ,    " + std::to_string(unit.arrivalChance) + "%";
}

// The units of the army in play whose number of a turn lies ahead, the nearest turn first.
template <typename TurnOf, typename LineOf>
UnitList ListByTurn(const Game& game, TurnOf turnOf, LineOf lineOf) {
    UnitList list;
    for (int turn = game.state.gameTurn + 1; turn < game.header.lastTurn; ++turn) {
        for (int index : UnitIndices(game)) {
            const UnitId id{game.state.currentArmy, index};
            if (turnOf(game.At(id)) == turn) list.Add(lineOf(id), id);
        }
    }
    return list;
}

UnitList ListComing(const Game& game) {
    constexpr int kNever = 0;
    return ListByTurn(
        game, [](const Unit& unit) { return unit.strength > 0 ? unit.arrivalTurn : kNever; },
        [&](UnitId id) { return ArrivalLine(game, id); });
}

UnitList ListHeld(const Game& game) {
    return ListByTurn(
        game, [](const Unit& unit) { return unit.fixedUntilTurn; },
        [&](UnitId id) {
            const Unit& unit = game.At(id);
            return " GT:  " + std::to_string(unit.fixedUntilTurn) + "     " + unit.name.data();
        });
}

UnitList ListArrived(const Game& game) {
    UnitList list;
    for (int index : UnitIndices(game)) {
        const UnitId id{game.state.currentArmy, index};
        const Unit& unit = game.At(id);
        if (unit.arrivalTurn != game.state.gameTurn) continue;
        list.Add(" " + std::string(unit.name.data()) + "  [ " + std::to_string(unit.x) + ", " +
                     std::to_string(unit.y) + " ]  ",
                 id);
    }
    return list;
}

}  // namespace

void ShowReinforcementSchedule(Game& game) {
    constexpr int kList = 1294;
    const UnitId id = AskWhichUnit(
        game, {.templateId = kReinforcementSchedule, .caption = "Reinforcement Schedule"}, kList,
        ListComing(game));
    if (!id) return;
    TakeLocatedUnit(game, id);
    LightOwnArea(game);
    ShowUnitOnMap(game);
}

void ShowArrivedUnits(Game& game) {
    constexpr int kList = 1292;
    const UnitId id = AskWhichUnit(game, {.templateId = kArrived, .caption = "Arrived Dialog"},
                                   kList, ListArrived(game));
    if (!id) return;
    TakeLocatedUnit(game, id);
    ShowUnitOnMap(game);
    ShowPanelsInOrders(game);
}

void ShowReleaseSchedule(Game& game) {
    constexpr int kList = 1293;
    const UnitId id =
        AskWhichUnit(game, {.templateId = kReleaseSchedule, .caption = "Unit Release Schedule"},
                     kList, ListHeld(game));
    if (!id) return;
    TakeLocatedUnit(game, id);
    LightOwnArea(game);
    ShowUnitOnMap(game);
    const Cell place = game.InHand().Place();
    if (game.grid.Holds(place)) game.grid.At(place).highlight = 1;
    ShowPanelsInOrders(game);
}

}  // namespace varnstride
