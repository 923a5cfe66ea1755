// How lists of units set out their lines.
#pragma once

#include <algorithm>
#include <string>

#include "model/unit.h"

namespace varnstride {

// The name with blanks up to the 55th column, 28 blanks at most.
inline std::string PaddedName(const Unit& unit) {
    constexpr std::size_t kColumns = 55;
    constexpr std::size_t kMostBlanks = 28;
    std::string name = unit.name.data();
    name.append(std::min(kMostBlanks, kColumns - name.size()), ' ');
    return name;
}

}  // namespace varnstride
