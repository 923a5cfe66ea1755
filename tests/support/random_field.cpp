#include "support/random_field.h"

#include <algorithm>
#include <iterator>

namespace varnstride {
namespace {

class Chance {
 public:
    explicit Chance(std::mt19937& engine) : engine_(engine) {}
    int From(int first, int last) {
        return first + static_cast<int>(engine_() % static_cast<unsigned>(last - first + 1));
    }
    bool Of(int percent) { return From(1, 100) <= percent; }
    std::mt19937& Engine() { return engine_; }

 private:
    std::mt19937& engine_;
};

AreaLink RandomLink(Chance& chance, int from, int to, int areas) {
    return {from,
            to,
            static_cast<FirstStep>(chance.From(0, 3)),
            static_cast<SecondStep>(chance.From(0, 2)),
            chance.Of(40) ? chance.From(1, areas) : 0,
            chance.Of(10)};
}

std::vector<AreaLink> RandomLinks(Chance& chance, int areas) {
    std::vector<AreaLink> links;
    for (int from = 1; from <= areas; ++from) {
        for (int to = 1; to <= areas; ++to) {
            if (chance.Of(25)) links.push_back(RandomLink(chance, from, to, areas));
        }
    }
    return links;
}

// Out of order, and with some bounds gone, so that areas of one number overlap.
void Disorder(Chance& chance, std::vector<AreaRow>& rows) {
    std::shuffle(rows.begin(), rows.end(), chance.Engine());
    for (AreaRow& row : rows) {
        if (chance.Of(15)) row.xAbove.reset();
        if (chance.Of(15)) row.xBelow.reset();
        if (chance.Of(15)) row.yAbove.reset();
        if (chance.Of(15)) row.yBelow.reset();
    }
}

Unit RandomUnit(Chance& chance, int gameTurn) {
    Unit unit = MakeUnit(static_cast<UnitType>(chance.From(1, 18)));
    unit.status = static_cast<UnitStatus>(chance.From(1, 4));
    unit.formation = static_cast<Formation>(chance.From(0, 6));
    unit.actionPoints = chance.From(0, 2);
    unit.arrivalTurn = chance.From(0, gameTurn);
    if (chance.Of(5)) unit.initialStrength = 0;
    return unit;
}

int RandomArmy(Chance& chance, Side side, int mapNumber) {
    if (side == Side::French) return kFrench;
    if (chance.Of(5)) return kAustrian;
    const bool british = mapNumber == 7 ? chance.Of(50) : mapNumber < 3;
    return british ? kBritish : kPrussian;
}

// A record of somebody who died there, has left, or has yet to come.
void AddAbsent(Chance& chance, Field& field, int army, Cell cell) {
    Unit unit = RandomUnit(chance, field.game.state.gameTurn);
    unit.SetPlace(cell);
    switch (chance.From(0, 2)) {
        case 0: unit.strength = 0; break;
        case 1: unit.arrivalTurn = kLeftByExit; break;
        default: unit.arrivalTurn = field.game.state.gameTurn + chance.From(1, 4); break;
    }
    field.game.At(field.NextRecord(army)) = unit;
}

void Populate(Chance& chance, Field& field) {
    for (int ordinal = 1; ordinal <= field.game.atlas->AreaCount(); ++ordinal) {
        for (Side side : {Side::French, Side::Allied}) {
            for (int slot = 1; slot <= kSlotsPerSide; ++slot) {
                const int army = RandomArmy(chance, side, field.game.header.mapNumber);
                if (chance.Of(15)) {
                    AddAbsent(chance, field, army, field.SlotCell(side, ordinal, slot));
                }
                if (!chance.Of(45)) continue;
                field.Add(army, ordinal, slot, RandomUnit(chance, field.game.state.gameTurn));
            }
        }
    }
}

}  // namespace

std::unique_ptr<Field> MakeRandomField(std::mt19937& engine) {
    Chance chance(engine);
    FieldPlan plan;
    plan.mapNumber = kPlayedMaps[chance.From(0, static_cast<int>(std::size(kPlayedMaps)) - 1)];
    plan.columns = chance.From(3, 6);
    plan.rows = chance.From(2, 5);
    plan.links = RandomLinks(chance, plan.columns * plan.rows);
    plan.redraw = [&](std::vector<AreaRow>& rows) { Disorder(chance, rows); };
    plan.paint = [&](Cell, MapCell& cell) {
        if (chance.Of(3)) cell.areaId = 0;
        cell.shade = chance.From(0, 1);
    };
    auto field = std::make_unique<Field>(plan);
    Populate(chance, *field);
    return field;
}

}  // namespace varnstride
