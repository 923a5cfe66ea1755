// The words that scenario sources write for numbers: armies, arms, weapons, formations, marks. The
// readers and writers of the sections call it.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "model/army.h"
#include "model/unit.h"

namespace varnstride {

struct Word {
    std::string_view text;
    int value;
};

// The last one is stored in files and never played.
inline constexpr std::array<Word, kArmyCount> kArmyWords = {{
    {"French", kFrench},
    {"British", kBritish},
    {"Austrian", kAustrian},
    {"Prussian", kPrussian},
    {"Russian", kRussian},
    {"Spanish", kSpanish},
    {"Seventh", kLastPlayingArmy + 1},
}};

inline constexpr std::array<Word, 18> kTypeWords = {{
    {"LightInfantry", 1},
    {"LineInfantry", 2},
    {"GuardInfantry", 3},
    {"LightDragoonsDismounted", 4},
    {"Engineers", 5},
    {"DragoonsDismounted", 6},
    {"Leader", 7},
    {"LightCavalry", 8},
    {"Lancers", 9},
    {"HeavyCavalry", 10},
    {"MediumCavalry", 11},
    {"CossackCavalry", 12},
    {"GuardCavalry", 13},
    {"MortarArtillery", 14},
    {"RocketArtillery", 15},
    {"HorseArtillery", 16},
    {"FieldArtillery", 17},
    {"SupplyWagon", 18},
}};

inline constexpr std::array<Word, 9> kWeaponWords = {{
    {"Musket", 1},
    {"Rifle", 2},
    {"Carbine", 3},
    {"Sabre", 4},
    {"3pdr", 5},
    {"6pdr", 6},
    {"12pdr", 7},
    {"Lance", 8},
    {"Rocket", 9},
}};

inline constexpr std::array<Word, 7> kFormationWords = {{
    {"Line", 0},
    {"AttackColumn", 1},
    {"MixedOrder", 2},
    {"Square", 3},
    {"OpenOrder", 4},
    {"MarchColumn", 5},
    {"None", 6},
}};

// Values of MapCell::objective by the points that they are worth.
inline constexpr std::array<Word, 5> kObjectiveWords = {{
    {"50", 1},
    {"100", 2},
    {"150", 3},
    {"200", 4},
    {"listed", 5},
}};

// Values of MapCell::objective by the army that leaves the map there.
inline constexpr std::array<Word, 6> kExitWords = {{
    {"British", 6},
    {"Prussian", 7},
    {"French", 8},
    {"Russian", 9},
    {"Austrian", 10},
    {"Spanish", 11},
}};

// The value of a word; nothing when it is none of them.
std::optional<int> ValueOf(std::span<const Word> words, std::string_view text);

// The word for a value; empty when it has none.
std::string_view WordOf(std::span<const Word> words, int value);

// "unknown army "Frensh": expected French, British, ..."
std::string UnknownWord(std::string_view what, std::string_view text, std::span<const Word> words);

}  // namespace varnstride
