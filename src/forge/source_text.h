// The small change of reading content sources: lines cut into parts, numbers and cells read from
// words and written into messages. The parsers and checkers of the forge call it.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/cell.h"

namespace varnstride {

// The text without the blanks, tabs and carriage returns at its ends.
std::string_view Trimmed(std::string_view text);

// The parts between separators, trimmed; always at least one.
std::vector<std::string_view> SplitAt(std::string_view text, char separator);

// The parts between runs of blanks; none for an empty text.
std::vector<std::string_view> Words(std::string_view text);

// A whole number with nothing before or behind it; nothing when the word is no such number.
std::optional<int> WholeNumber(std::string_view word);

// A cell written "x,y"; nothing when the word is no cell.
std::optional<Cell> CellFrom(std::string_view word);

// The cell as messages name it: "(12,5)".
std::string Shown(Cell cell);
// The three slots of a side as messages name them: "(2,2) (2,6) (5,2)".
std::string Shown(const std::array<Cell, 3>& slots);

}  // namespace varnstride
