#include "actions/detachments.h"

#include <charconv>

#include "actions/courier.h"
#include "actions/entry.h"
#include "actions/sides.h"
#include "model/areas.h"
#include "model/unit_rules.h"
#include "model/units_on_map.h"
#include "resources/dialog_ids.h"

namespace varnstride {
namespace {

constexpr int kSizeAsked = 1402;

// What must stay behind with the parent.
int LeastLeft(UnitType type) {
    if (type == UnitType::LineInfantry || type == UnitType::GuardInfantry) return 5;
    if (type == UnitType::LightInfantry || IsFieldGun(type)) return 1;
    return 3;
}

bool CanSplit(UnitType type) {
    return IsInfantry(type) || IsMountedOrMortar(type) || IsFieldGun(type) ||
           type == UnitType::LightDragoonsDismounted || type == UnitType::DragoonsDismounted;
}

bool GivesOnePointOnly(UnitType type) {
    return type == UnitType::LightInfantry || IsFieldGun(type);
}

int FirstFreeRecord(const Game& game) {
    for (int index : UnitIndices(game)) {
        if (game.At({game.state.currentArmy, index}).initialStrength == 0) return index;
    }
    return 0;
}

bool IsSizeAllowed(const Unit& unit, int size) {
    if (GivesOnePointOnly(unit.type) && size != 1) return false;
    return size > 0 && unit.strength - size >= LeastLeft(unit.type);
}

int NumberIn(const std::string& text) {
    int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

// The size that a person wants, 0 when he closes the dialog without one.
int AskForSize(Game& game) {
    const Unit& unit = game.InHand();
    for (;;) {
        Dialog dialog{.templateId = kDetachFormation, .caption = "Detach Formation"};
        dialog.AddEdit(kSizeAsked, "");
        dialog.AddLabel(1403, "1");
        dialog.AddLabel(1404, std::to_string(LargestDetachment(unit)));
        dialog.AddButton(kOk, "OK");
        game.person->Ask(dialog);
        if (dialog.closedBy != kOk) return 0;
        const int size = NumberIn(dialog.At(kSizeAsked).text);
        if (IsSizeAllowed(unit, size)) return size;
        game.person->Play(Sound::Ding);
        ShowCourier(game, 265);
    }
}

int SizeOfDetachment(Game& game) {
    if (IsHumanArmy(game)) return AskForSize(game);
    const Unit& unit = game.InHand();
    return unit.type == UnitType::MortarArtillery ? 0 : LargestDetachment(unit);
}

// The fields of the parent that its detachment shares; the others stay as the free record holds
// them.
void FillDetachment(Unit& detachment, const Unit& parent, int size) {
    detachment.actionPoints = parent.actionPoints;
    detachment.status = parent.status;
    detachment.activity = parent.activity;
    detachment.morale = parent.morale;
    detachment.maxMorale = parent.maxMorale;
    detachment.disrupted = parent.disrupted;
    detachment.ammunition = parent.ammunition;
    detachment.formation = parent.formation;
    detachment.outOfCommand = parent.outOfCommand;
    detachment.quality = parent.quality;
    detachment.groupId = parent.groupId;
    detachment.reservedG = parent.reservedG;
    detachment.inCommand = parent.inCommand;
    detachment.fixedUntilTurn = parent.fixedUntilTurn;
    detachment.weapon = parent.weapon;
    detachment.leadership = parent.leadership;
    detachment.type = parent.type;
    detachment.leaderSound = parent.leaderSound;
    detachment.name = parent.name;
    detachment.canMove = detachment.arrivalTurn = detachment.attackedFlag = 0;
    detachment.reservedH = detachment.reservedI = detachment.reservedJ = 0;
    detachment.visible = 1;
    detachment.strength = detachment.initialStrength = size;
}

void TakeBack(Game& game, UnitId parent, UnitId detachment) {
    const int size = game.At(detachment).strength;
    game.At(parent).strength += size;
    game.At(parent).initialStrength += size;
    FreeRecord(game, detachment);
}

// Brings the new unit in beside its parent.
void EnterBeside(Game& game, UnitId parent, UnitId detachment) {
    game.state.targetCell = game.At(parent).Place();
    game.state.currentUnit = detachment.index;
    game.state.selectedSlot = 1;
    MoveIntoTargetArea(game);
    if (game.state.moveResult == 0) TakeBack(game, parent, detachment);
    game.state.currentUnit = parent.index;
}

struct MilitiaPlace {
    int army;
    int map;
    AreaSlots slots;
};

constexpr std::array<MilitiaPlace, 9> kMilitiaPlaces = {{
    {kFrench, 1, {{{11, 68}, {14, 68}, {18, 68}, {18, 65}, {15, 65}, {12, 65}}}},
    {kFrench, 2, {{{10, 38}, {6, 38}, {2, 39}, {11, 35}, {15, 34}, {14, 37}}}},
    {kFrench, 3, {{{27, 88}, {32, 88}, {36, 88}, {29, 83}, {32, 85}, {36, 86}}}},
    {kFrench, 4, {{{2, 57}, {2, 53}, {5, 56}, {6, 53}, {8, 56}, {10, 58}}}},
    {kFrench, 7, {{{37, 77}, {39, 75}, {42, 78}, {36, 69}, {39, 72}, {41, 70}}}},
    {kFrench, 8, {{{48, 68}, {45, 68}, {42, 68}, {43, 65}, {40, 66}, {38, 68}}}},
    {kPrussian, 3, {{{117, 21}, {112, 21}, {110, 19}, {114, 18}, {117, 16}, {117, 12}}}},
    {kPrussian, 4, {{{30, 12}, {32, 14}, {32, 9}, {34, 7}, {37, 8}, {36, 11}}}},
    {kPrussian, 8, {{{19, 8}, {16, 8}, {16, 5}, {13, 2}, {16, 2}, {13, 5}}}},
}};

// A unit that stood outside the slots of the battlefield's areas could not be saved.
bool IsAreaOfMap(const Game& game, const AreaSlots& slots) {
    for (int ordinal = 1; ordinal <= game.atlas->AreaCount(); ++ordinal) {
        if (game.atlas->Row(ordinal).Slots() == slots) return true;
    }
    return false;
}

const MilitiaPlace* FindMilitiaPlace(const Game& game) {
    for (const MilitiaPlace& place : kMilitiaPlaces) {
        if (place.army == game.state.currentArmy && place.map == game.header.mapNumber &&
            IsAreaOfMap(game, place.slots)) {
            return &place;
        }
    }
    return nullptr;
}

int LastFreeRecord(const Game& game) {
    for (int index = game.state.unitLimit - 1; index > 0; --index) {
        if (game.At({game.state.currentArmy, index}).initialStrength == 0) return index;
    }
    return 0;
}

void FillMilitia(Unit& unit) {
    unit.actionPoints = 1;
    unit.status = UnitStatus::Ordered;
    unit.morale = unit.maxMorale = 9;
    unit.ammunition = kFullAmmunition;
    unit.canMove = 0;
    unit.arrivalTurn = 0;
    unit.formation = Formation::MarchColumn;
    unit.outOfCommand = 0;
    unit.quality = Quality::Militia;
    unit.reservedG = 3;
    unit.fixedUntilTurn = 1;
    unit.weapon = Weapon::Musket;
    unit.type = UnitType::LineInfantry;
    unit.leaderSound = 0;
    unit.name = {"Militia Unit"};
    unit.initialStrength = unit.strength = 1;
}

}  // namespace

int LargestDetachment(const Unit& unit) {
    if (!CanSplit(unit.type) || unit.strength <= LeastLeft(unit.type)) return 0;
    return GivesOnePointOnly(unit.type) ? 1 : unit.strength - LeastLeft(unit.type);
}

void DetachUnit(Game& game) {
    const UnitId parent = game.InHandId();
    const UnitId detachment{parent.army, FirstFreeRecord(game)};
    game.state.detachSize = 0;
    if (!detachment) {
        if (IsHumanArmy(game)) ShowCourier(game, 53);
        return;
    }
    game.state.detachSize = SizeOfDetachment(game);
    if (game.state.detachSize == 0) return;
    FillDetachment(game.At(detachment), game.At(parent), game.state.detachSize);
    game.At(parent).strength -= game.state.detachSize;
    game.At(parent).initialStrength -= game.state.detachSize;
    EnterBeside(game, parent, detachment);
    game.undo.undoAvailable = 0;
    if (game.header.fogNone == 1) game.person->Redraw(View::CentreOnSelected);
    game.person->Play(Sound::DetachFromGroup);
}

void JoinUnits(Game& game, UnitId other) {
    Unit& unit = game.InHand();
    Unit& joined = game.At(other);
    if (unit.groupId != joined.groupId || unit.type != joined.type) {
        ReclaimSlot(game, other);
        ShowCourier(game, 52);
        game.person->Play(Sound::Ding);
        return;
    }
    --game.ArmyInPlay().commandPoints;
    unit.strength += joined.strength;
    const auto averaged = [sum = unit.strength, part = joined.strength](int own, int others) {
        return (own * sum + others * part) / (sum + part);
    };
    unit.morale = averaged(unit.morale, joined.morale);
    unit.initialStrength += joined.initialStrength;
    unit.ammunition = averaged(unit.ammunition, joined.ammunition);
    unit.actionPoints = joined.actionPoints;
    if (joined.disrupted != 0) unit.disrupted = 1;
    FreeRecord(game, other);
    const Formation formation = unit.formation;
    RecomputeStatus(unit);
    unit.formation = formation;
    game.state.selectedCell = unit.Place();
    LoadOwnSlots(game);
    CloseUpArea(game);
    game.undo.undoAvailable = 0;
    game.person->Play(Sound::AttachtoGroup);
}

void RaiseMilitia(Game& game) {
    const MilitiaPlace* place = FindMilitiaPlace(game);
    const int index = LastFreeRecord(game);
    if (place == nullptr || index == 0) return;
    const int unitInHand = game.state.currentUnit;
    const Unit freeRecord = game.At({game.state.currentArmy, index});
    game.state.currentUnit = index;
    game.state.selectedSlot = 1;
    FillMilitia(game.InHand());
    EnterArea(game, place->slots);
    if (game.state.moveResult == 0) {
        game.InHand() = freeRecord;
        game.state.currentUnit = unitInHand;
        return;
    }
    game.state.selectedCell = game.InHand().Place();
}

void SwapUnits(Game& game, UnitId one, UnitId other) {
    const Cell place = game.At(one).Place();
    const Cell otherPlace = game.At(other).Place();
    PlaceUnit(game, one, otherPlace);
    PlaceUnit(game, other, place);
    --game.ArmyInPlay().commandPoints;
}

}  // namespace varnstride
