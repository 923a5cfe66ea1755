// Options and highlights: what excludes what, and that looking at the map changes no order.
#include <gtest/gtest.h>

#include "app/commands.h"
#include "app/map_input.h"
#include "app/orders_field.h"

namespace varnstride {
namespace {

struct Filter {
    int id;
    int GameState::*isOn;
    void (*qualify)(Unit&);  // makes a plain unit pass
};

const Filter kFilters[] = {
    {32805, &GameState::highlightFixed, [](Unit& unit) { unit.outOfCommand = 1; }},
    {32877, &GameState::highlightDisrupted, [](Unit& unit) { unit.disrupted = 1; }},
    {32879, &GameState::highlightRouted, [](Unit& unit) { unit.status = UnitStatus::Routed; }},
    {32991, &GameState::highlightElite, [](Unit& unit) { unit.quality = Quality::Veteran; }},
    {32834, &GameState::highlightLeaders,
     [](Unit& unit) {
         unit.type = UnitType::Leader;
         unit.quality = Quality::Elite;
     }},
    {32878, &GameState::highlightLowAmmo, [](Unit& unit) { unit.ammunition = 0; }},
    {32904, &GameState::highlightOutOfCommand, [](Unit& unit) { unit.inCommand = 0; }},
};

Unit PlainUnit() {
    Unit unit = MakeUnit(UnitType::LineInfantry);
    unit.ammunition = kFullAmmunition;
    unit.inCommand = 1;
    return unit;
}

int HighlightAt(const Field& field, UnitId id) {
    return field.game.grid.At(field.game.At(id).Place()).highlight;
}

TEST(MapFilter, MarksTheUnitsThatPassAndPutsOutTheOthers) {
    OrdersField field;
    field.Add(kFrench, 4, 1, PlainUnit());
    std::vector<UnitId> passing;
    for (std::size_t at = 0; at < std::size(kFilters); ++at) {
        const UnitId id = field.Add(kFrench, 1 + static_cast<int>(at) / 3,
                                    1 + static_cast<int>(at) % 3, PlainUnit());
        kFilters[at].qualify(field.game.At(id));
        passing.push_back(id);
    }
    for (std::size_t at = 0; at < std::size(kFilters); ++at) {
        DispatchCommand(field.game, kFilters[at].id);
        int on = 0;
        for (const Filter& filter : kFilters)
            on += field.game.state.*filter.isOn;
        EXPECT_EQ(field.game.state.*kFilters[at].isOn, 1);
        EXPECT_EQ(on, 1);
        for (std::size_t other = 0; other < passing.size(); ++other) {
            // The elite leader is of the best quality too.
            const bool passes = other == at || (at == 3 && other == 4);
            EXPECT_EQ(HighlightAt(field, passing[other]), passes ? 1 : 0) << at << " " << other;
        }
    }
    DispatchCommand(field.game, 32904);
    EXPECT_EQ(field.game.state.highlightOutOfCommand, 0);
    EXPECT_EQ(HighlightAt(field, passing.back()), 0);
}

TEST(MapFilter, TakesInTheOtherAlliesForFixedAndDisruptedUnits) {
    for (int id : {32805, 32879}) {
        OrdersField field;
        Unit unit = PlainUnit();
        unit.outOfCommand = 1;
        unit.status = UnitStatus::Routed;
        const UnitId own = field.Add(kBritish, 1, 1, unit);
        const UnitId ally = field.Add(kPrussian, 2, 1, unit);
        const UnitId enemy = field.Add(kFrench, 3, 1, unit);
        field.game.state.currentArmy = kBritish;
        DispatchCommand(field.game, id);
        EXPECT_EQ(HighlightAt(field, own), 1);
        EXPECT_EQ(HighlightAt(field, ally), id == 32805 ? 1 : 0);
        EXPECT_EQ(HighlightAt(field, enemy), 0);
    }
}

TEST(MapFilter, FindsUnitsBeyondCommandWithoutTouchingTheOrderInHand) {
    OrdersField field;
    field.game.Army(kFrench).commandControl = 1;
    const UnitId inHand = field.Add(kFrench, 1, 1, PlainUnit());
    const UnitId far = field.Add(kFrench, 4, 1, PlainUnit());
    Unit leader = MakeUnit(UnitType::Leader);
    field.Add(kFrench, 2, 1, leader);
    OnLeftClick(field.game, field.Ground(1));
    DispatchKey(field.game, Key::B);
    EXPECT_EQ(field.game.At(inHand).inCommand, 1) << "the leader is one area away";
    EXPECT_EQ(field.game.At(far).inCommand, 0);
    EXPECT_EQ(HighlightAt(field, far), 1);
    EXPECT_EQ(HighlightAt(field, inHand), 0);
    EXPECT_EQ(field.game.state.currentUnit, inHand.index);
    EXPECT_EQ(field.game.state.selectedSlot, 1);
    EXPECT_TRUE(field.IsLit(2));
    EXPECT_TRUE(field.IsLit(3));
    EXPECT_FALSE(field.IsLit(4));
}

TEST(CommandRange, LightsWhatALeaderReachesAtTwoPoints) {
    OrdersField field;
    Unit leader = MakeUnit(UnitType::Leader);
    leader.actionPoints = 0;
    field.TakeInHand(field.Add(kFrench, 1, 1, leader));
    DispatchKey(field.game, Key::D);
    EXPECT_TRUE(field.IsLit(2));
    EXPECT_FALSE(field.IsLit(4));
    EXPECT_EQ(field.game.InHand().actionPoints, 0);
    DispatchKey(field.game, Key::D);
    EXPECT_TRUE(field.IsLit(4));

    field.game.state.bombardmentMode = 1;
    DispatchKey(field.game, Key::D);
    EXPECT_EQ(field.person.Heard(), (Words{"sound Ding", "box Artillery Fire"}));
    EXPECT_EQ(field.game.state.commandRangeShown, 0);
}

TEST(AreasVisible, LightsWhatTheArmySeesAndKeepsTheSelection) {
    OrdersField field;
    field.game.header.fogNone = 0;
    field.game.header.fogNormal = 1;
    field.Add(kFrench, 1, 1, PlainUnit());
    OnLeftClick(field.game, field.Ground(4));
    const Cell selected = field.game.state.selectedCell;
    DispatchCommand(field.game, 32831);
    EXPECT_TRUE(field.IsLit(1));
    EXPECT_TRUE(field.IsLit(2));
    EXPECT_FALSE(field.IsLit(4));
    EXPECT_EQ(field.game.state.selectedCell, selected);
}

TEST(Sound, HasMusicOrAmbientNeverBoth) {
    constexpr int kMusic = 32861;
    constexpr int kAmbient = 32808;
    OrdersField field;
    field.game.header.visibility = 20;
    DispatchCommand(field.game, kAmbient);
    EXPECT_EQ(field.person.Heard(), Words{"loop 3_summer_Rev2"});
    DispatchCommand(field.game, kMusic);
    EXPECT_EQ(field.game.settings.backgroundMusic, 1);
    EXPECT_EQ(field.game.settings.backgroundSound, 0);
    EXPECT_EQ(field.person.Heard().size(), 1U);
    DispatchCommand(field.game, kMusic);
    EXPECT_EQ(field.game.settings.backgroundMusic, 0);
    EXPECT_EQ(field.game.settings.backgroundSound, 0);
    EXPECT_EQ(field.person.Heard(), Words{});
}

TEST(QuickResults, AskForTheirSpeedWhenTurnedOn) {
    OrdersField field;
    field.game.state.resultPause = 1600;
    field.person.answers = [](Dialog& dialog) {
        EXPECT_TRUE(dialog.IsTicked(1494));
        dialog.Choose(1492);
    };
    DispatchCommand(field.game, 32986);
    EXPECT_EQ(field.game.state.resultPause, 2500);
    EXPECT_EQ(field.game.settings.resultPauseSetting, 2500);
    DispatchCommand(field.game, 32986);
    EXPECT_EQ(field.person.Heard(), Words{"dialog 396"});
}

}  // namespace
}  // namespace varnstride
