#include "battle/result_lines.h"

#include "battle/pairing.h"
#include "resources/army_names.h"
#include "resources/tactic_names.h"

namespace varnstride {
namespace {

using P = const Pairing&;

struct ResultLine {
    std::string_view text;
    bool (*shown)(P);
};

bool FiresGuns(P p) {
    return IsFieldGun(p.attacker.type);
}
bool IsBarrage(P p) {
    return p.game.state.bombardmentMode != 0;
}
bool TargetIs(P p, Formation formation) {
    return p.target.formation == formation;
}
bool TargetIs(P p, UnitStatus status) {
    return p.target.status == status;
}
bool AttackerIsLineHorse(P p) {
    return kLineHorse.Holds(p.attacker.type);
}
bool FiresInLine(P p) {
    return !FiresGuns(p) && p.attacker.formation == Formation::Line &&
           kFootOrLeader.Holds(p.attacker.type);
}
bool HasQuality(P p, Quality quality) {
    return !FiresGuns(p) && p.attacker.quality == quality;
}
bool HasCard(P p, int card) {
    return p.game.options.cardEffect == card;
}
bool HasDrawCard(P p) {
    return p.game.state.strikeDrawCard != 0;
}

// In the order of the box, below the lines that carry numbers.
constexpr ResultLine kLines[] = {
    {"Defender Routed  +2", [](P p) { return TargetIs(p, UnitStatus::Routed); }},
    {"Napoleon's tactical brillance shines  +1",
     [](P p) { return HasCard(p, 1) && p.attackerArmy == kFrench; }},
    {"Napoleon conducts bombardment  +2",
     [](P p) { return HasCard(p, 2) && IsBarrage(p) && p.attackerArmy == kFrench; }},
    {"Inspirational Leadership, Infantry Combat  +2",
     [](P p) { return HasCard(p, 3) && IsFoot(p.attacker.type); }},
    {"Attacker crossing stream against defended position  -2",
     [](P p) { return p.game.battle.streamCrossed != 0; }},
    {"Attacker moving or conducted bombardment  -1",
     [](P p) { return p.attacker.actionPoints == 0; }},
    {"Attacker Cavalry Charge  +2", [](P p) { return IsCharging(p.attacker); }},
    {"Attacker Bayonet Charge  +2", [](P p) { return HasBayonetsFixed(p.attacker); }},
    {"Combat in the Snow  -2", [](P p) { return StandsOnFrozenGround(p.game, p.attacker); }},
    {"Lancers against infantry square (lance long reach) +1",
     [](P p) { return p.attacker.type == UnitType::Lancers && TargetIs(p, Formation::Square); }},
    {"Enemy Leader Unit present  -1", [](P p) { return p.game.census.enemyLeaderHere != 0; }},
    {"Battlefield Smoke  -1", [](P p) { return StandsInSmoke(p.game, p.attacker); }},
    {"Combined Arms attack +1", [](P p) { return p.game.battle.combinedArms > 0; }},
    {"Artillery Bombardment  +4",
     [](P p) { return FiresGuns(p) && IsBarrage(p) && !TargetIs(p, UnitStatus::Routed); }},
    {"Artillery Cannister Fire  +4", [](P p) { return FiresGuns(p) && !IsBarrage(p); }},
    {"Defender in Square  +4", [](P p) { return FiresGuns(p) && TargetIs(p, Formation::Square); }},
    {"Defender Skirmishing -1",
     [](P p) { return FiresGuns(p) && TargetIs(p, Formation::OpenOrder); }},
    {"Defender in Column Formation +2",
     [](P p) {
         return FiresGuns(p) &&
                (TargetIs(p, Formation::AttackColumn) || TargetIs(p, Formation::MixedOrder));
     }},
    {"Strike Value increased by draw card  +1",
     [](P p) { return FiresGuns(p) && HasDrawCard(p) && p.attackerArmy == kAustrian; }},
    {"Strike Value reduced by draw card  -1",
     [](P p) { return !FiresGuns(p) && HasDrawCard(p) && p.attackerArmy != kAustrian; }},
    {"Strike Value increased by draw card  +1",
     [](P p) {
         return IsMountedOrMortar(p.attacker.type) && HasDrawCard(p) && p.attackerArmy == kAustrian;
     }},
    {"Defender Shaken  +1", [](P p) { return !FiresGuns(p) && TargetIs(p, UnitStatus::Shaken); }},
    {"Attacker Unsteady  -1",
     [](P p) { return !FiresGuns(p) && p.attacker.status == UnitStatus::Unsteady; }},
    {"Attacker Firing in Line  +1", FiresInLine},
    {"Attacker Firing at Skirmishers  -2",
     [](P p) {
         return FiresInLine(p) && p.target.type == UnitType::LightInfantry &&
                TargetIs(p, Formation::OpenOrder);
     }},
    {"Attackers Militia or Conscripts -1",
     [](P p) { return HasQuality(p, Quality::Militia) || HasQuality(p, Quality::Conscript); }},
    {"Elite troops attacking  +1", [](P p) { return HasQuality(p, Quality::Elite); }},
    {"Veteran troops attacking  +1", [](P p) { return HasQuality(p, Quality::Veteran); }},
    {"Defender in Square -25",
     [](P p) { return AttackerIsLineHorse(p) && TargetIs(p, Formation::Square); }},
    {"Defender Skirmishing against cavalry +5",
     [](P p) {
         return AttackerIsLineHorse(p) && p.attacker.formation != Formation::OpenOrder &&
                TargetIs(p, Formation::OpenOrder);
     }},
    {"Enemy Cavalry Counter-Charge -2",
     [](P p) { return AttackerIsLineHorse(p) && p.game.battle.counterCharged != 0; }},
};

std::string WithSign(int number) {
    return (number < 0 ? "" : "+") + std::to_string(number);
}

bool HadTactics(const Pairing& pair) {
    return pair.game.options.tacticalPlayOn == 1 && pair.game.battle.attackingSlots > 1 &&
           !IsBarrage(pair) && !IsCharging(pair.attacker);
}

std::string NameIn(const std::array<std::string_view, 10>& names, int number) {
    const auto index = static_cast<std::size_t>(number);
    return std::string(index < names.size() ? names[index] : std::string_view{});
}

void AddTactics(const Pairing& pair, std::vector<std::string>& lines) {
    const BattleState& battle = pair.game.battle;
    if (!HadTactics(pair)) return;
    if (battle.combinedLeadership < battle.requiredLeadership) {
        lines.push_back("Combined Tactical Leadership Insufficient, No Tactical Advantage  +0");
        return;
    }
    lines.emplace_back();
    lines.push_back(std::string(ArmyName(pair.attackerArmy)) + " Tactics used - " +
                    NameIn(kTacticNames, battle.chosenTactic));
    lines.push_back(std::string(ArmyName(pair.targetArmy)) + " Tactical Response - " +
                    NameIn(kResponseNames, battle.tacticalResponse));
    lines.push_back("Attacker Tactical Advantage  " + WithSign(battle.tacticalAdvantage));
    lines.emplace_back();
}

void AddTerrain(const Pairing& pair, std::vector<std::string>& lines) {
    const int terrain = pair.game.battle.terrainDefence;
    if (terrain <= 0 || pair.attacker.formation == Formation::OpenOrder) return;
    lines.push_back(" Defense Terrain Modifier = -" + std::to_string(terrain));
}

}  // namespace

std::vector<std::string> ResultLines(const Game& game) {
    const Pairing pair(game);
    std::vector<std::string> lines;
    lines.push_back(" Combat effectiveness against enemy in area = " +
                    std::to_string(EffectivenessOf(pair.attacker.type, pair.target.type)));
    AddTactics(pair, lines);
    AddTerrain(pair, lines);
    for (const ResultLine& line : kLines) {
        if (line.shown(pair)) lines.emplace_back(line.text);
    }
    return lines;
}

}  // namespace varnstride
