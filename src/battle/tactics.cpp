#include "battle/tactics.h"

#include <algorithm>
#include <string>

#include "actions/sides.h"
#include "battle/computer_tactics.h"
#include "battle/tactics_tables.h"
#include "model/dice.h"
#include "model/terrain.h"
#include "resources/tactic_names.h"

namespace varnstride {
namespace {

constexpr int kOrdinaryLeadership = 2;

unsigned ArmsOf(int line, int cavalry, int guns, int light) {
    return (line != 0 ? kLine : 0U) | (cavalry != 0 ? kCavalry : 0U) | (guns != 0 ? kGuns : 0U) |
           (light != 0 ? kLight : 0U);
}

unsigned EnemyArms(const BattleState& battle) {
    return ArmsOf(battle.enemyLineHere, battle.enemyCavalryHere, battle.enemyGunsHere,
                  battle.enemyLightHere);
}

bool CannotRespond(unsigned arms, int response) {
    return std::any_of(kImpossible.begin(), kImpossible.end(),
                       [&](const ImpossibleResponses& entry) {
                           return entry.arms == arms && (entry.responses >> response & 1U) != 0;
                       });
}

// What the arms and the ground leave of a plan; holding the line is always left.
int WhatArmsAllow(const Game& game, int response) {
    constexpr int kArtilleryFire = 5;
    constexpr int kCounterCharge = 6;
    const BattleState& battle = game.battle;
    if (CannotRespond(EnemyArms(battle), response)) return 0;
    if (response == kArtilleryFire && battle.enemyGunsHere == 0) return 0;
    const bool noCharge = battle.enemyCavalryHere == 0 || game.state.closeSlots >= kCloseTerrain;
    return response == kCounterCharge && noCharge ? 0 : response;
}

int DrawResponse(Game& game) {
    const BattleState& battle = game.battle;
    const int all = battle.enemySlotsFilled;
    int response = Die(game, 8);
    const bool bold = response == 1 || response == 2 || response == 6;
    if (battle.enemyShaken == all && bold) response = 0;
    if (battle.enemyRouted == all) return static_cast<int>(TacticalResponse::DefenderRouted);
    if (battle.enemySquares == all) return static_cast<int>(TacticalResponse::FormSquare);
    return WhatArmsAllow(game, response);
}

const TacticsDialog* DialogFor(const BattleState& battle) {
    const unsigned arms =
        ArmsOf(battle.ownLine, battle.ownCavalry, battle.ownGuns, battle.ownLight);
    const auto found =
        std::find_if(kTacticsDialogs.begin(), kTacticsDialogs.end(),
                     [arms](const TacticsDialog& entry) { return entry.arms == arms; });
    return found == kTacticsDialogs.end() ? nullptr : &*found;
}

int ButtonOf(const OfferedTactic& offer) {
    return kTacticButtons[static_cast<std::size_t>(offer.tactic)];
}

// The tactic pressed; an answer that names none takes the first.
OfferedTactic AskForTactic(Game& game, const TacticsDialog& offered) {
    Dialog dialog{.templateId = offered.templateId, .caption = std::string(offered.caption)};
    const auto end = offered.offers.begin() + offered.count;
    for (auto offer = offered.offers.begin(); offer != end; ++offer) {
        dialog.AddButton(ButtonOf(*offer),
                         std::string(kTacticNames[static_cast<std::size_t>(offer->tactic)]));
    }
    game.person->Ask(dialog);
    const auto pressed = std::find_if(offered.offers.begin(), end, [&](const OfferedTactic& offer) {
        return ButtonOf(offer) == dialog.closedBy;
    });
    return pressed == end ? offered.offers.front() : *pressed;
}

void LetArmLead(BattleState& battle, unsigned arms) {
    if (arms == kNoArms) return;
    battle.ownLine = arms == kLine ? 1 : 0;
    battle.ownCavalry = arms == kCavalry ? 1 : 0;
    battle.ownGuns = arms == kGuns ? 1 : 0;
    battle.ownLight = arms == kLight ? 1 : 0;
}

void LetPersonChoose(Game& game) {
    BattleState& battle = game.battle;
    const bool gateShut =
        game.state.eventCard >= kFirstWeatherCard && battle.ownCavalry == 0 && battle.ownGuns == 0;
    if (gateShut) return;
    if (const TacticsDialog* offered = DialogFor(battle)) {
        const OfferedTactic choice = AskForTactic(game, *offered);
        battle.chosenTactic = choice.tactic;
        battle.tacticalAdvantage = AdvantageOf(choice.tactic, battle.tacticalResponse);
        battle.requiredLeadership = LeadershipFor(choice.tactic);
        LetArmLead(battle, choice.leads);
    }
    if (battle.tacticalResponse == static_cast<int>(TacticalResponse::DefenderRouted)) {
        battle.tacticalAdvantage = kAdvantageOverRouted;
    }
}

}  // namespace

int AdvantageOf(int tactic, int response) {
    if (response == static_cast<int>(TacticalResponse::DefenderRouted)) return kAdvantageOverRouted;
    return kAdvantage[tactic][response];
}

int LeadershipFor(int tactic) {
    if (tactic == static_cast<int>(Tactic::CoordinatedAdvance)) return 7;
    if (tactic == static_cast<int>(Tactic::FlankAttack)) return 8;
    return kOrdinaryLeadership;
}

void ChooseTactics(Game& game) {
    game.battle.tacticalResponse = DrawResponse(game);
    if (IsHumanArmy(game)) {
        LetPersonChoose(game);
    } else {
        LetComputerChoose(game);
    }
}

}  // namespace varnstride
