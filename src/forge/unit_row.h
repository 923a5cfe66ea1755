// One row of a table of units: the columns by name, what each puts into a record, and the row that
// gives a record back.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forge/scenario_build.h"
#include "model/unit.h"

namespace varnstride {

// The columns that a table may have, in the order in which they are written.
std::vector<std::string_view> UnitColumns();

// Where a column stands in that order; nothing when there is none of that name.
std::optional<std::size_t> UnitColumn(std::string_view name);

constexpr std::size_t kIndexColumn = 0;  // the record's number is the table's own affair

// The texts of a row in the order of UnitColumns; empty or "-" leaves a default.
using UnitRow = std::vector<std::string_view>;

// The record that a row describes. What cannot be read is added to the faults.
Unit UnitFromRow(const UnitRow& row, const ScenarioBuild& build, std::vector<std::string>& faults);

// The texts of a row that gives the record, on the grid of the build; columns at their default hold
// "-".
std::vector<std::string> RowFromUnit(const Unit& unit, int index, const ScenarioBuild& build);

}  // namespace varnstride
