// Guns laid on an area: whatever ends the aiming but the shot gives the gun its own points back.
#include "app/artillery_orders.h"

#include <gtest/gtest.h>

#include "app/commands.h"
#include "app/map_input.h"
#include "app/orders_field.h"

namespace varnstride {
namespace {

constexpr int kAimGunInHand = 33020;
constexpr int kGunList = 32784;

// A horse battery of 2 Action Points that throws one area, alone in area 1.
struct BatteryField : OrdersField {
    BatteryField() {
        Unit horseGuns = MakeUnit(UnitType::HorseArtillery);
        horseGuns.weapon = Weapon::SixPounder;
        horseGuns.actionPoints = 2;
        horseGuns.ammunition = 8;
        gun = Add(kFrench, 1, 1, horseGuns);
        OnLeftClick(game, Ground(1));
    }

    UnitId gun;
    Unit& Gun() { return game.At(gun); }
};

TEST(Aim, GivesTheGunsPointsBackWhicheverWayItEnds) {
    struct Case {
        const char* what;
        std::function<void(Game&)> end;
        int actionPoints = 2;
    };
    const Case cases[] = {
        {"Cancel Artillery Barrage", [](Game& game) { DispatchCommand(game, 33011); }},
        {"Cancel Action", [](Game& game) { DispatchCommand(game, 33008); }},
        {"event card given up",
         [](Game& game) {
             game.state.eventCard = 1;
             DispatchCommand(game, 33006);
         }},
        {"list of guns put away", [](Game& game) { DispatchCommand(game, kGunList); }},
        {"number key", [](Game& game) { DispatchKey(game, Key::One); }},
        {"panel", [](Game& game) { OnPanelClick(game, 1); }},
        {"Double Time", [](Game& game) { DispatchCommand(game, 32778); }},
        {"Hold", [](Game& game) { DispatchCommand(game, 33001); }, 0},
        {"save", [](Game& game) { DispatchCommand(game, 32857); }},
    };
    for (const Case& given : cases) {
        SCOPED_TRACE(given.what);
        BatteryField field;
        field.person.answers = [](Dialog& dialog) { dialog.closedBy = kCancel; };
        DispatchKey(field.game, Key::One);
        DispatchCommand(field.game, kAimGunInHand);
        ASSERT_EQ(field.game.state.bombardmentMode, 1);
        ASSERT_EQ(field.Gun().actionPoints, 1) << "its reach";
        given.end(field.game);
        EXPECT_EQ(field.game.state.bombardmentMode, 0);
        EXPECT_EQ(field.Gun().actionPoints, given.actionPoints);
    }
}

TEST(Aim, StandsWhileThePlayerLooksAround) {
    BatteryField field;
    DispatchKey(field.game, Key::One);
    DispatchCommand(field.game, kAimGunInHand);
    EXPECT_TRUE(field.IsLit(2));
    EXPECT_TRUE(field.IsLit(3)) << "shells need no road";
    EXPECT_FALSE(field.IsLit(1));
    field.person.Heard();
    OnRightClick(field.game, field.Ground(2));
    OnLeftClick(field.game, field.Ground(4));
    OnLeftClick(field.game, field.Ground(2));
    EXPECT_EQ(field.person.Heard(), (Words{"box    Info. Box", "courier 38"}));
    EXPECT_EQ(field.game.state.bombardmentMode, 1);
    EXPECT_EQ(field.Gun().actionPoints, 1);
}

TEST(Shot, CostsTheGunItsPointsAndPutsTheUnitOfBeforeInHand) {
    BatteryField field;
    const UnitId foot = field.Add(kFrench, 2, 1, MakeUnit(UnitType::LineInfantry));
    field.Add(kPrussian, 3, 1, MakeUnit(UnitType::LineInfantry));
    field.game.header.visibility = 20;
    OnLeftClick(field.game, field.Ground(2));
    field.person.answers = [](Dialog& dialog) {
        dialog.At(1285).value = 0;
        dialog.closedBy = 1367;
    };
    DispatchCommand(field.game, kGunList);
    EXPECT_EQ(field.game.state.currentUnit, field.gun.index);
    field.person.answers = nullptr;
    OnLeftClick(field.game, field.Ground(3));
    EXPECT_EQ(field.game.state.bombardmentMode, 0);
    EXPECT_EQ(field.Gun().actionPoints, 0);
    EXPECT_EQ(field.Gun().ammunition, 6);
    EXPECT_EQ(field.CommandPoints(), 4);
    EXPECT_EQ(field.game.state.currentUnit, foot.index);
    EXPECT_EQ(field.game.state.selectedCell, field.game.At(foot).Place());
    EXPECT_TRUE(field.IsLit(4)) << "nothing is shaded";
}

}  // namespace
}  // namespace varnstride
