#include "app/objectives_dialog.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "model/areas.h"
#include "model/units_on_map.h"
#include "resources/army_names.h"
#include "resources/dialog_ids.h"
#include "resources/objective_places.h"

namespace varnstride {
namespace {

constexpr int kNobody = -1;

// The army whose mark stands in the first held slot of the own side; nobody when none is held.
int OwnArmyIn(const Game& game, const AreaSlots& slots) {
    for (int slot = 0; slot < kSlotsPerSide; ++slot) {
        const Cell cell = SlotOf(slots, game.OwnSide(), slot);
        if (IsHeld(game, cell)) return game.grid.At(cell).occupant - 1;
    }
    return kNobody;
}

int EnemyArmyIn(const Game& game, const AreaSlots& slots) {
    const int army = EnemyArmyOf(game, slots);
    for (int slot = 0; slot < kSlotsPerSide; ++slot) {
        const UnitId id = UnitStandingAt(game, SlotOf(slots, game.EnemySide(), slot));
        if (id && id.army == army) return army;
    }
    return kNobody;
}

// An area that both sides stand in is nobody's.
int OwnerOf(const Game& game, Cell cell) {
    const int ordinal = game.grid.AreaOf(cell);
    if (ordinal == 0) return kNobody;
    const AreaSlots slots = game.atlas->Row(ordinal).Slots();
    const int own = OwnArmyIn(game, slots);
    const int enemy = EnemyArmyIn(game, slots);
    if (own != kNobody && enemy != kNobody) return kNobody;
    return own != kNobody ? own : enemy;
}

std::string OwnerWord(int army) {
    constexpr std::size_t kColumns = 14;
    std::string word(army == kNobody ? "None" : ArmyName(army));
    word.resize(kColumns, ' ');
    return word;
}

std::string LineOf(const Game& game, Cell cell) {
    constexpr std::array<std::string_view, 6> kPoints = {"", "50", "100", "150", "200", ""};
    std::string line = OwnerWord(OwnerOf(game, cell));
    line += ObjectivePlaceName(game.header.mapNumber, cell.x, cell.y);
    line += "          ";
    line += kPoints[static_cast<std::size_t>(game.grid.Ground(cell).objective)];
    return line;
}

bool IsObjective(const Game& game, Cell cell) {
    constexpr int kHighest = 5;  // beyond that the value marks an exit
    const int objective = game.grid.Ground(cell).objective;
    return objective >= 1 && objective <= kHighest && cell != kNoCell;
}

}  // namespace

void ShowObjectives(Game& game) {
    constexpr int kList = 1290;
    std::vector<std::string> lines;
    for (Cell cell : game.grid.Objectives()) {
        if (IsObjective(game, cell)) lines.push_back(LineOf(game, cell));
    }
    Dialog dialog{.templateId = kObjectives,
                  .caption = "Objectives Dialog",
                  .heading = "Objectives (Owner, Location, Points Value)"};
    dialog.AddList(kList, lines);
    dialog.AddButton(kOk, "OK");
    game.person->Ask(dialog);
}

}  // namespace varnstride
