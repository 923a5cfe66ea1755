// The state of a battle as a whole: whose turn it is, what is in hand, what the last look-up of an
// area and the last move have left for the rules that follow. The state of one attack is in
// battle_state.h. Flags that a rule calls 0 or 1 are int where other values occur too.
#pragma once

#include <array>

#include "model/atlas.h"
#include "model/cell.h"
#include "model/unit.h"

namespace varnstride {

enum class TurnPhase {
    Orders = 0,
    BeginSide = 1,
    StartTurn = 2,
    EndTurn = 3,
    ResumeFile = 4,
    StartScreen = 5,
    HandOver = 6,
};

enum class GameMode { Local = 0, PlayByEmail = 1, Quit = 2 };

constexpr int kLeastUnitLimit = 200;
constexpr int kFirstWeatherCard = 205;  // event cards from here on are general events

struct GameState {
    // The turn.
    TurnPhase turnPhase = TurnPhase::StartScreen;
    GameMode gameMode = GameMode::Local;
    int computerPlays = 0;  // the running game's copy of Settings::computerSide
    int currentArmy = 0;
    int turnCursor = 0;   // army whose place in the playing order has been reached
    int endingArmy = 0;   // army in play when the end of its turn began
    int endGameArmy = 0;  // army whose reports are read after the end
    int gameTurn = 1;
    double clockHours = 0.0;  // hours + minutes / 100
    int frenchMorale = 100;   // percent
    int alliedMorale = 100;   // percent
    int victoryScore = 0;
    int objectivePoints = 0;
    int armyRouted = 0;
    int unitLimit = kLeastUnitLimit;  // loops over an army run from 1 to unitLimit - 1
    int mapReady = 0;
    int turnLocked = 0;         // no more orders
    bool programEnded = false;  // the player has left
    int fileChosen = 0;
    int fileNameKnown = 0;
    bool existingBattle = false;  // the battle in hand was opened from a saved file
    int stopClock5 = 0;
    int stopClock10 = 0;
    int stopClock15 = 0;
    int stopClockSeconds = 0;
    int resultPause = 0;        // milliseconds
    bool chosenFrench = false;  // the person took that side when the battle was new
    bool chosenAllied = false;

    // What is in hand.
    int currentUnit = 0;   // index in currentArmy; 0 none
    int selectedSlot = 0;  // 1 to 3; 0 none
    Cell selectedCell;
    Cell targetCell;
    bool roadMover = false;
    bool rangeKeepLit = false;
    bool ownAreaLeftOut = false;  // reach passes over the unit's own area
    int bombardmentMode = 0;
    int localBattleMode = 0;
    int battlePassRunning = 0;
    int miniMapShown = 0;
    int mapScrolledByJump = 0;
    int commandRangeShown = 0;

    // The last area looked up.
    AreaSlots currentAreaSlots{};
    int ownSlotsFilled = 0;  // 0 to 3
    std::array<bool, kSlotsPerSide> ownSlotTaken{};
    int closeSlots = 0;

    // The move.
    int moveCost = 0;
    int moveResult = 0;  // own slot taken, 1 to 3; 0 the unit did not go
    int moveBlocked = 0;
    int stoppedShort = 0;
    bool twoStepMove = false;
    int retreatUnderFire = 0;  // 1 falling back before an enemy, 2 a routed unit on the move
    bool placingReinforcement = false;
    bool leavingContact = false;
    int undoTargetFormation = 0;
    int reinforcementsArrived = 0;
    int detachSize = 0;
    int pinLevel = 0;
    Cell advanceResultCell;

    // Event cards and tactical cards.
    int eventCard = 0;
    bool noCloseEntry = false;
    bool haltBeforeContact = false;
    bool alliesApart = false;
    int steadyNerves = 0;
    int steadyNervesArmy = 0;  // army that drew the card
    int strikeDrawCard = 0;
    int cardShown = 0;

    // Weather, computer, log.
    int bombardmentState = 0;  // 0 nothing to tell, 1 fog gone, 2 told, 3 heavy rain
    int opponentMark = 0;
    int opponentPosture = 0;
    int rollCursor = 0;
    int rollLogActive = 0;
    int courierCode = 0;

    // Music.
    int musicTrack = 0;
    int musicSeconds = 0;

    // Map filters and options of this run.
    int unitsOff = 0;
    int combatBoxTimer = 0;
    int highlightFixed = 0;
    int highlightDisrupted = 0;
    int highlightRouted = 0;
    int highlightElite = 0;
    int highlightLeaders = 0;
    int highlightLowAmmo = 0;
    int highlightOutOfCommand = 0;
};

// The one-level note of a player's last order.
struct UndoRecord {
    int undoAvailable = 0;
    int undoKind = 0;  // 1 a move, 0 a formation change
    int undoUnit = 0;
    Cell undoCell;
    int undoActionPoints = 0;
    Formation undoFormation = Formation::Line;
    int undoWasDisrupted = 0;
};

// What a barrage or a Do Battle that waits for its area must give back. No file carries it: saving
// lays an aim down.
struct WaitingAttack {
    int heldUnit = 0;  // in hand before the order; 0 none
    UnitId gun;        // the one aimed; none while no gun is
    int gunActionPoints = 0;
};

// What the last census of an area found.
struct Census {
    int enemyCount = 0;
    int enemyLineHere = 0;
    int enemyCavalryHere = 0;
    int enemyGunsHere = 0;
    int enemyLeaderHere = 0;
    int enemyHeavyHere = 0;
    int enemyRoutedHere = 0;
    std::array<int, kSlotsPerSide> censusSlotUnit{};
    int ownGuns = 0;
    int ownCavalry = 0;
    int ownLine = 0;
    int ownLeaders = 0;
};

}  // namespace varnstride
