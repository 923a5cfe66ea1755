// A battle as one value: everything that a rule may read or change. Games stand side by side in a
// process and can be copied; a copy played on shows what would happen. The person and the atlases
// are not owned and must outlive the game.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "model/army.h"
#include "model/atlas.h"
#include "model/battle_state.h"
#include "model/file_blocks.h"
#include "model/game_state.h"
#include "model/generator.h"
#include "model/grid.h"
#include "model/person.h"
#include "model/unit.h"

namespace varnstride {

using ArmyUnits = std::array<Unit, kUnitsPerArmy>;

// The units, the losses and the marks on the map of a moment, kept for play by e-mail.
struct Snapshot {
    struct Marks {
        std::int16_t occupantMirror = 0;
        std::int16_t occupant = 0;
        std::int16_t roadTile = kNoRoad;
    };

    std::vector<ArmyUnits> units;  // none before the first is taken
    LossBlock loss;
    std::vector<Marks> marks;           // by rows
    unsigned armiesArrived = 0;         // bit of each army whose turn of the game turn had come
    std::vector<std::int16_t> rollLog;  // as the file saved with it holds it
    bool ofBattleInHand = false;        // taken since the battle in hand was opened
};

struct Game {
    Game(const AtlasCatalogue& atlasCatalogue, Person& whoPlays)
        : atlases(&atlasCatalogue), person(&whoPlays), units(kArmyCount) {}

    const AtlasCatalogue* atlases;
    Person* person;
    const Atlas* atlas = nullptr;  // of the battle in hand; nothing before one is opened

    GameState state;
    Census census;
    BattleState battle;
    UndoRecord undo;
    WaitingAttack waiting;
    Generator generator;

    Settings settings;
    ScenarioHeader header;
    TimeBlock time;
    LossBlock loss;
    TurnLogBlock turnLog;
    OptionBlock options;
    std::array<ArmyRecord, kArmyCount> armies{};
    std::array<BriefingRecord, kArmyCount> briefings{};
    std::array<MapLabel, kLabelCount> labels{};
    std::vector<ArmyUnits> units;  // seven armies; record 0 of each stays empty
    Grid grid;

    std::array<std::uint8_t, 4> sizeReserved{};   // of the file in hand, written back as read
    std::array<std::uint8_t, 4> countReserved{};  // of the file in hand, written back as read
    std::string filePath;                         // of the battle in hand, as it was chosen
    Snapshot beforePass;
    Snapshot afterPass;

    Unit& At(UnitId id) {
        return units[static_cast<std::size_t>(id.army)][static_cast<std::size_t>(id.index)];
    }
    const Unit& At(UnitId id) const {
        return units[static_cast<std::size_t>(id.army)][static_cast<std::size_t>(id.index)];
    }
    UnitId InHandId() const { return {state.currentArmy, state.currentUnit}; }
    Unit& InHand() { return At(InHandId()); }
    const Unit& InHand() const { return At(InHandId()); }
    ArmyRecord& Army(int army) { return armies[static_cast<std::size_t>(army)]; }
    const ArmyRecord& Army(int army) const { return armies[static_cast<std::size_t>(army)]; }
    ArmyRecord& ArmyInPlay() { return Army(state.currentArmy); }
    const ArmyRecord& ArmyInPlay() const { return Army(state.currentArmy); }
    Side OwnSide() const { return SideOf(state.currentArmy); }
    Side EnemySide() const { return Opposing(OwnSide()); }
};

}  // namespace varnstride
