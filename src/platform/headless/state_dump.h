// The state of a battle and the contents of a file as JSON, every field under the name that the
// rules give it. Texts are printed up to their NUL; flags and enumerations as numbers.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "files/battle_file.h"
#include "model/game.h"

namespace varnstride {

// The `state` event. `atLoad` holds the cells by rows as the load left them.
nlohmann::ordered_json StateEvent(const Game& game, const std::vector<MapCell>& atLoad);

// A file: every block; of units those with strength, of cells the fields that an empty cell lacks.
nlohmann::ordered_json FileAsJson(const BattleFile& file);

// The cells of a grid by rows; none when no battle is open.
std::vector<MapCell> WholeCells(const Grid& grid);

// Texts come from files byte by byte and are read as Latin-1, so that any file can be printed.
std::string ToUtf8(std::string_view text);

}  // namespace varnstride
