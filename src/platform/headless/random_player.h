// A player who orders whatever comes into his head, sensible, idle or forbidden: clicks, keys,
// panels, commands of the menus and the end of his turn. He never opens or saves a battle and never
// leaves the game. Random games look for rules that break; the signature hashes what they come to.
#pragma once

#include <string>
#include <vector>

#include "model/game.h"
#include "model/result.h"
#include "platform/headless/battle_input.h"
#include "platform/headless/random_person.h"

namespace varnstride {

class RandomPlayer {
 public:
    // The seed of his dice is also the time that seeds those of the rules.
    RandomPlayer(const AtlasCatalogue& atlases, unsigned seed);
    RandomPlayer(const RandomPlayer&) = delete;
    RandomPlayer& operator=(const RandomPlayer&) = delete;

    // Begins a scenario with random options.
    Result<Done> OpenScenario(const std::string& path);

    // One input while the battle waits for orders, one pass of the phase machine otherwise.
    void Step();
    // The battle is over or left.
    bool IsOver() const;

    // The script that repeats the game so far.
    std::string Script() const;

    Game& InPlay() { return game_; }

 private:
    // Answers the rules with a time of its own.
    class Player : public RandomPerson {
     public:
        Player(OwnDice& dice, unsigned time) : RandomPerson(dice), time_(time) {}
        unsigned Time() override { return time_; }

     private:
        unsigned time_;
    };

    BattleInput ThinkOfSomething();
    Cell OwnUnitCell();
    Cell EnemyUnitCell();
    Cell UnitCell(int army);
    Cell SlotCell();
    Cell Target();
    Cell AnyCell();
    void Note(const std::string& line);

    OwnDice dice_;
    Player person_;
    Game game_;
    std::vector<std::string> script_;
};

}  // namespace varnstride
