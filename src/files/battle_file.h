// A scenario, battle or turn file as a value: every block with its reserved bytes, in one layout
// for the three kinds. Reading checks everything before it gives anything; writing never harms the
// file that stood there before.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "model/game.h"
#include "model/result.h"

namespace varnstride {

struct BattleFile {
    int mapWidth = 0;
    int mapHeight = 0;
    std::array<std::uint8_t, 4> sizeReserved{};
    std::vector<MapCell> cells;  // by rows
    std::array<MapLabel, kLabelCount> labels{};
    int armyCount = kArmyCount;        // 7 in the present layout, fewer in the older one
    int unitsPerArmy = kUnitsPerArmy;  // 600 in the present layout
    std::array<std::uint8_t, 4> countReserved{};
    ScenarioHeader header;
    TimeBlock time;
    LossBlock loss;
    std::array<ArmyRecord, kArmyCount> armies{};         // the first armyCount stand in the file
    std::array<BriefingRecord, kArmyCount> briefings{};  // when army 0 has group assignments
    std::vector<ArmyUnits> units{kArmyCount};
    TurnLogBlock turnLog;
    OptionBlock options;

    bool IsOlderLayout() const { return armyCount < kArmyCount || unitsPerArmy < kUnitsPerArmy; }
};

// Reads and checks the bytes of a file. `name` is how a message names it.
Result<BattleFile> ParseBattleFile(std::span<const std::byte> bytes, const std::string& name,
                                   const AtlasCatalogue& atlases);

// The same for a file of the disk.
Result<BattleFile> ReadBattleFile(const std::string& path, const AtlasCatalogue& atlases);

// The bytes of a file in the present layout.
std::vector<std::byte> SerializeBattleFile(const BattleFile& file);

// Writes beside the file, flushes to the disk and renames over it.
Result<Done> WriteBattleFile(const std::string& path, const BattleFile& file);

// Puts a file's blocks into the game: grid, armies, units and the rest. The options of a scenario
// file stay out, and an older layout leaves what it does not hold as it stands. Files carry no
// selection, orders or phase: those are the caller's.
void PutIntoGame(const BattleFile& file, FileKind kind, Game& game);

// The blocks of the game as a file of the present layout.
BattleFile TakeFromGame(const Game& game);

}  // namespace varnstride
