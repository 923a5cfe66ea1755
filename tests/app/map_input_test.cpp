// What clicks on the map, panels and cards, and the number keys, take in hand and put in motion.
#include "app/map_input.h"

#include <gtest/gtest.h>

#include <functional>

#include "app/commands.h"
#include "app/info_bar.h"
#include "app/orders_field.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

const Unit kFoot = MakeUnit(UnitType::LineInfantry);
const Unit kHorse = MakeUnit(UnitType::HeavyCavalry);

Unit In(Formation formation, Unit unit) {
    unit.formation = formation;
    return unit;
}

TEST(LeftClick, TakesALoneUnitInHandAndWaitsWhereSeveralStand) {
    struct Case {
        int units;
        Formation formation;
        int slot;
        int unit;
        int moveCost;
        bool ownLit;
        bool neighbourLit;
        bool farLit;
    };
    constexpr Formation kLine = Formation::Line;
    const Case cases[] = {
        {0, kLine, 0, 0, 0, true, true, true},
        {1, kLine, 1, 1, 1, true, true, false},
        {1, Formation::Square, 1, 1, 0, true, false, false},
        {2, kLine, 0, 0, 0, true, false, false},
        {3, kLine, 0, 0, 0, true, false, false},
    };
    for (const Case& given : cases) {
        SCOPED_TRACE(given.units);
        OrdersField field;
        for (int slot = 1; slot <= given.units; ++slot)
            field.Add(kFrench, 1, slot, In(given.formation, kFoot));
        OnLeftClick(field.game, field.Ground(1));
        const GameState& state = field.game.state;
        EXPECT_EQ(state.selectedSlot, given.slot);
        EXPECT_EQ(state.currentUnit, given.unit);
        EXPECT_EQ(state.moveCost, given.moveCost);
        EXPECT_EQ(field.IsLit(1), given.ownLit);
        EXPECT_EQ(field.IsLit(2), given.neighbourLit);
        EXPECT_EQ(field.IsLit(4), given.farLit);
        EXPECT_EQ(field.game.grid.At(field.Ground(1)).selected, 1);
        EXPECT_EQ(field.game.turnLog.turnInProgress, 1);
        EXPECT_EQ(field.person.Heard(), Words{});
    }
}

TEST(LeftClick, LeavesEverythingElseAloneOutsideOrdersAndOnALockedTurn) {
    OrdersField field;
    field.Add(kFrench, 1, 1, kFoot);
    field.game.state.turnPhase = TurnPhase::StartTurn;
    field.game.state.turnLocked = 1;
    OnLeftClick(field.game, field.Ground(1));
    EXPECT_EQ(field.game.state.selectedSlot, 0);
    EXPECT_EQ(field.game.turnLog.turnInProgress, 0);
    EXPECT_EQ(field.game.grid.At(field.Ground(1)).selected, 1);
}

TEST(LeftClick, SoundsWithoutCommandPointsWhateverTheOptionSays) {
    OrdersField field;
    field.game.settings.noErrorAlert = 1;
    field.CommandPoints() = 0;
    OnLeftClick(field.game, field.Ground(1));
    EXPECT_EQ(field.person.Heard(), Words{"sound Ding"});
}

TEST(LeftClick, IsHeldInsideThePlayableGrid) {
    OrdersField field;
    OnLeftClick(field.game, {-5, 99});
    EXPECT_EQ(field.game.state.selectedCell, (Cell{1, 5}));
    OnLeftClick(field.game, {99, -1});
    EXPECT_EQ(field.game.state.selectedCell, (Cell{31, 0}));
    EXPECT_EQ(field.game.grid.At({1, 5}).selected, 0);
}

TEST(LeftClick, TakesAChargeOrderBack) {
    for (UnitActivity order : {UnitActivity::Charging, UnitActivity::BayonetCharge}) {
        OrdersField field;
        const UnitId unit = field.Add(kFrench, 1, 1, kHorse);
        field.Add(kFrench, 2, 1, kFoot);
        OnLeftClick(field.game, field.Ground(1));
        field.game.At(unit).activity = order;
        OnLeftClick(field.game, field.Ground(2));
        EXPECT_EQ(field.game.At(unit).activity, UnitActivity::None);
        EXPECT_EQ(field.game.state.currentUnit, 2);
        EXPECT_EQ(field.game.state.selectedSlot, 1);
    }
}

TEST(LeftClick, MarksFootThatStandsAloneBeforeTheEnemy) {
    struct Case {
        Unit unit;
        int units;
        bool enemy;
        bool marked;
    };
    const Case cases[] = {
        {kFoot, 1, true, true},
        {kFoot, 1, false, false},
        {kHorse, 1, true, false},
        {kFoot, 2, true, false},
    };
    for (const Case& given : cases) {
        OrdersField field;
        for (int slot = 1; slot <= given.units; ++slot)
            field.Add(kFrench, 1, slot, given.unit);
        if (given.enemy) field.Add(kPrussian, 1, 1, kFoot);
        OnLeftClick(field.game, field.Ground(1));
        EXPECT_EQ(field.game.state.leavingContact, given.marked);
        OnLeftClick(field.game, field.Ground(4));
        EXPECT_FALSE(field.game.state.leavingContact);
    }
}

TEST(LeftClick, EndsALocalBattleThatTheUnitCannotFight) {
    struct Case {
        UnitType type;
        int ammunition;
        int commandPoints;
        int mode;
        Words heard;
    };
    const Case cases[] = {
        {UnitType::LineInfantry, 8, 5, 1, {}},
        {UnitType::LineInfantry, 1, 5, 0, {"courier 286"}},
        {UnitType::HeavyCavalry, 0, 5, 1, {}},
        {UnitType::LineInfantry, 1, 0, 0, {"sound Ding", "sound Ding", "box End of Player Turn"}},
    };
    for (const Case& given : cases) {
        OrdersField field;
        Unit unit = MakeUnit(given.type);
        unit.ammunition = given.ammunition;
        field.TakeInHand(field.Add(kFrench, 1, 1, unit));
        field.CommandPoints() = given.commandPoints;
        field.game.options.localInitiativeOn = 1;
        field.game.state.localBattleMode = 1;
        OnLeftClick(field.game, field.Ground(4));
        EXPECT_EQ(field.game.state.localBattleMode, given.mode);
        EXPECT_EQ(field.game.state.currentUnit, 1) << "a mode keeps the unit in hand";
        EXPECT_EQ(field.person.Heard(), given.heard);
    }
}

TEST(PanelAndNumberKey, TakeTheUnitOfTheSlotInHandPanelsShownOrHidden) {
    constexpr Key kKeys[] = {Key::One, Key::Two, Key::Three};
    for (int hidden : {0, 1}) {
        for (int slot = 1; slot <= 3; ++slot) {
            for (bool byKey : {false, true}) {
                OrdersField field;
                field.game.settings.hideUnitPanels = hidden;
                for (int place = 1; place <= 3; ++place)
                    field.Add(kFrench, 1, place, kFoot);
                OnLeftClick(field.game, field.Ground(1));
                if (byKey) {
                    DispatchKey(field.game, kKeys[slot - 1]);
                } else {
                    OnPanelClick(field.game, slot);
                }
                EXPECT_EQ(field.game.state.selectedSlot, slot);
                EXPECT_EQ(field.game.state.currentUnit, slot);
                EXPECT_EQ(field.game.state.moveCost, 1);
                EXPECT_TRUE(field.IsLit(2));
                EXPECT_EQ(field.game.state.selectedCell, field.SlotCell(Side::French, 1, 3));
            }
        }
    }
}

TEST(PanelAndNumberKey, WaitWhileTheBattlesAreFought) {
    OrdersField field;
    field.Add(kFrench, 1, 1, kFoot);
    field.Add(kFrench, 1, 2, kFoot);
    OnLeftClick(field.game, field.Ground(1));
    field.game.state.battlePassRunning = 1;
    OnPanelClick(field.game, 2);
    EXPECT_EQ(field.game.state.selectedSlot, 2);
    EXPECT_EQ(field.game.state.currentUnit, 0);
}

TEST(Road, ServesTheUnitTakenInHandAndNoLonger) {
    struct Case {
        Unit unit;
        bool byRoad;
    };
    const Case cases[] = {
        {In(Formation::MarchColumn, kHorse), true},
        {In(Formation::Line, kHorse), false},
        {MakeUnit(UnitType::FieldArtillery), true},
        {In(Formation::Line, kFoot), true},  // on foot
    };
    for (const Case& given : cases) {
        OrdersField field;
        field.Add(kFrench, 1, 1, given.unit);
        field.Add(kFrench, 1, 2, given.unit);
        const std::function<void()> choices[] = {
            [&] { OnPanelClick(field.game, 1); },
            [&] { OnPanelClick(field.game, 2); },
            [&] { DispatchKey(field.game, Key::Two); },
        };
        for (const std::function<void()>& choose : choices) {
            OnLeftClick(field.game, field.Ground(1));
            EXPECT_FALSE(field.IsLit(3));
            choose();
            EXPECT_EQ(field.IsLit(3), given.byRoad);
            EXPECT_FALSE(field.game.state.roadMover);
        }
    }
}

TEST(RightClick, MovesTheUnitInHandAndEndsTheHighlight) {
    OrdersField field;
    const UnitId first = field.Add(kFrench, 1, 1, kFoot);
    const UnitId second = field.Add(kFrench, 1, 2, kFoot);
    OnLeftClick(field.game, field.Ground(1));
    OnPanelClick(field.game, 1);
    field.game.state.highlightRouted = 1;
    OnRightClick(field.game, field.Ground(2));
    EXPECT_EQ(field.game.At(first).Place(), field.SlotCell(Side::French, 2, 1));
    EXPECT_EQ(field.game.At(second).Place(), field.SlotCell(Side::French, 1, 1)) << "closes up";
    EXPECT_EQ(field.CommandPoints(), 4);
    EXPECT_EQ(field.game.At(first).actionPoints, 0);
    EXPECT_EQ(field.game.state.highlightRouted, 0);
    EXPECT_EQ(field.game.grid.At(field.SlotCell(Side::French, 1, 1)).highlight, 0);
}

TEST(RightClick, OnShadedGroundDoesNothing) {
    OrdersField field;
    const UnitId unit = field.Add(kFrench, 1, 1, kFoot);
    OnLeftClick(field.game, field.Ground(1));
    OnRightClick(field.game, field.Ground(4));
    EXPECT_EQ(field.game.At(unit).Place(), field.SlotCell(Side::French, 1, 1));
    EXPECT_EQ(field.CommandPoints(), 5);
    EXPECT_EQ(field.person.Heard(), Words{});
}

TEST(CardStrip, SellsOneCardATurn) {
    OrdersField field;
    OnCardStripPress(field.game, 2);
    EXPECT_EQ(field.game.options.cardInPlay, 2);
    EXPECT_EQ(field.game.options.cardEffect, 2);
    EXPECT_EQ(field.CommandPoints(), 4);
    EXPECT_EQ(field.person.Heard(), Words{"sound Tick"});

    OnCardStripPress(field.game, 3);
    EXPECT_EQ(field.game.options.cardInPlay, 2);
    EXPECT_EQ(field.CommandPoints(), 4);
    EXPECT_EQ(field.game.state.courierCode, 56) << "the picture of the card in play";
    EXPECT_EQ(field.game.state.cardShown, 0);
    EXPECT_EQ(field.person.Heard(), (Words{"sound Ding", "dialog 643"}));

    field.CommandPoints() = 0;
    OnCardStripPress(field.game, 1);
    EXPECT_EQ(field.person.Heard(), (Words{"sound Ding", "box End of Player Turn"}));
}

TEST(InfoBar, TellsTheGroundClickedAndTheHour) {
    for (int close : {2, 3}) {
        FieldPlan plan;
        plan.paint = [close](Cell cell, MapCell& map) {
            constexpr int kForest = 42;
            if (cell.y == 1 && cell.x < 2 * close) map.terrainTile = kForest;
        };
        Field field(plan);
        field.game.state.mapReady = 1;
        field.game.header.lastTurn = 9;
        field.game.state.clockHours = 9.6;
        EXPECT_EQ(DescribeInfoBar(field.game).terrain, "");
        field.Add(kFrench, 1, 1, kFoot);
        OnLeftClick(field.game, {5, 3});
        const InfoBar bar = DescribeInfoBar(field.game);
        EXPECT_EQ(bar.terrain,
                  close < 3 ? "Terrain :       Clear / Open" : "Terrain :       Clear / Close");
        EXPECT_EQ(bar.turn, "Game Turn : 5  of  9+ ");
        EXPECT_EQ(bar.time, "1000");
        EXPECT_EQ(field.game.state.selectedCell, field.SlotCell(Side::French, 1, 1));
    }
}

}  // namespace
}  // namespace varnstride
