// One walk over everything that makes up a battle, for the comparison of two games and for the hash
// of one.
#pragma once

#include <string>
#include <type_traits>

#include "model/game.h"
#include "model/record_fields.h"
#include "model/state_fields.h"

namespace varnstride {

// Which record it is, as a message names it: "army 3 unit 17", "cell 4,5", "header".
struct RecordName {
    const char* kind = "";
    int first = -1;   // army, briefing or label, or the column of a cell
    int second = -1;  // unit, or the row of a cell

    std::string Text() const;
};

// Calls visit(name, record...) for every stored record that the games have in common, with the
// record of each game.
template <typename Visit, typename... Games>
void ForEachRecord(Visit visit, const Games&... games) {
    visit(RecordName{"header"}, games.header...);
    visit(RecordName{"time"}, games.time...);
    visit(RecordName{"loss"}, games.loss...);
    visit(RecordName{"options"}, games.options...);
    visit(RecordName{"settings"}, games.settings...);
    for (std::size_t army = 0; army < kArmyCount; ++army) {
        const int number = static_cast<int>(army);
        visit(RecordName{"army", number}, games.armies[army]...);
        visit(RecordName{"briefing", number}, games.briefings[army]...);
        for (std::size_t unit = 0; unit < kUnitsPerArmy; ++unit) {
            visit(RecordName{"unit", number, static_cast<int>(unit)}, games.units[army][unit]...);
        }
    }
    for (std::size_t label = 0; label < kLabelCount; ++label) {
        visit(RecordName{"label", static_cast<int>(label)}, games.labels[label]...);
    }
    for (int y = 0; (... && (y < games.grid.Height())); ++y) {
        for (int x = 0; (... && (x < games.grid.Width())); ++x) {
            visit(RecordName{"cell", x, y}, games.grid.Whole({x, y})...);
        }
    }
}

}  // namespace varnstride
