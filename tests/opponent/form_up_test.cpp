// How each arm forms before each enemy in each posture.
#include "opponent/form_up.h"

#include <gtest/gtest.h>

#include <vector>

#include "opponent/opponent_field.h"

namespace varnstride {
namespace {

using enum OpponentPosture;
using enum Formation;
constexpr UnitType kLight = UnitType::LightInfantry;
constexpr UnitType kLine = UnitType::LineInfantry;
constexpr UnitType kGuard = UnitType::GuardInfantry;
constexpr UnitType kHussars = UnitType::LightCavalry;
constexpr UnitType kLancers = UnitType::Lancers;
constexpr UnitType kGuns = UnitType::FieldArtillery;

struct FormCase {
    int army;
    UnitType type;
    OpponentPosture posture;
    std::vector<UnitType> enemies;
    Formation before;
    Formation after;
    int changes;  // that the army pays for
    int strength = 6;
    int closeSlots = 0;
};

const FormCase kForms[] = {
    {kFrench, kLight, Assault, {kLine}, OpenOrder, Line, 1},
    {kFrench, kLight, Assault, {kLine}, OpenOrder, OpenOrder, 0, 1},
    {kFrench, kLight, Cautious, {kLine}, Line, OpenOrder, 1},
    {kFrench, kLight, Contest, {kHussars}, Line, OpenOrder, 1},
    {kFrench, kLight, StandFast, {kLine}, Line, Line, 0},
    {kFrench, kLine, Assault, {kLine}, Line, AttackColumn, 1},
    {kFrench, kLine, Assault, {kLine, kHussars}, Line, Line, 0},
    {kFrench, kGuard, Cautious, {kHussars}, Line, Square, 1},
    {kFrench, kGuard, Cautious, {kHussars}, Line, Square, 1, 6, 1},
    {kFrench, kGuard, Cautious, {kHussars}, Line, Line, 0, 6, 2},
    {kFrench, kLine, Cautious, {kLine}, AttackColumn, Line, 1},
    {kFrench, kLine, Contest, {kLine}, Line, MixedOrder, 1, 3},
    {kFrench, kLine, Contest, {kLine}, MixedOrder, Line, 1, 2},
    {kPrussian, kLine, Contest, {kLine}, AttackColumn, Line, 1},
    {kFrench, kLine, Contest, {kLine, kHussars}, Line, Square, 1},
    {kFrench, kLine, Contest, {kGuns}, AttackColumn, Line, 1},
    {kFrench, kLine, Contest, {kLine, kGuns}, AttackColumn, Line, 2},  // by way of Mixed Order
    {kFrench, kHussars, Assault, {kLine}, Line, AttackColumn, 1},
    {kFrench, kHussars, Cautious, {kLine}, Line, OpenOrder, 1},
    {kFrench, kHussars, Contest, {kLine}, AttackColumn, Line, 1},
    {kFrench, kLancers, Assault, {kLine}, Line, AttackColumn, 1},
    {kFrench, kLancers, Cautious, {kLine}, AttackColumn, Line, 1},
    {kFrench, kLancers, Contest, {kLine}, Line, AttackColumn, 1},
    {kFrench, kLancers, Contest, {kLine}, Line, Line, 0, 6, 3},
    {kFrench, kGuns, Assault, {kLine}, OpenOrder, OpenOrder, 0},
    {kFrench, kHussars, Contest, {}, AttackColumn, AttackColumn, 0},
    // Ranks fall in first, which no army pays for; on close ground they do not.
    {kFrench, kLine, Contest, {kLine}, MarchColumn, MixedOrder, 1},
    {kFrench, kLine, StandFast, {kLine}, MarchColumn, Line, 0},
    {kFrench, kLine, Contest, {}, NoFormation, Line, 0},
    {kFrench, kLine, Contest, {kLine}, NoFormation, NoFormation, 0, 6, 3},
};

constexpr int kMiddle = 2;
constexpr int kEast = 3;
constexpr int kDenseTile = 24;  // a village

FieldPlan PlanWith(int closeSlots) {
    FieldPlan plan = OpponentPlan();
    plan.paint = [closeSlots](Cell cell, MapCell& ground) {
        const int slot = (cell.x - kFieldAreaWidth - 1) / 2;  // of either side, in the middle area
        const bool isSlot = (cell.y == 1 || cell.y == 4) && cell.x % 2 == 1 && slot >= 0;
        if (isSlot && cell.y == 1 && slot < closeSlots) ground.terrainTile = kDenseTile;
    };
    return plan;
}

void ExpectForm(const FormCase& given, int enemyArea) {
    OpponentField field(PlanWith(given.closeSlots));
    Game& game = field.game;
    Unit unit = MakeUnit(given.type);
    unit.formation = given.before;
    unit.strength = given.strength;
    unit.actionPoints = 2;
    const UnitId id = field.Add(given.army, kMiddle, 1, unit);
    int slot = 0;
    for (UnitType type : given.enemies)
        field.Add(given.army == kFrench ? kPrussian : kFrench, enemyArea, ++slot, MakeUnit(type));
    field.Take(given.posture);
    field.TakeInHand(id);
    SelectOwnArea(game);
    FormUp(game);
    EXPECT_EQ(game.At(id).formation, given.after);
    EXPECT_EQ(game.ArmyInPlay().commandPoints, OpponentField::kPoints - given.changes);
}

TEST(FormUp, AnswersTheEnemyOfItsAreaOrTheNext) {
    for (const FormCase& given : kForms) {
        SCOPED_TRACE("case " + std::to_string(&given - kForms));
        ExpectForm(given, kMiddle);
        if (given.before != MarchColumn) ExpectForm(given, kEast);
    }
}

// With two armies next door the lower is looked at, with two units of one the later record.
TEST(FormUp, LooksIntoOneOfTheNextAreas) {
    constexpr int kWest = 1;
    for (const bool british : {false, true}) {
        OpponentField field;
        const UnitId id = field.Add(kFrench, kMiddle, 1, MakeUnit(kLine));
        field.Add(kPrussian, kWest, 1, MakeUnit(kLine));
        field.Add(kPrussian, kEast, 1, MakeUnit(kHussars));
        if (british) field.Add(kBritish, kWest, 2, MakeUnit(kLine));
        field.TakeInHand(id);
        SelectOwnArea(field.game);
        FormUp(field.game);
        EXPECT_EQ(field.game.At(id).formation, british ? MixedOrder : Square);
    }
}

}  // namespace
}  // namespace varnstride
