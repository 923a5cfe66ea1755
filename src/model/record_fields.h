// The fields of every stored record by name, in the order and width in which files hold them. One
// list serves the reader and writer of files, the dump, the comparison of two states and the
// decompiler, so that they cannot disagree.
//
// A visitor is called as visit(name, member pointer, width) for whole numbers and enumerations,
// and as visit(name, member pointer) for texts and reserved bytes.
#pragma once

#include "model/army.h"
#include "model/file_blocks.h"
#include "model/grid.h"
#include "model/unit.h"

namespace varnstride {

enum class Width { Int16 = 2, Int32 = 4 };

template <typename Record>
struct RecordFields;

template <>
struct RecordFields<MapCell> {
    template <typename Visit>
    static constexpr void ForEach(Visit visit) {
        visit("occupant", &MapCell::occupant, Width::Int32);
        visit("terrainTile", &MapCell::terrainTile, Width::Int32);
        visit("groundTile", &MapCell::groundTile, Width::Int32);
        visit("overlayTile", &MapCell::overlayTile, Width::Int32);
        visit("shade", &MapCell::shade, Width::Int32);
        visit("moveMark", &MapCell::moveMark, Width::Int32);
        visit("selected", &MapCell::selected, Width::Int32);
        visit("highlight", &MapCell::highlight, Width::Int32);
        visit("objective", &MapCell::objective, Width::Int32);
        visit("areaId", &MapCell::areaId, Width::Int32);
        visit("occupantMirror", &MapCell::occupantMirror, Width::Int32);
        visit("roadTile", &MapCell::roadTile, Width::Int32);
        visit("featureTile", &MapCell::featureTile, Width::Int32);
        visit("labelIndex", &MapCell::labelIndex, Width::Int32);
        visit("borderTile", &MapCell::borderTile, Width::Int32);
    }
};

template <>
struct RecordFields<MapLabel> {
    template <typename Visit>
    static constexpr void ForEach(Visit visit) {
        visit("labelText", &MapLabel::labelText);
        visit("labelStyleRow", &MapLabel::labelStyleRow, Width::Int16);
        visit("labelStyleBlock", &MapLabel::labelStyleBlock, Width::Int16);
        visit("reserved", &MapLabel::reserved, Width::Int16);
    }
};

template <>
struct RecordFields<ScenarioHeader> {
    template <typename Visit>
    static constexpr void ForEach(Visit visit) {
        visit("visibility", &ScenarioHeader::visibility, Width::Int16);
        visit("lastTurn", &ScenarioHeader::lastTurn, Width::Int16);
        visit("firstPlayer", &ScenarioHeader::firstPlayer, Width::Int16);
        visit("savedArmy", &ScenarioHeader::savedArmy, Width::Int16);
        visit("savedTurn", &ScenarioHeader::savedTurn, Width::Int16);
        visit("passMode", &ScenarioHeader::passMode, Width::Int16);
        visit("majorDefeatLimit", &ScenarioHeader::majorDefeatLimit, Width::Int16);
        visit("minorDefeatLimit", &ScenarioHeader::minorDefeatLimit, Width::Int16);
        visit("minorVictoryLimit", &ScenarioHeader::minorVictoryLimit, Width::Int16);
        visit("majorVictoryLimit", &ScenarioHeader::majorVictoryLimit, Width::Int16);
        visit("playByEmail", &ScenarioHeader::playByEmail, Width::Int16);
        visit("fogNone", &ScenarioHeader::fogNone, Width::Int16);
        visit("fogNormal", &ScenarioHeader::fogNormal, Width::Int16);
        visit("fogExtreme", &ScenarioHeader::fogExtreme, Width::Int16);
        visit("mapNumber", &ScenarioHeader::mapNumber, Width::Int16);
        visit("hardDifficulty", &ScenarioHeader::hardDifficulty, Width::Int16);
        visit("gameEnded", &ScenarioHeader::gameEnded, Width::Int16);
        visit("firstPassword", &ScenarioHeader::firstPassword);
        visit("secondPassword", &ScenarioHeader::secondPassword);
        visit("scenarioAuthor", &ScenarioHeader::scenarioAuthor);
        visit("scenarioDate", &ScenarioHeader::scenarioDate);
        visit("scenarioDescription", &ScenarioHeader::scenarioDescription);
    }
};

template <>
struct RecordFields<TimeBlock> {
    template <typename Visit>
    static constexpr void ForEach(Visit visit) {
        visit("clockField", &TimeBlock::clockField, Width::Int16);
        visit("duskHour", &TimeBlock::duskHour, Width::Int16);
        visit("dawnHour", &TimeBlock::dawnHour, Width::Int16);
        visit("rainChance", &TimeBlock::rainChance, Width::Int16);
        visit("cloudChance", &TimeBlock::cloudChance, Width::Int16);
        visit("windSpeed", &TimeBlock::windSpeed, Width::Int16);
        visit("fogHold", &TimeBlock::fogHold, Width::Int16);
    }
};

template <>
struct RecordFields<LossBlock> {
    template <typename Visit>
    static constexpr void ForEach(Visit visit) {
        visit("frenchLossSP", &LossBlock::frenchLossSP, Width::Int32);
        visit("alliedLossSP", &LossBlock::alliedLossSP, Width::Int32);
        visit("frenchLossPoints", &LossBlock::frenchLossPoints, Width::Int32);
        visit("alliedLossPoints", &LossBlock::alliedLossPoints, Width::Int32);
    }
};

template <>
struct RecordFields<ArmyRecord> {
    template <typename Visit>
    static constexpr void ForEach(Visit visit) {
        visit("present", &ArmyRecord::present, Width::Int16);
        visit("reservedArmyBytes", &ArmyRecord::reservedArmyBytes);
        visit("baseCommandPoints", &ArmyRecord::baseCommandPoints, Width::Int16);
        visit("commandControl", &ArmyRecord::commandControl, Width::Int16);
        visit("commandPoints", &ArmyRecord::commandPoints, Width::Int16);
        visit("hasGroupAssignments", &ArmyRecord::hasGroupAssignments, Width::Int16);
    }
};

template <>
struct RecordFields<BriefingRecord> {
    template <typename Visit>
    static constexpr void ForEach(Visit visit) {
        visit("reserved", &BriefingRecord::reserved, Width::Int16);
        visit("text", &BriefingRecord::text);
    }
};

template <>
struct RecordFields<Unit> {
    template <typename Visit>
    static constexpr void ForEach(Visit visit) {
        visit("x", &Unit::x, Width::Int32);
        visit("y", &Unit::y, Width::Int32);
        visit("reservedA", &Unit::reservedA, Width::Int32);
        visit("reservedB", &Unit::reservedB, Width::Int32);
        visit("previousX", &Unit::previousX, Width::Int32);
        visit("previousY", &Unit::previousY, Width::Int32);
        visit("reservedC", &Unit::reservedC, Width::Int32);
        visit("reservedD", &Unit::reservedD, Width::Int32);
        visit("reservedE", &Unit::reservedE, Width::Int32);
        visit("reservedF", &Unit::reservedF, Width::Int32);
        visit("type", &Unit::type, Width::Int16);
        visit("actionPoints", &Unit::actionPoints, Width::Int16);
        visit("strength", &Unit::strength, Width::Int16);
        visit("status", &Unit::status, Width::Int16);
        visit("formation", &Unit::formation, Width::Int16);
        visit("activity", &Unit::activity, Width::Int16);
        visit("quality", &Unit::quality, Width::Int16);
        visit("morale", &Unit::morale, Width::Int16);
        visit("outOfCommand", &Unit::outOfCommand, Width::Int16);
        visit("fixedUntilTurn", &Unit::fixedUntilTurn, Width::Int16);
        visit("arrivalTurn", &Unit::arrivalTurn, Width::Int16);
        visit("reservedG", &Unit::reservedG, Width::Int16);
        visit("weapon", &Unit::weapon, Width::Int16);
        visit("leadership", &Unit::leadership, Width::Int16);
        visit("canMove", &Unit::canMove, Width::Int16);
        visit("inCommand", &Unit::inCommand, Width::Int16);
        visit("disrupted", &Unit::disrupted, Width::Int16);
        visit("groupId", &Unit::groupId, Width::Int16);
        visit("initialStrength", &Unit::initialStrength, Width::Int16);
        visit("maxMorale", &Unit::maxMorale, Width::Int16);
        visit("arrivalChance", &Unit::arrivalChance, Width::Int16);
        visit("ammunition", &Unit::ammunition, Width::Int16);
        visit("attackedFlag", &Unit::attackedFlag, Width::Int16);
        visit("reservedH", &Unit::reservedH, Width::Int16);
        visit("reservedI", &Unit::reservedI, Width::Int16);
        visit("visible", &Unit::visible, Width::Int16);
        visit("leaderSound", &Unit::leaderSound, Width::Int16);
        visit("reservedJ", &Unit::reservedJ, Width::Int16);
        visit("name", &Unit::name);
        visit("reservedTail", &Unit::reservedTail);
    }
};

// The roll log, which stands before the reserved word, is one run of numbers that whoever reads or
// writes the block handles itself.
template <>
struct RecordFields<TurnLogBlock> {
    template <typename Visit>
    static constexpr void ForEach(Visit visit) {
        visit("turnInProgress", &TurnLogBlock::turnInProgress, Width::Int16);
        visit("advanceDirection", &TurnLogBlock::advanceDirection, Width::Int16);
        visit("reserved", &TurnLogBlock::reserved, Width::Int16);
    }
};

template <>
struct RecordFields<OptionBlock> {
    template <typename Visit>
    static constexpr void ForEach(Visit visit) {
        visit("reservedHead", &OptionBlock::reservedHead);
        visit("eventCardsOn", &OptionBlock::eventCardsOn, Width::Int16);
        visit("localInitiativeOn", &OptionBlock::localInitiativeOn, Width::Int16);
        visit("tacticalPlayOn", &OptionBlock::tacticalPlayOn, Width::Int16);
        visit("smokeOn", &OptionBlock::smokeOn, Width::Int16);
        visit("cardInPlay", &OptionBlock::cardInPlay, Width::Int16);
        visit("cardEffect", &OptionBlock::cardEffect, Width::Int16);
        visit("weatherCardCode", &OptionBlock::weatherCardCode, Width::Int16);
        visit("reservedTail", &OptionBlock::reservedTail, Width::Int16);
    }
};

template <>
struct RecordFields<Settings> {
    template <typename Visit>
    static constexpr void ForEach(Visit visit) {
        visit("cellOutline", &Settings::cellOutline, Width::Int16);
        visit("reservedA", &Settings::reservedA, Width::Int16);
        visit("hideUnitPanels", &Settings::hideUnitPanels, Width::Int16);
        visit("backgroundSound", &Settings::backgroundSound, Width::Int16);
        visit("battleSounds", &Settings::battleSounds, Width::Int16);
        visit("quickResults", &Settings::quickResults, Width::Int16);
        visit("computerSide", &Settings::computerSide, Width::Int16);
        visit("areaContours", &Settings::areaContours, Width::Int16);
        visit("showObjectives", &Settings::showObjectives, Width::Int16);
        visit("mapView", &Settings::mapView, Width::Int16);
        visit("reservedB", &Settings::reservedB, Width::Int16);
        visit("armyColours", &Settings::armyColours, Width::Int16);
        visit("autoSave", &Settings::autoSave, Width::Int16);
        visit("showUnitBases", &Settings::showUnitBases, Width::Int16);
        visit("edgeScroll", &Settings::edgeScroll, Width::Int16);
        visit("reservedC", &Settings::reservedC, Width::Int16);
        visit("showFormation", &Settings::showFormation, Width::Int16);
        visit("noDelays", &Settings::noDelays, Width::Int16);
        visit("reservedD", &Settings::reservedD, Width::Int16);
        visit("resultPauseSetting", &Settings::resultPauseSetting, Width::Int16);
        visit("backgroundMusic", &Settings::backgroundMusic, Width::Int16);
        visit("reservedE", &Settings::reservedE, Width::Int16);
        visit("healthBars", &Settings::healthBars, Width::Int16);
        visit("reservedF", &Settings::reservedF, Width::Int16);
        visit("reservedG", &Settings::reservedG, Width::Int16);
        visit("showLocations", &Settings::showLocations, Width::Int16);
        visit("reservedH", &Settings::reservedH, Width::Int16);
        visit("noReplay", &Settings::noReplay, Width::Int16);
        visit("noErrorAlert", &Settings::noErrorAlert, Width::Int16);
    }
};

}  // namespace varnstride
