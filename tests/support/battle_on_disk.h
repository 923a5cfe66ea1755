// A small battle that can be written to a file and opened again by other games: what tests of
// opening and saving start from. Three areas of 8 x 6 cells; the French move first.
#pragma once

#include <memory>
#include <string>

#include "files/battle_file.h"
#include "support/field.h"
#include "support/prepared_person.h"

namespace varnstride {

// A program of its own with a person of its own, as a second player has.
struct Program {
    explicit Program(const AtlasCatalogue& atlases) : game(atlases, person) {}

    PreparedPerson person;
    Game game;
};

class BattleOnDisk {
 public:
    BattleOnDisk();
    ~BattleOnDisk();
    BattleOnDisk(const BattleOnDisk&) = delete;
    BattleOnDisk& operator=(const BattleOnDisk&) = delete;

    // What the next file written holds; a test changes it first.
    Game& Content() { return field_.game; }
    Field& Ground() { return field_; }

    // Writes the content under that name in a folder of this test and gives the path.
    std::string Write(const std::string& name);
    std::string PathOf(const std::string& name) const;
    // A path at which a file stands that is no battle.
    std::string WriteGarbage(const std::string& name);
    BattleFile Read(const std::string& path) const;

    std::unique_ptr<Program> NewProgram() const;

 private:
    Field field_;
    std::string folder_;
};

// Everything that a game holds, to be compared as one value.
std::string Everything(const Game& game);

}  // namespace varnstride
