// Gilly, the one battlefield whose areas and links are fixed through and through: battles saved on
// it must stay what they were. Its content is held against these tables, so that no slip of an
// editor changes it.
#pragma once

#include <span>

#include "forge/battlefield_facts.h"

namespace varnstride {

std::span<const KnownRow> GillyRows();
std::span<const AreaLink> GillyLinks();

}  // namespace varnstride
