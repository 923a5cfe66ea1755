#include "actions/move_sound.h"

#include <vector>

#include "actions/top_bar.h"

namespace varnstride {
namespace {

bool Rides(const Unit& unit, UnitActivity activity) {
    return unit.activity == activity;
}

bool Charges(const Unit& unit) {
    return Rides(unit, UnitActivity::Charging) || Rides(unit, UnitActivity::CavalryAssault);
}

std::vector<Sound> SoundOfHorse(const Unit& unit, bool good, Sound charge, Sound goodSound,
                                Sound poorSound) {
    if (Charges(unit)) return {charge};
    if (!Rides(unit, UnitActivity::None)) return {};
    return {good ? goodSound : poorSound};
}

std::vector<Sound> SoundsOf(const Unit& unit, int army) {
    const bool good = unit.quality < Quality::Conscript;
    switch (unit.type) {
        case UnitType::LightInfantry: return {Sound::LightInfantry};
        case UnitType::LineInfantry:
            if (unit.weapon == Weapon::Sabre) return {};
            return {Sound::MIMove};
        case UnitType::GuardInfantry: return {good ? Sound::HeavyInfantryMarching : Sound::HIMove};
        case UnitType::LightDragoonsDismounted: return {Sound::SHIMove};
        case UnitType::Engineers: return {Sound::LMIMove};
        case UnitType::DragoonsDismounted:
            return {good ? Sound::HeavyInfantryMarching : Sound::HIMove, Sound::LMIMove};
        case UnitType::Leader:
            return {unit.leaderSound == 0 ? Sound::CommanderOnHorse : Sound::HeavyInfantryMarching};
        case UnitType::LightCavalry:
            return SoundOfHorse(unit, good, Sound::CavalryCharge1, Sound::LightCavalryGalloping,
                                Sound::LightCavalryGallop);
        case UnitType::Lancers:
            return SoundOfHorse(unit, good, Sound::CavalryCharge2, Sound::MCMove,
                                Sound::LightCavalryGallop);
        case UnitType::HeavyCavalry:
            return SoundOfHorse(unit, good, Sound::CavalryCharge2, Sound::HeavyCavalry,
                                Sound::HeavyCavalryTrot);
        case UnitType::MediumCavalry:
        case UnitType::CossackCavalry: return {Sound::EHCMove};
        case UnitType::HorseArtillery: return {Sound::WagonsHorses};
        case UnitType::FieldArtillery: return {Sound::WagonMovement};
        case UnitType::SupplyWagon:
            return {army == kFrench ? Sound::SupplyWagons : Sound::FootArtilleryMovement};
        default: return {};
    }
}

bool IsHeard(const Game& game) {
    return game.settings.battleSounds == 1 && game.state.bombardmentMode == 0 &&
           game.state.moveResult > 0;
}

}  // namespace

void PlayMoveSound(Game& game) {
    if (IsHeard(game)) {
        for (Sound sound : SoundsOf(game.InHand(), game.state.currentArmy)) {
            game.person->Play(sound);
        }
    }
    DrawTopBar(game);
}

void PlayReformingSound(Game& game) {
    if (!IsHeard(game)) return;
    const UnitType type = game.InHand().type;
    if (IsInfantry(type)) game.person->Play(Sound::InfMelee1);
    if (IsBetween(type, UnitType::LightCavalry, UnitType::CossackCavalry)) {
        game.person->Play(Sound::CavalryCharging);
    }
}

}  // namespace varnstride
