// The strike of a target that answers. Only the weapon is scaled; the matchup is read from the
// attacker's row, so that a good one raises the answer it draws.
#include <algorithm>

#include "battle/pairing.h"
#include "battle/strikes.h"

namespace varnstride {
namespace {

constexpr double kNarrowFront = 3.0;

void AddSize(StrikeLedger& ledger, const Pairing& pair) {
    const Unit& unit = pair.target;
    ledger.SetSize("Strength", unit.strength);
    if (unit.strength > kNarrowFront) ledger.SetSize("Front of the arm", kNarrowFront);
    AddSkirmishLine(ledger, unit);
    AddGuardOfArmy(ledger, pair.targetArmy, unit);
}

bool IsLineHorse(const Unit& unit) {
    return kLineHorse.Holds(unit.type);
}
bool IsFormedFootBeforeHorse(const Pairing& pair) {
    return IsLineHorse(pair.attacker) && IsFoot(pair.target.type) &&
           pair.target.formation != Formation::Square;
}
bool HasFormation(const Unit& unit, Formation one, Formation other) {
    return unit.formation == one || unit.formation == other;
}

bool MatchupCounts(const Pairing& pair) {
    const UnitType target = pair.target.type;
    if (IsFoot(pair.attacker.type)) {
        const bool openFoot = IsFoot(target) && pair.target.formation != Formation::Square;
        return openFoot || IsFieldGun(target);
    }
    return IsLineHorse(pair.attacker) && (IsFieldGun(target) || IsLineHorse(pair.target));
}

bool MeetsHorseStanding(const Pairing& pair) {
    return IsLineHorse(pair.attacker) && IsLineHorse(pair.target) && !IsCharging(pair.target);
}

using P = const Pairing&;

constexpr StrikeModifier kDefenceModifiers[] = {
    {"Lancers caught standing", -3,
     [](P p) { return MeetsHorseStanding(p) && p.target.type == UnitType::Lancers; }},
    {"Cavalry caught standing", -2,
     [](P p) { return MeetsHorseStanding(p) && p.target.type != UnitType::Lancers; }},
    {"Battlefield smoke", -1, [](P p) { return StandsInSmoke(p.game, p.target); }},
    {"Rifles", 1, [](P p) { return p.target.weapon == Weapon::Rifle; }},
    {"Line before cavalry", -3,
     [](P p) {
         return IsFormedFootBeforeHorse(p) &&
                HasFormation(p.target, Formation::Line, Formation::MixedOrder);
     }},
    {"Column before cavalry", -4,
     [](P p) {
         return IsFormedFootBeforeHorse(p) &&
                HasFormation(p.target, Formation::AttackColumn, Formation::MarchColumn);
     }},
    {"Cavalry before a square", -20,
     [](P p) { return p.attacker.formation == Formation::Square && IsLineHorse(p.target); }},
    {"Disrupted", -1, [](P p) { return p.target.disrupted != 0; }},
    {"Out of ammunition", -1, [](P p) { return IsOutOfAmmunition(p.target); }},
    {"Line against the bayonet", 1,
     [](P p) { return HasBayonetsFixed(p.attacker) && p.target.formation == Formation::Line; }},
    {"Attacker crosses a stream", 2, [](P p) { return p.game.battle.streamCrossed != 0; }},
    {"Snow", -2, [](P p) { return IsHamperedBySnow(p.game, p.target); }},
    {"Militia or conscripts", -1, [](P p) { return IsMilitia(p.target); }},
    {"Elite or veteran troops", 1, [](P p) { return IsPicked(p.target); }},
    {"Tactical card of the attacker", -2,
     [](P p) { return p.game.options.cardEffect == 2 && p.attackerArmy == kAustrian; }},
};

bool StandsBehindStream(const Game& game, Cell cell) {
    return std::any_of(std::begin(kStreams), std::end(kStreams), [&](const StreamList& stream) {
        return stream.mapNumber == game.header.mapNumber && stream.attacker == game.OwnSide() &&
               std::find(stream.slots.begin(), stream.slots.end(), cell) != stream.slots.end();
    });
}

// Foot that defends a stream against somebody who has just come over it.
void CheckStreamCrossing(Game& game, const Pairing& pair) {
    const Cell cell = pair.attacker.Place();
    const bool tested =
        IsFoot(pair.target.type) && pair.attacker.actionPoints == 0 && game.grid.IsLit(cell);
    game.battle.streamCrossed = tested && StandsBehindStream(game, cell) ? 1 : 0;
}

void AddModifiers(StrikeLedger& ledger, const Pairing& pair) {
    if (MatchupCounts(pair)) {
        ledger.AddFlat("Effectiveness of the attacker",
                       EffectivenessOf(pair.attacker.type, pair.target.type));
    }
    for (const StrikeModifier& modifier : kDefenceModifiers) {
        if (modifier.applies(pair)) ledger.AddFlat(modifier.name, modifier.points);
    }
    if (pair.target.formation != Formation::OpenOrder) {
        ledger.AddFlat("Terrain", -pair.game.battle.terrainDefence);
    }
}

}  // namespace

StrikeLedger ComputeDefenceStrike(Game& game) {
    StrikeLedger ledger;
    const Pairing pair(game);
    AddSize(ledger, pair);
    AddOrder(ledger, pair.target);
    AddFormation(ledger, kDefenceFormations, pair.target);
    ledger.AddBase("Weapon", WeaponStrikeOf(pair.target));
    CheckStreamCrossing(game, pair);
    AddModifiers(ledger, pair);
    if (IsHamperedByDark(game, pair.target)) ledger.Halve("Poor visibility");
    game.battle.defenceStrike = ledger.Value();
    return ledger;
}

}  // namespace varnstride
