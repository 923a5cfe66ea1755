// The units of the map: how each arm draws up at each strength, in the dress of its army. The
// sheets of troop_sheets.h are painted with it.
#pragma once

#include <string_view>
#include <vector>

#include "forge_art/flags.h"
#include "forge_art/muster.h"
#include "forge_art/studio.h"

namespace varnstride::art {

enum class Arrangement {
    Line,      // ranks, one more for each point of strength
    Column,    // narrow and deep
    Skirmish,  // loose order
    Horse,     // ranks of riders
    Guns,      // four pictures: foot guns of strength 1 and 2, horse guns of 1 and 2
    Leader,    // a group of his own, the same at any strength
};

enum class Calibre { Light, Medium, Heavy };

// What a sheet of units shows.
struct Troop {
    std::string_view uniform;
    std::string_view head;    // a piece of figures.art without "head."
    std::string_view body;    // of riders, without "rider."
    std::string_view horses;  // colours of the palette without "horse.", by turns
    Arrangement arrangement;
    Calibre calibre;
    Nation nation;
    bool hasColor;  // carries a flag
};

// The pictures for strength 1 to count; of guns always four.
std::vector<Tile> PaintTroop(const Studio& studio, const Troop& troop, const MusterLook& look,
                             int count);

}  // namespace varnstride::art
