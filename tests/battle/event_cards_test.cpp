// Which card an army draws, and what the cards do that act on the press of their picture.
#include "battle/event_cards.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "model/dice.h"
#include "support/field.h"
#include "support/recording_person.h"

namespace varnstride {
namespace {

constexpr int kCards = 10;

FieldPlan OnMap(int map) {
    FieldPlan plan;
    plan.mapNumber = map;
    return plan;
}

void LetNextDieShow(Game& game, int roll) {
    unsigned seed = 0;
    do {
        game.generator.Seed(++seed);
    } while (Die(game, kCards) != roll);
    game.generator.Seed(seed);
}

TEST(EventCardDraw, GoesByBattlefieldArmyAndDie) {
    enum Has { Nobody, Horse, Routed };
    struct Case {
        int map;
        int army;
        int gameTurn;
        Has has;
        std::array<int, kCards> cards;
    };
    const Case cases[] = {
        {1, kFrench, 5, Nobody, {100, 64, 2, 3, 4, 5, 6, 7, 65, 9}},
        {7, kFrench, 5, Routed, {100, 64, 2, 3, 4, 5, 6, 7, 8, 9}},
        {7, kBritish, 5, Nobody, {63, 62, 63, 13, 14, 15, 16, 17, 18, 19}},
        {1, kBritish, 5, Horse, {10, 62, 12, 13, 14, 15, 16, 17, 18, 19}},
        {2, kBritish, 5, Routed, {63, 11, 63, 13, 14, 15, 16, 17, 18, 19}},
        {2, kPrussian, 5, Nobody, {20, 21, 22, 23, 24, 25, 61, 27, 60, 29}},
        {7, kPrussian, 5, Nobody, {20, 21, 22, 23, 24, 25, 61, 27, 28, 29}},
        {1, kAustrian, 5, Nobody, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
        {5, kFrench, 5, Nobody, {100, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
        {6, kAustrian, 5, Nobody, {30, 31, 32, 33, 34, 35, 36, 37, 38, 39}},
        {3, kPrussian, 5, Nobody, {20, 21, 22, 23, 24, 25, 26, 27, 60, 29}},
        {8, kPrussian, 5, Nobody, {20, 21, 22, 23, 24, 25, 26, 27, 60, 61}},
        {8, kBritish, 5, Nobody, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
        {4, kFrench, 2, Nobody, {100, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
        {4, kFrench, 1, Nobody, {5, 5, 5, 5, 5, 5, 5, 5, 5, 5}},
    };
    for (const Case& given : cases) {
        SCOPED_TRACE(std::to_string(given.map) + " army " + std::to_string(given.army));
        Field field(OnMap(given.map));
        field.game.state.currentArmy = given.army;
        field.game.state.gameTurn = given.gameTurn;
        Unit horse = MakeUnit(UnitType::Lancers);
        const int foe = given.army == kFrench ? kBritish : kFrench;
        field.Add(foe, 1, 1, horse);
        if (given.has == Horse) field.Add(given.army, 2, 1, horse);
        horse.arrivalTurn = given.gameTurn + 1;
        field.AddAt(given.army, kNoCell, horse);
        Unit foot = MakeUnit(UnitType::LineInfantry);
        foot.status = given.has == Routed ? UnitStatus::Shaken : UnitStatus::Unsteady;
        field.Add(given.army, 2, 2, foot);
        for (int roll = 0; roll < kCards; ++roll) {
            LetNextDieShow(field.game, roll);
            DrawEventCard(field.game);
            EXPECT_EQ(field.game.state.eventCard, given.cards[static_cast<std::size_t>(roll)]);
        }
    }
}

TEST(EventCardDraw, ThrowsNoDieWhereTheArmyHasNoDeck) {
    for (const auto& [map, army] : {std::pair{5, kBritish}, {6, kPrussian}, {9, kFrench}}) {
        Field field(OnMap(map));
        field.game.state.currentArmy = army;
        const unsigned before = field.game.generator.State();
        DrawEventCard(field.game);
        EXPECT_EQ(field.game.state.eventCard, 0) << map;
        EXPECT_EQ(field.game.generator.State(), before) << map;
    }
}

// Four units on the map and four that have not come, or have left, under records 1 to 8.
struct PressField : Field {
    explicit PressField(int map = 5) : Field(OnMap(map)) {
        game.person = &person;
        Stand(1, MakeUnit(UnitType::GuardInfantry), Quality::Veteran);
        Stand(2, MakeUnit(UnitType::Lancers), Quality::Experienced);
        Stand(3, MakeUnit(UnitType::HorseArtillery), Quality::Experienced);
        Unit routed = MakeUnit(UnitType::LightDragoonsDismounted);
        routed.status = UnitStatus::Routed;
        Stand(4, routed, Quality::Conscript);
        for (int arrival : {6, kLeftByExit, 7, 8}) {
            Unit coming = MakeUnit(UnitType::LineInfantry);
            coming.quality = Quality::Elite;
            coming.arrivalTurn = arrival;
            AddAt(kFrench, kNoCell, coming);
        }
    }
    void Stand(int place, Unit unit, Quality quality) {
        unit.quality = quality;
        unit.canMove = 1;
        Add(kFrench, 1 + place / kSlotsPerSide, 1 + place % kSlotsPerSide, unit);
    }
    void Press(int card) {
        game.state.eventCard = card;
        int picture = -1;
        person.answers = [&](Dialog& dialog) { picture = dialog.At(1071).picture; };
        ShowEventCard(game);
        EXPECT_EQ(picture, card);
        EXPECT_EQ(game.state.eventCard, card);
        EXPECT_EQ(person.Heard(), std::vector<std::string>{"dialog 475"});
    }
    std::vector<int> All(int Unit::*number) const {
        std::vector<int> all;
        for (int index = 1; index <= 8; ++index)
            all.push_back(game.At({kFrench, index}).*number);
        return all;
    }

    RecordingPerson person;
};

TEST(EventCardPress, ChangesCommandPointsAndNeverBelowNone) {
    const std::array<int, 3> cases[] = {{2, 3, 4},  {6, 0, 1},  {26, 9, 10}, {18, 3, 1}, {18, 2, 0},
                                        {18, 1, 0}, {18, 0, 0}, {19, 2, 1},  {19, 0, 0}};
    for (const auto& [card, before, after] : cases) {
        PressField field;
        field.game.ArmyInPlay().commandPoints = before;
        field.Press(card);
        EXPECT_EQ(field.game.ArmyInPlay().commandPoints, after) << card;
    }
}

TEST(EventCardPress, HoldsAndHastensUnits) {
    using Numbers = std::vector<int>;
    struct Case {
        std::vector<int> cards;
        Numbers points;
        Numbers canMove;
        Numbers arrivals;
    };
    const Numbers points = {1, 1, 1, 1, 1, 1, 1, 1};
    const Numbers canMove = {1, 1, 1, 1, 0, 0, 0, 0};
    const Numbers arrivals = {0, 0, 0, 0, 6, kLeftByExit, 7, 8};
    const Case cases[] = {
        {{3, 23}, points, canMove, {0, 0, 0, 0, 6, kLeftByExit, 6, 8}},
        {{4}, {0, 1, 1, 1, 1, 1, 1, 1}, canMove, arrivals},
        {{16, 24}, {0, 0, 1, 1, 1, 1, 1, 1}, canMove, arrivals},
        {{37}, {0, 1, 1, 0, 1, 1, 1, 1}, {0, 1, 1, 0, 0, 0, 0, 0}, arrivals},
        {{5, 17, 100, 205, 0}, points, canMove, arrivals},  // nothing on the press
    };
    for (const Case& given : cases) {
        for (int card : given.cards) {
            SCOPED_TRACE(card);
            PressField field;
            field.Press(card);
            EXPECT_EQ(field.All(&Unit::actionPoints), given.points);
            EXPECT_EQ(field.All(&Unit::canMove), given.canMove);
            EXPECT_EQ(field.All(&Unit::arrivalTurn), given.arrivals);
        }
    }
}

TEST(EventCardPress, SetsEffectsThatEndWithTheTurn) {
    const auto effects = [](const Game& game) {
        const GameState& state = game.state;
        const OptionBlock& options = game.options;
        const int nerves = state.steadyNerves * 10 + state.steadyNervesArmy;
        const int tacticalCard = options.cardInPlay * 10 + options.cardEffect;
        return std::array<int, 7>{
            state.strikeDrawCard, options.weatherCardCode, nerves,      state.haltBeforeContact,
            state.alliesApart,    state.noCloseEntry,      tacticalCard};
    };
    struct Case {
        std::vector<int> cards;
        std::array<int, 7> effects;
    };
    const Case cases[] = {
        {{7, 38, 39}, {1, 1, 0, 0, 0, 0, 0}}, {{14, 27}, {0, 0, 13, 0, 0, 0, 0}},
        {{15, 22}, {0, 0, 0, 1, 0, 0, 0}},    {{28}, {0, 0, 0, 0, 1, 0, 0}},
        {{60}, {0, 0, 0, 0, 0, 1, 0}},        {{65}, {0, 0, 0, 0, 0, 0, 33}},
    };
    for (const Case& given : cases) {
        for (int card : given.cards) {
            PressField field;
            field.game.state.currentArmy = kPrussian;
            field.Press(card);
            EXPECT_EQ(effects(field.game), given.effects) << card;
            ClearCardEffects(field.game);
            const int armyOfNerves = given.effects[2] % 10;
            const std::array<int, 7> left = {0, 0, armyOfNerves, 0, 0, 0, given.effects[6]};
            EXPECT_EQ(effects(field.game), left) << card;
        }
    }
}

TEST(EventCardPress, RaisesNoMilitiaWithoutAPlaceForIt) {
    for (const auto& [card, map] : {std::pair{9, 5}, {33, 6}, {9, 4}}) {  // 4: not on this ground
        PressField field(map);
        const ArmyUnits before = field.game.units[kFrench];
        field.Press(card);
        EXPECT_EQ(field.game.units[kFrench], before);
    }
}

}  // namespace
}  // namespace varnstride
