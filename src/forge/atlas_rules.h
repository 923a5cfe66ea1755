// The checker of atlases: what an area, a link and a named place must be for the rules of the game
// to work on them. A breach that breaks a rule is an error; one that only makes the ground odd is
// a warning, to be answered or mended.
#pragma once

#include <span>

#include "forge/atlas_source.h"
#include "forge/battlefield_facts.h"
#include "forge/source_errors.h"

namespace varnstride {

// Checks a source that was read without an error.
void CheckAtlas(const AtlasSource& source, SourceErrors& errors, SourceErrors& warnings);

// One atlas in the hands of the checker; the rules of a subject each take it.
struct AtlasCheck {
    const AtlasSource& source;
    const BattlefieldFacts& facts;
    SourceErrors& errors;
    SourceErrors& warnings;

    int AreaCount() const { return static_cast<int>(source.rows.size()); }
    bool HasArea(int ordinal) const { return ordinal >= 1 && ordinal <= AreaCount(); }
    const SourceRow& Area(int ordinal) const {
        return source.rows[static_cast<std::size_t>(ordinal - 1)];
    }
};

void CheckAreas(const AtlasCheck& check);        // area_rules.cpp
void CheckLinks(const AtlasCheck& check);        // link_rules.cpp
void CheckKnownPlaces(const AtlasCheck& check);  // known_place_rules.cpp

}  // namespace varnstride
