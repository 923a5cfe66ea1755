// What the armies are called.
#pragma once

#include <array>
#include <string_view>

namespace varnstride {

// "French", "British" and so on; nothing for an army without a name.
constexpr std::string_view ArmyName(int army) {
    constexpr std::array<std::string_view, 6> kNames = {"French",   "British", "Austrian",
                                                        "Prussian", "Russian", "Spanish"};
    return army >= 0 && army < 6 ? kNames[static_cast<std::size_t>(army)] : std::string_view{};
}

// "French Army", "British Army" and so on.
constexpr std::string_view ArmyTitle(int army) {
    constexpr std::array<std::string_view, 6> kTitles = {"French Army",   "British Army",
                                                         "Austrian Army", "Prussian Army",
                                                         "Russian Army",  "Spanish Army"};
    return army >= 0 && army < 6 ? kTitles[static_cast<std::size_t>(army)] : std::string_view{};
}

}  // namespace varnstride
