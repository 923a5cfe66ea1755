// The comparison names what differs, and the hash sees the same.
#include "platform/headless/state_compare.h"

#include <gtest/gtest.h>

#include <functional>

#include "platform/headless/state_hash.h"
#include "support/field.h"

namespace varnstride {
namespace {

TEST(StateCompare, NamesEachFieldThatDiffers) {
    struct Case {
        std::function<void(Game&)> change;
        const char* difference;
    };
    const Case kCases[] = {
        {[](Game& game) { game.units[3][17].morale = 5; }, "army 3 unit 17 morale: 5, was 0"},
        {[](Game& game) { game.units[0][2].type = UnitType::Leader; },
         "army 0 unit 2 type: 7, was 0"},
        {[](Game& game) { game.units[0][2].name[0] = 'N'; }, "army 0 unit 2 name: \"N\", was \"\""},
        {[](Game& game) { game.armies[1].commandPoints = 9; }, "army 1 commandPoints: 9, was 0"},
        {[](Game& game) { game.state.turnPhase = TurnPhase::EndTurn; }, "game turnPhase: 3, was 5"},
        {[](Game& game) { game.state.clockHours = 9.3; }, "game clockHours: 9.3, was 0"},
        {[](Game& game) {
             game.state.targetCell = {4, 7};
         },
         "game targetCell: (4, 7), was (0, 0)"},
        {[](Game& game) { game.undo.undoUnit = 4; }, "game undoUnit: 4, was 0"},
        {[](Game& game) { game.census.ownGuns = 1; }, "game ownGuns: 1, was 0"},
        {[](Game& game) { game.header.fogExtreme = 1; }, "header fogExtreme: 1, was 0"},
        {[](Game& game) { game.options.smokeOn = 1; }, "options smokeOn: 1, was 0"},
        {[](Game& game) { game.generator.Seed(8); }, "generator: 8, was 1"},
        {[](Game& game) { game.turnLog.rollLog[9] = -2; }, "rollLog 9: -2, was 0"},
        {[](Game& game) {
             game.grid.At({4, 5}).occupant = 3;
         },
         "cell 4,5 occupant: 3, was 0"},
    };
    const Field field({});
    for (const Case& each : kCases) {
        Game changed = field.game;
        EXPECT_EQ(HashOf(changed), HashOf(field.game));
        each.change(changed);
        EXPECT_EQ(Differences(changed, field.game), std::vector<std::string>{each.difference});
        EXPECT_NE(HashOf(changed), HashOf(field.game)) << each.difference;
    }
}

}  // namespace
}  // namespace varnstride
