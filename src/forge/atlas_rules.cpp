#include "forge/atlas_rules.h"

#include <string>

namespace varnstride {

void CheckAtlas(const AtlasSource& source, SourceErrors& errors, SourceErrors& warnings) {
    const BattlefieldFacts* const facts = FactsOf(source.mapNumber);
    if (facts == nullptr) {
        std::string numbers;
        for (const BattlefieldFacts& known : AllBattlefields()) {
            numbers += (numbers.empty() ? "" : ", ") + std::to_string(known.mapNumber);
        }
        errors.Add(source.mapLine, "there is no battlefield " + std::to_string(source.mapNumber) +
                                       ": expected one of " + numbers);
        return;
    }
    const AtlasCheck check{source, *facts, errors, warnings};
    CheckAreas(check);
    CheckLinks(check);
    CheckKnownPlaces(check);
}

}  // namespace varnstride
