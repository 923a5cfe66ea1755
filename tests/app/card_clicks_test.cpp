// Where an event card falls that waits for a unit or an area, what it does there, and when it goes
// on waiting.
#include "app/card_clicks.h"

#include <gtest/gtest.h>

#include "app/map_input.h"
#include "app/orders_field.h"

namespace varnstride {
namespace {

constexpr int kForest = 42;

struct CardField : OrdersField {
    explicit CardField(int card, const FieldPlan& plan = OrdersPlan()) : OrdersField(plan) {
        game.options.eventCardsOn = 1;
        game.state.eventCard = card;
    }
    const Unit& At(int index) const { return game.At({kFrench, index}); }
};

using Change = void (*)(Unit&);

void Nothing(Unit&) {
}
void Roused(Unit& unit) {
    ++unit.actionPoints;
    unit.outOfCommand = 0;
}
void Stronger(Unit& unit) {
    ++unit.strength;
    ++unit.initialStrength;
}
template <Formation formation>
void In(Unit& unit) {
    unit.formation = formation;
}
void NoAmmunition(Unit& unit) {
    unit.ammunition = 0;
}
void Idle(Unit& unit) {
    unit.actionPoints = 0;
}
template <int strength>
void Strength(Unit& unit) {
    unit.strength = strength;
}
template <UnitStatus status, int morale = 3>
void Status(Unit& unit) {
    unit.status = status;
    unit.morale = morale;
}

struct Case {
    int card;
    UnitType type;
    Change before;
    Change effect;
    bool waits = false;
    Words heard = {};
};

Words Courier(int code) {
    return {"courier " + std::to_string(code)};
}
Words Refusal(int code) {
    return {"sound Ding", "courier " + std::to_string(code)};
}

std::vector<Case> PointsAndStrength() {
    using enum UnitType;
    return {
        {5, LineInfantry, Nothing, Roused},
        {63, Leader, Nothing, Roused},
        {1, HeavyCavalry, Nothing, Roused},
        {10, LightDragoonsDismounted, Nothing, Roused},
        {12, CossackCavalry, Nothing, Roused},
        {35, DragoonsDismounted, Nothing, Roused},
        {35, GuardCavalry, Nothing, Nothing, true, Refusal(234)},
        {1, GuardInfantry, Nothing, Nothing, true, Refusal(234)},
        {12, Leader, Nothing, Nothing},
        {36, FieldArtillery, Nothing, [](Unit& unit) { ++unit.actionPoints; }},
        {36, HorseArtillery, Nothing, Nothing, true, Refusal(235)},
        {61, LineInfantry, Nothing, Idle},
        {62, Leader, Idle, Nothing, true},
        {64, FieldArtillery, Nothing, Idle},
        {13, LineInfantry, Nothing, Stronger},
        {20, LightInfantry, Strength<4>, Stronger},
        {29, GuardCavalry, Nothing, Stronger},
        {30, GuardInfantry, Nothing, Stronger},
        {13, LineInfantry, Strength<9>, Nothing, true, Refusal(292)},
        {30, LightInfantry, Strength<5>, Nothing, true, Refusal(292)},
        {20, Leader, Nothing, Nothing, true, Refusal(236)},
        {29, MortarArtillery, Nothing, Nothing, true, Refusal(236)},
        {30, LightDragoonsDismounted, Nothing, Nothing, true, Refusal(277)},
    };
}

std::vector<Case> MoraleFormationAndSupply() {
    using enum UnitType;
    using enum UnitStatus;
    return {
        {8, Lancers, Status<Routed>, Status<Shaken, 12>},
        {11, LineInfantry, Status<Shaken>, Status<Unsteady, 17>},
        {25, LineInfantry, Status<Unsteady>, Nothing, false, Courier(237)},
        {31, GuardInfantry, Nothing, In<Formation::Square>},
        {31, Engineers, Nothing, Nothing, true, Refusal(254)},
        {32, LightInfantry, Nothing, In<Formation::OpenOrder>},
        {32, LineInfantry, Nothing, Nothing, true, Refusal(233)},
        {34, DragoonsDismounted, Nothing, NoAmmunition},
        {34, HorseArtillery, Nothing, NoAmmunition},
        {34, Leader, Nothing, Nothing, true, Refusal(232)},
        {34, MortarArtillery, Nothing, Nothing, true, Refusal(232)},
        {34, RocketArtillery, Nothing, Nothing},
        {5, SupplyWagon, Nothing, Nothing},
        {2, LineInfantry, Nothing, Nothing},  // acted on the press
    };
}

// A unit that every card could change.
Unit Ready(const Case& given) {
    Unit unit = MakeUnit(given.type);
    unit.outOfCommand = 1;
    unit.ammunition = 5;
    unit.maxMorale = 27;
    given.before(unit);
    return unit;
}

void Try(const Case& given, const std::function<void(CardField&)>& click) {
    SCOPED_TRACE(std::to_string(given.card) + " on " +
                 std::to_string(static_cast<int>(given.type)));
    CardField field(given.card);
    const UnitId id = field.Add(kFrench, 1, 1, Ready(given));
    Unit expected = field.game.At(id);
    given.effect(expected);
    click(field);
    EXPECT_EQ(field.game.At(id), expected);
    EXPECT_EQ(field.game.state.eventCard, given.waits ? given.card : 0);
    EXPECT_EQ(field.person.Heard(), given.heard);
    EXPECT_EQ(field.game.state.currentUnit, id.index);
}

TEST(CardOnUnit, DoesTheSameByMapAndByPanel) {
    for (const auto& cases : {PointsAndStrength(), MoraleFormationAndSupply()}) {
        for (const Case& given : cases) {
            Try(given, [](CardField& field) { OnLeftClick(field.game, field.Ground(1)); });
            Try(given, [](CardField& field) {
                field.game.state.selectedCell = field.Ground(1);
                OnPanelClick(field.game, 1);
            });
        }
    }
}

TEST(CardOnUnit, FindsNoRoomForASquareAmongThreeSlotsOfWood) {
    for (int dense : {2, 3}) {
        FieldPlan plan = OrdersPlan();
        plan.paint = [dense](Cell cell, MapCell& map) {
            if (cell.y == 1 && cell.x < 2 * dense) map.terrainTile = kForest;
        };
        CardField field(31, plan);
        field.Add(kFrench, 1, 1, MakeUnit(UnitType::LineInfantry));
        OnLeftClick(field.game, field.Ground(1));
        EXPECT_EQ(field.At(1).formation == Formation::Square, dense < 3);
        EXPECT_EQ(field.person.Heard(), dense < 3 ? Words{} : Courier(13));
        EXPECT_EQ(field.game.state.eventCard, 0);
    }
}

TEST(CardOnUnit, WaitsWhereSeveralStandUntilAPanelIsClicked) {
    CardField field(5);
    for (int slot : {1, 2, 3})
        field.Add(kFrench, 1, slot, MakeUnit(UnitType::LineInfantry));
    OnLeftClick(field.game, field.Ground(4));
    OnLeftClick(field.game, field.Ground(1));
    EXPECT_EQ(field.game.state.eventCard, 5);
    OnPanelClick(field.game, 2);
    EXPECT_EQ(field.game.state.eventCard, 0);
    EXPECT_EQ(field.At(1).actionPoints + field.At(3).actionPoints, 2);
    EXPECT_EQ(field.At(2).actionPoints, 2);
    EXPECT_EQ(field.game.state.currentUnit, 2);
}

TEST(CardOnUnit, IsLostOnAnEmptySlotAndOnAnAlly) {
    CardField field(5);
    field.Add(kFrench, 1, 1, MakeUnit(UnitType::LineInfantry));
    field.game.state.selectedCell = field.Ground(1);
    OnPanelClick(field.game, 2);
    EXPECT_EQ(field.game.state.eventCard, 0);

    field.Add(kBritish, 2, 1, MakeUnit(UnitType::LineInfantry));
    field.game.state.currentArmy = kPrussian;
    field.game.state.eventCard = 20;
    OnLeftClick(field.game, field.Ground(2));
    EXPECT_EQ(field.game.state.eventCard, 0);
    EXPECT_EQ(field.game.At({kBritish, 1}).strength, 6);
}

TEST(CardOnUnit, NeedsTheOptionAndAnOpenTurnAndIsNoWeather) {
    struct Given {
        int on;
        int locked;
        int card;
    };
    for (const Given& given : {Given{0, 0, 5}, {1, 1, 5}, {1, 0, 205}, {1, 0, 0}}) {
        CardField field(given.card);
        field.game.options.eventCardsOn = given.on;
        field.game.state.turnLocked = given.locked;
        field.Add(kFrench, 1, 1, MakeUnit(UnitType::LineInfantry));
        OnLeftClick(field.game, field.Ground(1));
        OnPanelClick(field.game, 1);
        EXPECT_EQ(field.game.state.eventCard, given.card);
        EXPECT_EQ(field.At(1).actionPoints, 1);
    }
}

TEST(CardOnArea, RousesEveryUnitButWagons) {
    for (int card : {17, 100}) {
        for (bool byPanel : {false, true}) {
            CardField field(card);
            Unit unit = MakeUnit(UnitType::Leader);
            unit.outOfCommand = 1;
            int slot = 0;
            for (UnitType type :
                 {UnitType::Leader, UnitType::FieldArtillery, UnitType::SupplyWagon}) {
                unit.type = type;
                field.Add(kFrench, 1, ++slot, unit);
            }
            field.TakeInHand(field.Add(kFrench, 2, 1, unit));
            field.game.state.localBattleMode = 1;  // keeps the unit in hand
            OnLeftClick(field.game, field.Ground(4));
            EXPECT_EQ(field.game.state.eventCard, card) << "nobody there";
            field.game.state.selectedCell = field.Ground(1);
            if (byPanel) {
                OnPanelClick(field.game, 1);
                EXPECT_EQ(field.game.state.currentUnit, 1) << "the unit of the panel";
            } else {
                OnLeftClick(field.game, field.Ground(1));
                EXPECT_EQ(field.game.state.currentUnit, 4) << "the unit that waits to attack";
            }
            for (int index : {1, 2, 3}) {
                EXPECT_EQ(field.At(index).actionPoints, index < 3 ? 2 : 1);
                EXPECT_EQ(field.At(index).outOfCommand, index < 3 ? 0 : 1);
            }
            EXPECT_EQ(field.game.state.eventCard, 0);
        }
    }
}

TEST(AlliesApart, KeepsPrussiansOutOfAnAreaOfTheBritishAtMontStJean) {
    for (const auto& [map, apart] : {std::pair{7, true}, {7, false}, {4, true}}) {
        FieldPlan plan = OrdersPlan();
        plan.mapNumber = map;
        OrdersField field(plan);
        const UnitId prussians = field.Add(kPrussian, 1, 1, MakeUnit(UnitType::LineInfantry));
        field.Add(kBritish, 2, 1, MakeUnit(UnitType::LineInfantry));
        field.game.state.currentArmy = kPrussian;
        field.game.state.alliesApart = apart;
        field.CommandPoints() = 5;
        OnLeftClick(field.game, field.Ground(1));
        OnRightClick(field.game, field.Ground(2));
        const bool kept = map == 7 && apart;
        EXPECT_EQ(field.game.At(prussians).Place(),
                  field.SlotCell(Side::Allied, kept ? 1 : 2, kept ? 1 : 2));
    }
}

}  // namespace
}  // namespace varnstride
