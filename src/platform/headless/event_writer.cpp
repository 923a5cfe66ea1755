#include "platform/headless/event_writer.h"

#include <array>
#include <nlohmann/json.hpp>

#include "platform/headless/state_dump.h"

namespace varnstride {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::array<const char*, 7> kPhaseNames = {
    "Orders", "BeginSide", "StartTurn", "EndTurn", "ResumeFile", "StartScreen", "HandOver"};

void Write(std::ostream& out, const Json& event) {
    out << event.dump() << '\n';
}

Json Texts(const std::vector<std::string>& lines) {
    Json texts = Json::array();
    for (const std::string& line : lines)
        texts.push_back(ToUtf8(line));
    return texts;
}

Json Shown(const Control& control) {
    switch (control.kind) {
        case Control::Kind::Tick:
        case Control::Kind::Radio: return control.value;
        case Control::Kind::List: return Texts(control.lines);
        default: return ToUtf8(control.text);
    }
}

Json Combatant(UnitId unit, const std::string& name) {
    return {{"army", unit.army}, {"unit", unit.index}, {"name", ToUtf8(name)}};
}

}  // namespace

std::string NameOf(TurnPhase phase) {
    return kPhaseNames[static_cast<std::size_t>(phase)];
}

void EventWriter::Phase(const Game& game) {
    Write(out_, {{"event", "phase"},
                 {"phase", NameOf(game.state.turnPhase)},
                 {"army", game.state.currentArmy},
                 {"turn", game.state.gameTurn}});
}

void EventWriter::Courier(const CourierMessage& message) {
    Write(out_, {{"event", "courier"},
                 {"code", message.code},
                 {"title", ToUtf8(message.title)},
                 {"text", ToUtf8(message.text)}});
}

void EventWriter::Box(const MessageBox& box, int answer) {
    Write(out_, {{"event", "box"},
                 {"caption", ToUtf8(box.caption)},
                 {"text", ToUtf8(box.text)},
                 {"answer", answer}});
}

void EventWriter::Asked(const Dialog& dialog) {
    Json controls = Json::object();
    for (const Control& control : dialog.controls) {
        if (control.kind == Control::Kind::Button) continue;
        controls[std::to_string(control.id)] = Shown(control);
    }
    Write(out_, {{"event", "dialog"},
                 {"template", dialog.templateId},
                 {"controls", controls},
                 {"answer", dialog.closedBy}});
}

void EventWriter::Result(const AttackReport& report) {
    Write(out_, {{"event", "result"},
                 {"attacker", Combatant(report.attacker, report.attackerName)},
                 {"target", Combatant(report.target, report.targetName)},
                 {"attackStrike", report.attackStrike},
                 {"defenceStrike", report.defenceStrike},
                 {"defenderHit", report.defenderHit},
                 {"attackerHit", report.attackerHit},
                 {"defenderLoss", report.defenderLoss},
                 {"attackerLoss", report.attackerLoss},
                 {"lines", Texts(report.lines)}});
}

void EventWriter::Die(int sides, int value, bool logged) {
    Write(out_, {{"event", "die"}, {"n", sides}, {"value", value}, {"logged", logged}});
}

void EventWriter::Sounded(Sound sound) {
    Write(out_, {{"event", "sound"}, {"name", std::string(varnstride::NameOf(sound))}});
}

void EventWriter::Saved(const std::string& file, std::size_t bytes) {
    Write(out_, {{"event", "saved"}, {"file", ToUtf8(file)}, {"bytes", bytes}});
}

void EventWriter::State(const Game& game, const std::vector<MapCell>& atLoad) {
    Write(out_, StateEvent(game, atLoad));
}

void EventWriter::End(const std::string& reason) {
    Write(out_, {{"event", "end"}, {"reason", reason}});
}

}  // namespace varnstride
