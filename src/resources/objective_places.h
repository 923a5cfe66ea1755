// What the marked places of the battlefields are called in the list of objectives, set out with the
// blanks that the list wants.
#pragma once

#include <array>
#include <string_view>

namespace varnstride {

struct ObjectivePlace {
    int map;
    int x;
    int y;
    std::string_view name;
};

constexpr auto kObjectivePlaces = std::to_array<ObjectivePlace>({
    {1, 21, 21, " Quatre Bras   "},
    {1, 37, 26, " Thyle   "},
    {2, 24, 18, " Hougoumont    "},
    {3, 20, 7, " Marbais    "},
    {3, 22, 34, " Wagnelle    "},
    {3, 31, 38, " St Amand la Haye    "},
    {3, 32, 48, " St Amand    "},
    {3, 38, 55, " St Amand    "},
    {3, 71, 16, " Sombreffe    "},
    {3, 68, 23, " Sombreffe    "},
    {3, 55, 38, " Ligny    "},
    {3, 78, 39, " Tongrenelle    "},
    {3, 94, 35, " Tongrinne      "},
    {3, 83, 49, " Boignee        "},
    {3, 93, 53, " Balatre        "},
    {4, 34, 49, " Chatelineau   "},
    {4, 36, 29, " Pironchamps   "},
    {7, 7, 15, " Merbe & Braine"},
    {7, 31, 2, " Monte St Jean"},
    {7, 33, 13, " Monte St Jean Farm"},
    {7, 38, 30, " La Haie Sainte"},
    {7, 14, 48, " Hougoumont Farm"},
    {7, 19, 48, " Hougoumont Woods"},
    {7, 39, 52, " La Belle Alliance"},
    {7, 75, 26, " Papelotte & La Haie"},
    {7, 82, 28, " Smohain"},
    {7, 88, 34, " Frichermont"},
    {7, 53, 71, " Plancenoit village"},
    {7, 59, 68, " Plancenoit Church"},
    {7, 49, 79, " Rossomme"},
    {8, 22, 44, " Bierges   "},
    {8, 5, 62, " Limale   "},
    {8, 37, 36, " Wavre   "},
    {8, 40, 30, " Wavre   "},
});

// Nothing for a place without a name.
constexpr std::string_view ObjectivePlaceName(int map, int x, int y) {
    for (const ObjectivePlace& place : kObjectivePlaces) {
        if (place.map == map && place.x == x && place.y == y) return place.name;
    }
    return {};
}

}  // namespace varnstride
