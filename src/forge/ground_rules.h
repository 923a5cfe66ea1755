// The checker of a battle's ground and armies against the atlas of its battlefield: whether each
// hex belongs to an area, areas are whole, marks and labels can be shown and units stand in slots.
// The scenario compiler calls it on what it has made.
#pragma once

#include <string>
#include <vector>

#include "files/battle_file.h"
#include "forge/battlefield_facts.h"
#include "forge/source_errors.h"
#include "model/grid.h"

namespace varnstride {

// Breaches that break a rule go to the errors, oddities to the warnings; each names its cells or
// its unit. The file has width x height cells; its map number is the atlas's.
void CheckGround(const Atlas& atlas, const BattleFile& file, SourceErrors& errors,
                 std::vector<std::string>& warnings);

// One ground in the hands of the checker; the rules of a subject each take it.
struct GroundCheck {
    const Atlas& atlas;
    const BattleFile& file;
    const BattlefieldFacts& facts;
    const Grid& grid;
    SourceErrors& errors;
    std::vector<std::string>& warnings;

    void Error(std::string message) const { errors.Add(0, std::move(message)); }
    void Warning(std::string message) const { warnings.push_back(std::move(message)); }
    bool IsPlayable(Cell cell) const {
        return cell.x >= 1 && cell.x <= file.mapWidth - 2 && cell.y >= 0 && cell.y < file.mapHeight;
    }
    const MapCell& At(Cell cell) const {
        return file
            .cells[static_cast<std::size_t>(cell.y) * static_cast<std::size_t>(file.mapWidth) +
                   static_cast<std::size_t>(cell.x)];
    }
    // Calls visit(cell) for every playable cell, or for every cell, by rows.
    template <typename Visit>
    void ForEachPlayable(Visit visit) const {
        for (int y = 0; y < file.mapHeight; ++y) {
            for (int x = 1; x <= file.mapWidth - 2; ++x)
                visit(Cell{x, y});
        }
    }
    template <typename Visit>
    void ForEachCell(Visit visit) const {
        for (int y = 0; y < file.mapHeight; ++y) {
            for (int x = 0; x < file.mapWidth; ++x)
                visit(Cell{x, y});
        }
    }
};

// What is wrong with cells, one message for each run of neighbours in a row with the same fault.
class CellFaults {
 public:
    // Cells come by rows.
    void Add(Cell cell, const std::string& fault);
    // "cells (5,12) to (9,12): the fault"
    std::vector<std::string> Messages() const;

 private:
    struct Run {
        Cell first;
        Cell last;
        std::string fault;
    };
    std::vector<Run> runs_;
};

void CheckAreaHexes(const GroundCheck& check);  // area_hex_rules.cpp
void CheckMarks(const GroundCheck& check);      // mark_rules.cpp
void CheckArmies(const GroundCheck& check);     // army_rules.cpp

}  // namespace varnstride
