// The hidden exchange of plans before an area's battle: what the defender will do is drawn from
// what he has, and the attacker, who does not see it, picks a tactic from what he has himself.
#pragma once

#include "model/game.h"

namespace varnstride {

enum class Tactic {
    HoldAttack = 0,
    FrontalAttack = 1,
    FrontalAssault = 2,
    CoordinatedAdvance = 3,
    FlankAttack = 4,
    CavalryCharge = 5,
    ArtilleryBombardment = 6,
    InfantryOnlyAdvance = 7,
    LightInfantrySkirmish = 8,
    CavalrySwarmAttack = 9,
};

enum class TacticalResponse {
    HoldTheLine = 0,
    FrontalAttack = 1,
    FrontalAssault = 2,
    WithdrawSlowly = 3,
    RefuseFlank = 4,
    ArtilleryFireOnly = 5,
    CavalryCounterCharge = 6,
    LightInfantrySkirmish = 7,
    FormSquare = 8,
    DefenderRouted = 9,
};

// What a tactic gains against a response, -3 to 4.
int AdvantageOf(int tactic, int response);

// The leadership that all attackers together need for a tactic to count.
int LeadershipFor(int tactic);

// Sets tacticalResponse, chosenTactic, tacticalAdvantage; a person's choice narrows the own arms to
// the one that leads and may raise requiredLeadership. The census of the area battle stands.
void ChooseTactics(Game& game);

}  // namespace varnstride
