#include "platform/tiny_battle.h"

#include <gtest/gtest.h>

#include <cstring>
#include <sstream>

#include "files/battle_file.h"
#include "platform/headless/event_writer.h"
#include "platform/headless/script_run.h"
#include "support/field.h"

namespace varnstride {
namespace {

FieldPlan ThreeAreasInARow() {
    FieldPlan plan;
    plan.links = {{.from = 1, .to = 2, .firstStep = FirstStep::Open},
                  {.from = 2, .to = 1, .firstStep = FirstStep::Open},
                  {.from = 2, .to = 3, .firstStep = FirstStep::Open},
                  {.from = 3, .to = 2, .firstStep = FirstStep::Open}};
    return plan;
}

Unit Named(const char* name, UnitType type) {
    Unit unit = MakeUnit(type);
    std::strncpy(unit.name.data(), name, unit.name.size() - 1);
    unit.weapon = Weapon::Musket;
    unit.ammunition = kFullAmmunition;
    return unit;
}

void SetTheStage(Game& game) {
    game.header.savedTurn = 1;
    game.header.lastTurn = 3;
    game.header.visibility = 20;
    game.header.fogNone = 1;
    game.header.majorDefeatLimit = -100;
    game.header.minorDefeatLimit = -50;
    game.header.minorVictoryLimit = 50;
    game.header.majorVictoryLimit = 100;
    game.time.clockField = 930;
    game.time.dawnHour = 5;
    game.time.duskHour = 20;
    game.turnLog.advanceDirection = 1;
    for (int army : {kFrench, kPrussian})
        game.Army(army).baseCommandPoints = 12;
}

}  // namespace

TinyBattle::TinyBattle() {
    Field field(ThreeAreasInARow());
    catalogue = field.catalogue;
    SetTheStage(field.game);
    field.Add(kFrench, 1, 1, Named("Guard", UnitType::GuardInfantry));
    field.Add(kFrench, 1, 2, Named("Hussars", UnitType::LightCavalry));
    field.Add(kPrussian, 3, 1, Named("Landwehr", UnitType::LineInfantry));

    std::string name = (std::filesystem::temp_directory_path() / "varnstride-XXXXXX").string();
    folder_ = mkdtemp(name.data());
    scenario = Path("tiny.scn");
    const Result<Done> written = WriteBattleFile(scenario, TakeFromGame(field.game));
    if (!written.Ok()) ADD_FAILURE() << written.Message();
}

TinyBattle::~TinyBattle() {
    std::filesystem::remove_all(folder_);
}

std::string TinyBattle::Play(const std::string& text) const {
    const Result<Script> script = ParseScript(text, "tiny.script");
    if (!script.Ok()) return script.Message();
    std::ostringstream events;
    EventWriter writer(events);
    const Result<Done> played = RunScript(script.Get(), catalogue, writer);
    return played.Ok() ? events.str() : events.str() + played.Message();
}

std::string LastLine(const std::string& text) {
    const std::size_t end = text.find_last_not_of('\n');
    if (end == std::string::npos) return {};
    const std::size_t before = text.rfind('\n', end);
    const std::size_t begin = before == std::string::npos ? 0 : before + 1;
    return text.substr(begin, end + 1 - begin);
}

}  // namespace varnstride
