// The fields of a battle's whole-game state by name: one table for the dump, the comparison of two
// games, the hash and the `set` of the driver. A test counts the fields, so that none is forgotten.
//
// A visitor is called as visit(name, field) where field is a number, an enumeration, a truth value,
// a Cell or an array of these.
#pragma once

#include <type_traits>

#include "model/game.h"

namespace varnstride {

template <typename Record>
struct StateFields;

template <>
struct StateFields<GameState> {
    template <typename Visit>
    static constexpr void ForEach(Visit visit) {
        visit("turnPhase", &GameState::turnPhase);
        visit("gameMode", &GameState::gameMode);
        visit("computerPlays", &GameState::computerPlays);
        visit("currentArmy", &GameState::currentArmy);
        visit("turnCursor", &GameState::turnCursor);
        visit("endingArmy", &GameState::endingArmy);
        visit("endGameArmy", &GameState::endGameArmy);
        visit("gameTurn", &GameState::gameTurn);
        visit("clockHours", &GameState::clockHours);
        visit("frenchMorale", &GameState::frenchMorale);
        visit("alliedMorale", &GameState::alliedMorale);
        visit("victoryScore", &GameState::victoryScore);
        visit("objectivePoints", &GameState::objectivePoints);
        visit("armyRouted", &GameState::armyRouted);
        visit("unitLimit", &GameState::unitLimit);
        visit("mapReady", &GameState::mapReady);
        visit("turnLocked", &GameState::turnLocked);
        visit("programEnded", &GameState::programEnded);
        visit("fileChosen", &GameState::fileChosen);
        visit("fileNameKnown", &GameState::fileNameKnown);
        visit("existingBattle", &GameState::existingBattle);
        visit("stopClock5", &GameState::stopClock5);
        visit("stopClock10", &GameState::stopClock10);
        visit("stopClock15", &GameState::stopClock15);
        visit("stopClockSeconds", &GameState::stopClockSeconds);
        visit("resultPause", &GameState::resultPause);
        visit("chosenFrench", &GameState::chosenFrench);
        visit("chosenAllied", &GameState::chosenAllied);
        visit("currentUnit", &GameState::currentUnit);
        visit("selectedSlot", &GameState::selectedSlot);
        visit("selectedCell", &GameState::selectedCell);
        visit("targetCell", &GameState::targetCell);
        visit("roadMover", &GameState::roadMover);
        visit("rangeKeepLit", &GameState::rangeKeepLit);
        visit("ownAreaLeftOut", &GameState::ownAreaLeftOut);
        visit("bombardmentMode", &GameState::bombardmentMode);
        visit("localBattleMode", &GameState::localBattleMode);
        visit("battlePassRunning", &GameState::battlePassRunning);
        visit("miniMapShown", &GameState::miniMapShown);
        visit("mapScrolledByJump", &GameState::mapScrolledByJump);
        visit("commandRangeShown", &GameState::commandRangeShown);
        visit("currentAreaSlots", &GameState::currentAreaSlots);
        visit("ownSlotsFilled", &GameState::ownSlotsFilled);
        visit("ownSlotTaken", &GameState::ownSlotTaken);
        visit("closeSlots", &GameState::closeSlots);
        visit("moveCost", &GameState::moveCost);
        visit("moveResult", &GameState::moveResult);
        visit("moveBlocked", &GameState::moveBlocked);
        visit("stoppedShort", &GameState::stoppedShort);
        visit("twoStepMove", &GameState::twoStepMove);
        visit("retreatUnderFire", &GameState::retreatUnderFire);
        visit("placingReinforcement", &GameState::placingReinforcement);
        visit("leavingContact", &GameState::leavingContact);
        visit("undoTargetFormation", &GameState::undoTargetFormation);
        visit("reinforcementsArrived", &GameState::reinforcementsArrived);
        visit("detachSize", &GameState::detachSize);
        visit("pinLevel", &GameState::pinLevel);
        visit("advanceResultCell", &GameState::advanceResultCell);
        visit("eventCard", &GameState::eventCard);
        visit("noCloseEntry", &GameState::noCloseEntry);
        visit("haltBeforeContact", &GameState::haltBeforeContact);
        visit("alliesApart", &GameState::alliesApart);
        visit("steadyNerves", &GameState::steadyNerves);
        visit("steadyNervesArmy", &GameState::steadyNervesArmy);
        visit("strikeDrawCard", &GameState::strikeDrawCard);
        visit("cardShown", &GameState::cardShown);
        visit("bombardmentState", &GameState::bombardmentState);
        visit("opponentMark", &GameState::opponentMark);
        visit("opponentPosture", &GameState::opponentPosture);
        visit("rollCursor", &GameState::rollCursor);
        visit("rollLogActive", &GameState::rollLogActive);
        visit("courierCode", &GameState::courierCode);
        visit("musicTrack", &GameState::musicTrack);
        visit("musicSeconds", &GameState::musicSeconds);
        visit("unitsOff", &GameState::unitsOff);
        visit("combatBoxTimer", &GameState::combatBoxTimer);
        visit("highlightFixed", &GameState::highlightFixed);
        visit("highlightDisrupted", &GameState::highlightDisrupted);
        visit("highlightRouted", &GameState::highlightRouted);
        visit("highlightElite", &GameState::highlightElite);
        visit("highlightLeaders", &GameState::highlightLeaders);
        visit("highlightLowAmmo", &GameState::highlightLowAmmo);
        visit("highlightOutOfCommand", &GameState::highlightOutOfCommand);
    }
};

template <>
struct StateFields<UndoRecord> {
    template <typename Visit>
    static constexpr void ForEach(Visit visit) {
        visit("undoAvailable", &UndoRecord::undoAvailable);
        visit("undoKind", &UndoRecord::undoKind);
        visit("undoUnit", &UndoRecord::undoUnit);
        visit("undoCell", &UndoRecord::undoCell);
        visit("undoActionPoints", &UndoRecord::undoActionPoints);
        visit("undoFormation", &UndoRecord::undoFormation);
        visit("undoWasDisrupted", &UndoRecord::undoWasDisrupted);
    }
};

template <>
struct StateFields<Census> {
    template <typename Visit>
    static constexpr void ForEach(Visit visit) {
        visit("enemyCount", &Census::enemyCount);
        visit("enemyLineHere", &Census::enemyLineHere);
        visit("enemyCavalryHere", &Census::enemyCavalryHere);
        visit("enemyGunsHere", &Census::enemyGunsHere);
        visit("enemyLeaderHere", &Census::enemyLeaderHere);
        visit("enemyHeavyHere", &Census::enemyHeavyHere);
        visit("enemyRoutedHere", &Census::enemyRoutedHere);
        visit("censusSlotUnit", &Census::censusSlotUnit);
        visit("ownGuns", &Census::ownGuns);
        visit("ownCavalry", &Census::ownCavalry);
        visit("ownLine", &Census::ownLine);
        visit("ownLeaders", &Census::ownLeaders);
    }
};

// What the rules count as whole-game state though it is stored in other records.
template <typename AnyGame, typename Visit>
void ForEachStateFieldElsewhere(AnyGame& game, Visit visit) {
    visit("computerSide", game.settings.computerSide);
    visit("turnInProgress", game.turnLog.turnInProgress);
    visit("eventCardsOn", game.options.eventCardsOn);
    visit("cardInPlay", game.options.cardInPlay);
    visit("cardEffect", game.options.cardEffect);
}

// Calls visit(name, field) for every field of the whole-game state of a game, constant or not.
template <typename AnyGame, typename Visit>
void ForEachStateField(AnyGame& game, Visit visit) {
    const auto visitAll = [&]<typename Record>(Record& record) {
        StateFields<std::remove_const_t<Record>>::ForEach(
            [&](const char* name, auto member) { visit(name, record.*member); });
    };
    visitAll(game.state);
    visitAll(game.undo);
    visitAll(game.census);
    ForEachStateFieldElsewhere(game, visit);
}

}  // namespace varnstride
