#include "platform/headless/state_compare.h"

#include <algorithm>
#include <sstream>
#include <utility>

#include "platform/headless/all_records.h"

namespace varnstride {
namespace {

template <typename Value>
std::string Show(const Value& value) {
    if constexpr (std::is_enum_v<Value>) {
        return std::to_string(static_cast<int>(value));
    } else if constexpr (std::is_same_v<Value, double>) {
        std::ostringstream text;
        text << value;
        return text.str();
    } else {
        return std::to_string(value);
    }
}

std::string Show(Cell cell) {
    return "(" + std::to_string(cell.x) + ", " + std::to_string(cell.y) + ")";
}

template <std::size_t kSize>
std::string Show(const std::array<char, kSize>& text) {
    return "\"" + std::string(text.begin(), std::find(text.begin(), text.end(), '\0')) + "\"";
}

template <typename Value, std::size_t kSize>
std::string Show(const std::array<Value, kSize>& values) {
    std::string text;
    for (const Value& value : values)
        text += (text.empty() ? "" : " ") + Show(value);
    return text;
}

class Comparison {
 public:
    template <typename Value>
    void Note(const std::string& name, const Value& now, const Value& was) {
        if (now != was) differences.push_back(name + ": " + Show(now) + ", was " + Show(was));
    }

    template <typename Record>
    void NoteRecord(const RecordName& name, const Record& now, const Record& was) {
        RecordFields<Record>::ForEach([&](const char* field, auto member, auto...) {
            if (now.*member != was.*member)
                Note(name.Text() + " " + field, now.*member, was.*member);
        });
    }

    template <typename Record>
    void NoteState(const Record& now, const Record& was) {
        StateFields<Record>::ForEach([&](const char* field, auto member) {
            Note(std::string("game ") + field, now.*member, was.*member);
        });
    }

    std::vector<std::string> differences;
};

void NoteTurnLog(Comparison& comparison, const TurnLogBlock& now, const TurnLogBlock& was) {
    comparison.Note("turnInProgress", now.turnInProgress, was.turnInProgress);
    comparison.Note("advanceDirection", now.advanceDirection, was.advanceDirection);
    for (std::size_t entry = 0; entry < now.rollLog.size(); ++entry) {
        if (now.rollLog[entry] == was.rollLog[entry]) continue;
        comparison.Note("rollLog " + std::to_string(entry), now.rollLog[entry], was.rollLog[entry]);
    }
}

}  // namespace

std::vector<std::string> Differences(const Game& now, const Game& was) {
    Comparison comparison;
    comparison.NoteState(now.state, was.state);
    comparison.NoteState(now.undo, was.undo);
    comparison.NoteState(now.census, was.census);
    comparison.Note("generator", now.generator.State(), was.generator.State());
    NoteTurnLog(comparison, now.turnLog, was.turnLog);
    comparison.Note("mapWidth", now.grid.Width(), was.grid.Width());
    comparison.Note("mapHeight", now.grid.Height(), was.grid.Height());
    ForEachRecord([&](const RecordName& name, const auto& one,
                      const auto& other) { comparison.NoteRecord(name, one, other); },
                  now, was);
    return std::move(comparison.differences);
}

}  // namespace varnstride
