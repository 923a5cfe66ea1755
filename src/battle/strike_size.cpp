// What both strikes make of a unit's size, order and formation.
#include "battle/strike_tables.h"
#include "battle/strikes.h"

namespace varnstride {

void AddSkirmishLine(StrikeLedger& ledger, const Unit& unit) {
    if (unit.type != UnitType::LightInfantry || unit.formation != Formation::OpenOrder) return;
    double size = 0.0;
    for (const SkirmishLine& line : kSkirmishLines) {
        if (unit.strength >= line.fromStrength) size = line.size;
    }
    ledger.SetSize("Skirmish line", size);
}

void AddGuardOfArmy(StrikeLedger& ledger, int army, const Unit& unit) {
    const bool grenadiers = army == kAustrian || army == kPrussian || army == kRussian;
    if (grenadiers && unit.type == UnitType::GuardInfantry) ledger.Scale("Grenadiers", 0.75);
}

void AddOrder(StrikeLedger& ledger, const Unit& unit) {
    if (unit.status == UnitStatus::Unsteady) ledger.Scale("Unsteady", 0.75);
    if (unit.status == UnitStatus::Shaken) ledger.Scale("Shaken", 0.5);
}

void AddFormation(StrikeLedger& ledger, std::span<const FormationFactor> factors,
                  const Unit& unit) {
    for (const FormationFactor& factor : factors) {
        if (factor.formation == unit.formation && factor.types.Holds(unit.type)) {
            ledger.Scale("Formation", factor.factor);
        }
    }
}

}  // namespace varnstride
