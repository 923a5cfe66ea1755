#include "battle/card_on_unit.h"

#include "actions/courier.h"
#include "actions/supply_and_rally.h"
#include "model/terrain.h"

namespace varnstride {
namespace {

CardUse RefuseCard(Game& game, int code) {
    Alert(game);
    ShowCourier(game, code);
    return CardUse::Refused;
}

CardUse SpendInVain(Game& game, int code) {
    ShowCourier(game, code);
    return CardUse::Spent;
}

bool IsAtFullStrength(const Unit& unit) {
    constexpr int kFull = 9;
    constexpr int kFullLightInfantry = 5;
    return unit.strength == kFull ||
           (unit.strength == kFullLightInfantry && unit.type == UnitType::LightInfantry);
}

CardUse AddStrength(Game& game, bool isEligible, int refusal) {
    Unit& unit = game.InHand();
    if (IsAtFullStrength(unit)) return RefuseCard(game, 292);
    if (!isEligible) return RefuseCard(game, refusal);
    ++unit.strength;
    ++unit.initialStrength;
    return CardUse::Spent;
}

}  // namespace

CardUse RouseUnit(Game& game) {
    ++game.InHand().actionPoints;
    game.InHand().outOfCommand = 0;
    return CardUse::Spent;
}

// Guard cavalry is held back for the day's last blow; on engineers and leaders the card is lost.
CardUse RouseCavalry(Game& game) {
    const UnitType type = game.InHand().type;
    if (IsInfantry(type) || type > UnitType::CossackCavalry) return RefuseCard(game, 234);
    if (type == UnitType::Engineers || type == UnitType::Leader) return CardUse::Spent;
    return RouseUnit(game);
}

CardUse RouseBattery(Game& game) {
    if (game.InHand().type != UnitType::FieldArtillery) return RefuseCard(game, 235);
    ++game.InHand().actionPoints;
    return CardUse::Spent;
}

CardUse Reinforce(Game& game) {
    const UnitType type = game.InHand().type;
    return AddStrength(game, type < UnitType::MortarArtillery && type != UnitType::Leader, 236);
}

CardUse ReinforceInfantry(Game& game) {
    return AddStrength(game, IsInfantry(game.InHand().type), 277);
}

CardUse RallyByCard(Game& game) {
    if (game.InHand().status > UnitStatus::Shaken) return SpendInVain(game, 237);
    RallyOneStep(game.InHand());
    return CardUse::Spent;
}

CardUse FormHastySquare(Game& game) {
    constexpr int kNoRoomForSquare = 3;  // slots of dense ground
    if (!IsInfantry(game.InHand().type)) return RefuseCard(game, 254);
    if (CountDenseSlots(game) >= kNoRoomForSquare) return SpendInVain(game, 13);
    game.InHand().formation = Formation::Square;
    return CardUse::Spent;
}

CardUse SendOutSkirmishers(Game& game) {
    if (game.InHand().type > UnitType::LightInfantry) return RefuseCard(game, 233);
    game.InHand().formation = Formation::OpenOrder;
    return CardUse::Spent;
}

// Rockets take the card and lose nothing.
CardUse LoseAmmunition(Game& game) {
    Unit& unit = game.InHand();
    if (unit.type == UnitType::Leader || IsMountedOrMortar(unit.type)) return RefuseCard(game, 232);
    if (unit.type != UnitType::RocketArtillery) unit.ammunition = 0;
    return CardUse::Spent;
}

CardUse LoseActionPoints(Game& game) {
    int& points = game.InHand().actionPoints;
    if (points == 0) return CardUse::Refused;
    points = 0;
    return CardUse::Spent;
}

}  // namespace varnstride
