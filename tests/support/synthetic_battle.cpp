#include "support/synthetic_battle.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <string_view>
#include <vector>

#include "model/record_fields.h"
#include "model/tile_sheets.h"
#include "support/random_field.h"

namespace varnstride {
namespace {

constexpr int kColumns = 15;
constexpr int kRows = 7;
constexpr int kAreas = kColumns * kRows;  // as many as the largest battlefield has
constexpr int kAreaHeight = 13;
constexpr int kLinksPerArea = 32;

// In the proportions of the battlefields.
struct LinkKind {
    int share;
    FirstStep firstStep;
    SecondStep secondStep;
};
constexpr LinkKind kLinkKinds[] = {
    {10, FirstStep::Open, SecondStep::None},      {3, FirstStep::FootOnly, SecondStep::None},
    {2, FirstStep::FootOrRoad, SecondStep::None}, {12, FirstStep::None, SecondStep::Open},
    {5, FirstStep::None, SecondStep::RoadOnly},
};
static_assert(kLinksPerArea == 10 + 3 + 2 + 12 + 5);

std::vector<AreaLink> Links(std::mt19937& chance) {
    std::vector<AreaLink> links;
    std::vector<int> targets(kAreas);
    std::iota(targets.begin(), targets.end(), 1);
    for (int from = 1; from <= kAreas; ++from) {
        std::shuffle(targets.begin(), targets.end(), chance);
        auto target = targets.begin();
        for (const LinkKind& kind : kLinkKinds) {
            for (int link = 0; link < kind.share; ++link) {
                links.push_back({from, *target++, kind.firstStep, kind.secondStep, 0, false});
            }
        }
    }
    return links;
}

// Every record of both armies is used, and the slots are held by records out of order.
void FillArmies(std::mt19937& chance, Field& field) {
    for (int army : {kFrench, kPrussian}) {
        std::vector<Cell> slots;
        for (int ordinal = 1; ordinal <= kAreas; ++ordinal) {
            for (int slot = 1; slot <= kSlotsPerSide; ++slot) {
                slots.push_back(field.SlotCell(SideOf(army), ordinal, slot));
            }
        }
        slots.resize(kUnitsPerArmy - 1, kNoCell);
        std::shuffle(slots.begin(), slots.end(), chance);
        for (Cell slot : slots) {
            Unit unit = MakeUnit(UnitType::HorseArtillery);
            unit.actionPoints = 2;
            if (slot == kNoCell) unit.arrivalTurn = field.game.state.gameTurn + 1;
            field.AddAt(army, slot, unit);
        }
    }
}

bool IsFree(std::string_view field) {
    constexpr std::string_view kFree[] = {
        "shade",           "selected",         "highlight",        "occupantMirror",
        "previousX",       "previousY",        "groupId",          "fixedUntilTurn",
        "outOfCommand",    "visible",          "labelStyleRow",    "labelStyleBlock",
        "leaderSound",     "attackedFlag",     "commandPoints",    "frenchLossSP",
        "alliedLossSP",    "frenchLossPoints", "alliedLossPoints", "smokeOn",
        "minorDefeatLimit"};
    return field.starts_with("reserved") ||
           std::find(std::begin(kFree), std::end(kFree), field) != std::end(kFree);
}

class Scribbler {
 public:
    explicit Scribbler(std::mt19937& engine) : engine_(engine) {}

    int Below(int bound) { return static_cast<int>(engine_() % static_cast<unsigned>(bound)); }

    template <typename Record>
    void FillRecord(Record& record) {
        RecordFields<Record>::ForEach([&](const char* name, auto field, auto... width) {
            if constexpr (sizeof...(width) == 0) {
                FillBytes(record.*field);
            } else if (IsFree(name)) {
                record.*field = NumberOf(width...);
            }
        });
    }
    template <typename Records>
    void FillRecords(Records& records) {
        for (auto& record : records)
            FillRecord(record);
    }
    template <typename Item, std::size_t Count>
    void FillBytes(std::array<Item, Count>& items) {
        for (Item& item : items)
            item = static_cast<Item>(engine_());
        constexpr bool kIsText = std::is_same_v<Item, char>;
        if (kIsText) items[engine_() % Count] = Item{};
    }

 private:
    struct AnyNumber {
        unsigned bits;
        bool narrow;
        operator int() const {
            return narrow ? static_cast<std::int16_t>(bits) : static_cast<std::int32_t>(bits);
        }
        template <typename Enumeration>
        requires std::is_enum_v<Enumeration>
        operator Enumeration() const { return static_cast<Enumeration>(int{*this}); }
    };
    AnyNumber NumberOf(Width width) {
        return {static_cast<unsigned>(engine_()), width == Width::Int16};
    }

    std::mt19937& engine_;
};

void ScribbleOverMap(Scribbler& scribbler, std::vector<MapCell>& cells) {
    scribbler.FillRecords(cells);
    for (MapCell& cell : cells) {
        cell.terrainTile = scribbler.Below(kTerrainTiles);
        cell.groundTile = scribbler.Below(kGroundTiles);
        cell.overlayTile = scribbler.Below(kOverlayTiles);
        cell.moveMark = scribbler.Below(kLossMarks);
        cell.objective = scribbler.Below(kObjectiveTiles);
        cell.roadTile = scribbler.Below(kRoadTiles);
        cell.featureTile = scribbler.Below(kFeatureTiles);
        cell.labelIndex = scribbler.Below(kLabelCount);
        cell.borderTile = scribbler.Below(kBorderTiles);
    }
}

void ScribbleOver(Scribbler& scribbler, BattleFile& file) {
    ScribbleOverMap(scribbler, file.cells);
    scribbler.FillBytes(file.sizeReserved);
    scribbler.FillBytes(file.countReserved);
    scribbler.FillRecords(file.labels);
    scribbler.FillRecord(file.header);
    scribbler.FillRecord(file.loss);
    scribbler.FillRecords(file.armies);
    scribbler.FillRecord(file.options);
    for (ArmyUnits& army : file.units)
        scribbler.FillRecords(army);
    for (std::int16_t& roll : file.turnLog.rollLog)
        roll = static_cast<std::int16_t>(scribbler.Below(7));
    file.turnLog.reserved = scribbler.Below(1000);
    file.armies[kFrench].hasGroupAssignments = scribbler.Below(2);
    if (file.armies[kFrench].hasGroupAssignments == 1) scribbler.FillRecords(file.briefings);
}

std::unique_ptr<Field> MakeLargeField(std::mt19937& chance) {
    FieldPlan plan;
    plan.columns = kColumns;
    plan.rows = kRows;
    plan.areaHeight = kAreaHeight;
    plan.links = Links(chance);
    return std::make_unique<Field>(plan);
}

}  // namespace

std::unique_ptr<Field> MakeLargeMelee() {
    constexpr int kUnitsASide = 300;
    constexpr UnitType kArms[] = {UnitType::LineInfantry, UnitType::LightInfantry,
                                  UnitType::LineInfantry, UnitType::LightCavalry,
                                  UnitType::FieldArtillery};
    std::mt19937 chance(1815);
    auto field = MakeLargeField(chance);
    for (int army : {kFrench, kPrussian}) {
        for (int unit = 0; unit < kUnitsASide; ++unit) {
            const UnitType arm = kArms[static_cast<std::size_t>(unit) % std::size(kArms)];
            field->Add(army, unit / kSlotsPerSide + 1, unit % kSlotsPerSide + 1, MakeUnit(arm));
        }
    }
    MakeSavable(field->game);
    return field;
}

std::unique_ptr<Field> MakeLargeBattle() {
    std::mt19937 chance(1815);
    auto field = MakeLargeField(chance);
    FillArmies(chance, *field);
    field->game.state.currentUnit = 1;
    field->game.state.roadMover = true;
    field->game.turnLog.advanceDirection = 3;
    return field;
}

void MakeSavable(Game& game) {
    game.header.firstPlayer = game.header.savedArmy = kFrench;
    game.Army(kFrench).present = 1;
    game.header.savedTurn = 1;
    game.header.lastTurn = 9;
    game.header.visibility = 20;
    game.time = {.clockField = 930, .duskHour = 21, .dawnHour = 4};
    game.turnLog.advanceDirection = 1;
}

RandomBattle MakeRandomBattle(std::mt19937& engine) {
    RandomBattle battle;
    battle.field = MakeRandomField(engine);
    Game& game = battle.field->game;
    MakeSavable(game);
    game.header.savedTurn = game.state.gameTurn;
    battle.file = TakeFromGame(game);
    Scribbler scribbler(engine);
    ScribbleOver(scribbler, battle.file);
    return battle;
}

}  // namespace varnstride
