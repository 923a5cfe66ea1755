// The strike of an attacker: his size, his friends and his order scale the weapon and the matchup;
// what remains is added as it is.
#include <algorithm>

#include "battle/pairing.h"
#include "battle/strikes.h"
#include "model/census.h"
#include "model/reach.h"

namespace varnstride {
namespace {

constexpr double kWidestFront = 5.0;  // strength points that infantry brings to bear
constexpr double kNarrowFront = 3.0;  // the same of all others, and in broken ground

void HoldSizeTo(StrikeLedger& ledger, std::string_view name, double limit) {
    if (ledger.CurrentScale() > limit) ledger.SetSize(name, limit);
}

void AddSize(StrikeLedger& ledger, const Pairing& pair) {
    const Unit& unit = pair.attacker;
    ledger.SetSize("Strength", unit.strength);
    if (IsInfantry(unit.type)) HoldSizeTo(ledger, "Front of infantry", kWidestFront);
    if (pair.game.battle.terrainDefence > 1) HoldSizeTo(ledger, "Broken ground", kNarrowFront);
    AddSkirmishLine(ledger, unit);
    if (IsBetween(unit.type, UnitType::LightDragoonsDismounted, UnitType::FieldArtillery)) {
        HoldSizeTo(ledger, "Front of the arm", kNarrowFront);
    }
    AddGuardOfArmy(ledger, pair.attackerArmy, unit);
}

bool HasOwnUnits(const Census& census) {
    return census.ownLine + census.ownCavalry + census.ownGuns + census.ownLeaders > 0;
}

// Whether the army has anybody in the areas that are lit.
bool FindsFriends(Game& game) {
    bool found = false;
    game.grid.LitAreas().ForEach([&](int ordinal) {
        if (found) return;
        CensusOwnOf(game, ordinal);
        found = HasOwnUnits(game.census);
    });
    return found;
}

// The own area is lit as well, so that whoever counts supports himself; a barrage needs friends
// next door.
void AddSupport(StrikeLedger& ledger, Game& game) {
    const Cell selected = game.state.selectedCell;
    game.state.selectedCell = game.InHand().Place();
    ShadeReachWith(game, 1);
    if (!FindsFriends(game)) ledger.Scale("No support within one area", 0.5);
    game.state.selectedCell = selected;
}

void AddBase(StrikeLedger& ledger, const Pairing& pair) {
    const Unit& unit = pair.attacker;
    const BattleState& battle = pair.game.battle;
    ledger.AddBase("Weapon", WeaponStrikeOf(unit));
    ledger.AddBase("Effectiveness against the target",
                   EffectivenessOf(unit.type, pair.target.type));
    if (unit.type != UnitType::GuardInfantry) {
        if (IsMilitia(unit)) ledger.AddBase("Militia or conscripts", -1);
        if (IsPicked(unit)) ledger.AddBase("Elite or veteran troops", 1);
    }
    if (StandsInSmoke(pair.game, unit)) ledger.AddBase("Battlefield smoke", -1);
    if (battle.areaOnFire != 0) ledger.AddBase("Buildings on fire", -1);
    if (battle.combinedLeadership >= battle.requiredLeadership) {
        ledger.AddBase("Tactical advantage", battle.tacticalAdvantage);
    }
}

bool IsLineHorse(const Unit& unit) {
    return kLineHorse.Holds(unit.type);
}
bool ChargesOnHorse(const Unit& unit) {
    return IsMounted(unit.type) && IsCharging(unit);
}

// A line of British foot holds its fire until it tells.
bool MeetsBritishLine(const Pairing& pair) {
    return pair.targetArmy == kBritish && IsInfantry(pair.target.type) &&
           pair.target.formation == Formation::Line;
}
bool IsCounterCharged(const Pairing& pair) {
    return ChargesOnHorse(pair.attacker) && IsMounted(pair.target.type) &&
           pair.target.activity == UnitActivity::None && pair.target.status > UnitStatus::Shaken;
}

bool StandsInBlockedArea(const Pairing& pair) {
    const Cell cell = pair.attacker.Place();
    const int areaId = pair.game.grid.Ground(cell).areaId;
    return std::any_of(
        std::begin(kBlockedAreas), std::end(kBlockedAreas), [&](const BlockedArea& area) {
            return area.mapNumber == pair.game.header.mapNumber && area.areaId == areaId &&
                   cell.x >= area.left && cell.x <= area.right && cell.y >= area.top &&
                   cell.y <= area.bottom;
        });
}

using P = const Pairing&;

constexpr StrikeModifier kAttackModifiers[] = {
    {"Enemy leader in the area", -1, [](P p) { return p.game.census.enemyLeaderHere != 0; }},
    {"Rifles", 1, [](P p) { return p.attacker.weapon == Weapon::Rifle; }},
    {"Carbines on foot", -1,
     [](P p) {
         return p.attacker.weapon == Weapon::Carbine &&
                p.attacker.type == UnitType::LightDragoonsDismounted;
     }},
    {"Guns against a square", 4,
     [](P p) { return IsFieldGun(p.attacker.type) && p.target.formation == Formation::Square; }},
    {"Guns against skirmishers", -1,
     [](P p) { return IsFieldGun(p.attacker.type) && p.target.formation == Formation::OpenOrder; }},
    {"Guns against columns", 2,
     [](P p) {
         return IsFieldGun(p.attacker.type) && (p.target.formation == Formation::AttackColumn ||
                                                p.target.formation == Formation::MixedOrder);
     }},
    {"Bayonet charge", 2,
     [](P p) { return IsFoot(p.attacker.type) && HasBayonetsFixed(p.attacker); }},
    {"Cavalry charge against a British line", 4,
     [](P p) { return ChargesOnHorse(p.attacker) && MeetsBritishLine(p); }},
    {"Cavalry charge", 2, [](P p) { return ChargesOnHorse(p.attacker) && !MeetsBritishLine(p); }},
    {"Counter-charge", -2, IsCounterCharged},
    {"Cavalry among skirmishers", 5,
     [](P p) {
         return IsLineHorse(p.attacker) && p.attacker.formation != Formation::OpenOrder &&
                p.target.formation == Formation::OpenOrder && p.game.battle.terrainDefence < 2;
     }},
    {"Light cavalry against lancers", 2,
     [](P p) {
         return p.attacker.type == UnitType::LightCavalry && p.target.type == UnitType::Lancers;
     }},
    {"Lances against a square", 1,
     [](P p) {
         return p.attacker.type == UnitType::Lancers && p.target.formation == Formation::Square;
     }},
    {"Fire at skirmishers", -2,
     [](P p) {
         const UnitType type = p.attacker.type;
         return (type == UnitType::LineInfantry || type == UnitType::GuardInfantry) &&
                p.target.type == UnitType::LightInfantry &&
                p.target.formation == Formation::OpenOrder;
     }},
    {"Target routed", 2, [](P p) { return p.target.status == UnitStatus::Routed; }},
    {"Target shaken", 1,
     [](P p) { return p.target.status == UnitStatus::Shaken && !IsFieldGun(p.attacker.type); }},
    {"Cavalry against foot in covered ground", -2,
     [](P p) {
         return IsLineHorse(p.attacker) && IsFoot(p.target.type) &&
                p.game.battle.terrainDefence > 2;
     }},
    {"British line", 2,
     [](P p) {
         return p.attackerArmy == kBritish && IsInfantry(p.attacker.type) &&
                p.attacker.formation == Formation::Line;
     }},
    {"Bombardment of formed troops", 4,
     [](P p) {
         return p.game.state.bombardmentMode != 0 && p.target.formation != Formation::NoFormation;
     }},
    {"Combined arms", 1, [](P p) { return p.game.battle.combinedArms > 0; }},
    {"Out of ammunition", -1, [](P p) { return IsOutOfAmmunition(p.attacker); }},
    {"Disrupted", -1, [](P p) { return p.attacker.disrupted != 0; }},
    {"Snow", -2, [](P p) { return IsHamperedBySnow(p.game, p.attacker); }},
    {"No Action Points left", -1, [](P p) { return p.attacker.actionPoints == 0; }},
    {"Ground that gives no way", -20, StandsInBlockedArea},
    {"Draw card", -1,
     [](P p) { return p.game.state.strikeDrawCard == 1 && p.attackerArmy != kAustrian; }},
    {"Draw card", 1,
     [](P p) {
         return p.game.state.strikeDrawCard == 1 && p.attackerArmy == kAustrian &&
                (IsFieldGun(p.attacker.type) || IsMountedOrMortar(p.attacker.type));
     }},
};

bool Counts(const CardBonus& bonus, const Pairing& pair) {
    const bool barrage = pair.game.state.bombardmentMode != 0;
    return bonus.army == pair.attackerArmy && bonus.card == pair.game.options.cardEffect &&
           bonus.attackers.Holds(pair.attacker.type) &&
           (bonus.fire == CardFire::Any || (bonus.fire == CardFire::Barrage) == barrage);
}

void AddModifiers(StrikeLedger& ledger, const Pairing& pair) {
    for (const StrikeModifier& modifier : kAttackModifiers) {
        if (modifier.applies(pair)) ledger.AddFlat(modifier.name, modifier.points);
    }
    for (const CardBonus& bonus : kCardBonuses) {
        if (Counts(bonus, pair)) ledger.AddFlat("Tactical card", bonus.points);
    }
    if (pair.attacker.formation != Formation::OpenOrder) {
        ledger.AddFlat("Terrain", -pair.game.battle.terrainDefence);
    }
    if (IsLineHorse(pair.attacker) && pair.target.formation == Formation::Square) {
        ledger.AddAfterCap("Square against cavalry", -25);
    }
}

}  // namespace

StrikeLedger ComputeAttackStrike(Game& game) {
    StrikeLedger ledger;
    const Pairing pair(game);
    AddSize(ledger, pair);
    AddSupport(ledger, game);
    AddOrder(ledger, pair.attacker);
    AddFormation(ledger, kAttackFormations, pair.attacker);
    AddBase(ledger, pair);
    game.state.selectedCell = pair.attacker.Place();
    CensusEnemy(game);
    AddModifiers(ledger, pair);
    if (IsHamperedByDark(game, pair.attacker)) ledger.Halve("Poor visibility");
    if (IsCounterCharged(pair)) game.battle.counterCharged = 1;
    game.battle.tacticalAdvantage =
        static_cast<int>(game.battle.tacticalAdvantage * ledger.CurrentScale());
    game.battle.attackStrike = ledger.Value();
    return ledger;
}

}  // namespace varnstride
