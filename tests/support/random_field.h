// A field in a random state, the same for the same seed: links of every kind, areas numbered out of
// order, cells of two areas and of none, units of both sides in their slots and some off the map.
#pragma once

#include <memory>
#include <random>

#include "support/field.h"

namespace varnstride {

// The battlefield numbers that have an atlas.
constexpr int kPlayedMaps[] = {1, 2, 3, 4, 7, 8};

std::unique_ptr<Field> MakeRandomField(std::mt19937& chance);

}  // namespace varnstride
