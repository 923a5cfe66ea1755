#include "battle/battle_result.h"

#include <algorithm>

#include "actions/courier.h"
#include "battle/pairing.h"
#include "battle/result_lines.h"
#include "model/dice.h"
#include "model/reach.h"
#include "resources/army_names.h"
#include "resources/dialog_ids.h"
#include "resources/type_names.h"

namespace varnstride {
namespace {

constexpr Sound kVolleys[] = {Sound::MusketFire3, Sound::MusketFire4, Sound::MusketFire5,
                              Sound::MusketFire6, Sound::MusketFire7, Sound::MusketFire8};
constexpr Sound kMelees[] = {Sound::CavalryFightingA, Sound::CavalryFightingB,
                             Sound::CavalryFightingC};
constexpr Sound kSalvoes[] = {Sound::ArtilleryFire5, Sound::ArtilleryFire2, Sound::ArtilleryFire3,
                              Sound::ArtilleryFire4, Sound::ArtilleryFire1};

void PlayOneOf(Game& game, std::span<const Sound> sounds) {
    const int drawn = Die(game, static_cast<int>(sounds.size()));
    game.person->Play(sounds[static_cast<std::size_t>(drawn)]);
}

void PlayGuns(Game& game) {
    constexpr int kReport = 600;  // milliseconds
    if (game.battle.computerBarrage != 1) {
        game.person->Play(Sound::ArtFire);
        if (game.settings.noDelays != 1) game.person->Pause(kReport);
    }
    PlayOneOf(game, kSalvoes);
}

void PlayArm(Game& game, const Unit& attacker) {
    switch (attacker.type) {
        case UnitType::LineInfantry: PlayOneOf(game, kVolleys); break;
        case UnitType::GuardInfantry:
        case UnitType::Engineers: game.person->Play(Sound::MusketFire1); break;
        case UnitType::DragoonsDismounted: game.person->Play(Sound::MusketFire2); break;
        case UnitType::LightInfantry: game.person->Play(Sound::SkirmishMusketFire2); break;
        case UnitType::LightDragoonsDismounted:
            game.person->Play(Sound::SkirmishMusketFire1);
            break;
        case UnitType::HorseArtillery:
        case UnitType::FieldArtillery: PlayGuns(game); break;
        default: break;
    }
}

AttackReport ReportOf(const Game& game) {
    const BattleState& battle = game.battle;
    return {.attacker = game.InHandId(),
            .target = TargetId(game),
            .attackerName = game.InHand().name.data(),
            .targetName = Target(game).name.data(),
            .attackStrike = battle.attackStrike,
            .defenceStrike = battle.defenceStrike,
            .defenderHit = battle.defenderHit,
            .attackerHit = battle.attackerHit,
            .defenderLoss = battle.defenderLoss,
            .attackerLoss = battle.attackerLoss,
            .attackTerms = battle.attackTerms,
            .defenceTerms = battle.defenceTerms,
            .lines = ResultLines(game)};
}

std::string DefenderLossLine(const Game& game) {
    constexpr int kEliminated = 6;
    if (game.battle.resultMark == kEliminated || Target(game).strength == 0) {
        return "Defender Eliminated";
    }
    return " Defender Strength Loss = " + std::to_string(game.battle.defenderLoss);
}

std::string AttackerLossLine(const Game& game) {
    if (game.InHand().strength == 0) return "Attacker Eliminated";
    return " Attacker Strength Loss = " + std::to_string(game.battle.attackerLoss);
}

int TypeNumber(const Unit& unit) {
    return static_cast<int>(unit.type);
}

Dialog ResultBox(const Game& game, const AttackReport& report) {
    Dialog box{.templateId = kBattleResult};
    box.AddLabel(1042, report.targetName);
    box.AddLabel(1642, std::string(ArmyName(report.target.army)));
    box.AddLabel(1404, std::string(TypeNameOf(TypeNumber(Target(game)))));
    box.AddLabel(1403, report.attackerName);
    box.AddLabel(1405, std::string(ArmyName(report.attacker.army)));
    box.AddLabel(1402, std::string(AttackerTypeNameOf(TypeNumber(game.InHand()))));
    box.AddLabel(1098, std::to_string(report.defenderHit));
    box.AddLabel(1641, std::to_string(report.attackerHit));
    box.AddLabel(1414, DefenderLossLine(game));
    box.AddLabel(1438, AttackerLossLine(game));
    box.AddList(1285, report.lines);
    box.AddButton(kOk, "OK");
    return box;
}

// Where the numbers of the target are shown: where it stands, or where it fell.
Cell PlaceOfTarget(const Game& game) {
    const Cell place = Target(game).Place();
    return place == kNoCell ? game.battle.targetPlace : place;
}

void ShowResultBox(Game& game) {
    Unit& attacker = game.InHand();
    attacker.actionPoints = 0;
    game.state.selectedCell = attacker.Place();
    ShadeReach(game);
    const bool survives = Target(game).strength > 0;
    const Cell place = PlaceOfTarget(game);
    if (survives) game.grid.At(place).highlight = 1;
    game.person->Redraw(View::CentreOnSelected);
    const AttackReport report = ReportOf(game);
    game.person->Fought(report);
    Dialog box = ResultBox(game, report);
    game.person->Ask(box);
    attacker.canMove = 0;
    game.grid.At(place).highlight = 0;
}

void ClearMarks(Game& game) {
    for (PlayCell& cell : game.grid.PlayCells()) {
        cell.moveMark = cell.selected = cell.highlight = 0;
    }
}

void ShowNumbersOnMap(Game& game) {
    constexpr int kHighestMark = 28;  // of the pictures
    BattleState& battle = game.battle;
    game.InHand().canMove = 0;
    battle.defenderHit = std::min(battle.defenderHit, kHighestMark);
    battle.attackerHit = std::min(battle.attackerHit, kHighestMark);
    game.person->Fought(ReportOf(game));
    PlayCell& target = game.grid.At(PlaceOfTarget(game));
    target.highlight = target.selected = 1;
    target.moveMark = battle.defenderHit;
    game.grid.At(game.InHand().Place()).moveMark = battle.attackerHit;
    game.person->Redraw(View::Map);
    if (game.settings.noDelays != 1) game.person->Pause(game.state.resultPause);
    ClearMarks(game);
}

}  // namespace

void PlayAttackSounds(Game& game) {
    if (game.settings.battleSounds != 1) return;
    const Unit& attacker = game.InHand();
    if (HasBayonetsFixed(attacker)) {
        game.person->Play(Sound::InfMelee2);
    } else if (!IsMounted(attacker.type)) {
        PlayArm(game, attacker);
    } else if (IsCharging(attacker)) {
        game.person->Play(Sound::CavCharge);
    } else {
        PlayOneOf(game, kMelees);
    }
}

void ReportAttack(Game& game) {
    if (game.settings.quickResults == 1) {
        ShowNumbersOnMap(game);
    } else {
        ShowResultBox(game);
    }
}

}  // namespace varnstride
