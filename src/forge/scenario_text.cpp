#include "forge/scenario_text.h"

#include <algorithm>
#include <array>

#include "forge/scenario_words.h"
#include "forge/source_text.h"

namespace varnstride {
namespace {

enum class Holds { Lines, Prose };

struct Heading {
    std::string_view word;
    SectionKind kind;
    Holds holds;
    bool ofAnArmy;
};

constexpr std::array<Heading, 14> kHeadings = {{
    {"battle", SectionKind::Battle, Holds::Lines, false},
    {"description", SectionKind::Description, Holds::Prose, false},
    {"terrain", SectionKind::Terrain, Holds::Lines, false},
    {"areas", SectionKind::Areas, Holds::Lines, false},
    {"heights", SectionKind::Heights, Holds::Lines, false},
    {"overlay", SectionKind::Overlay, Holds::Lines, false},
    {"roads", SectionKind::Roads, Holds::Lines, false},
    {"labels", SectionKind::Labels, Holds::Lines, false},
    {"objectives", SectionKind::Objectives, Holds::Lines, false},
    {"armies", SectionKind::Armies, Holds::Lines, false},
    {"briefing", SectionKind::Briefing, Holds::Prose, true},
    {"units", SectionKind::Units, Holds::Lines, true},
    {"cells", SectionKind::Cells, Holds::Lines, false},
    {"fields", SectionKind::Fields, Holds::Lines, false},
}};

const Heading& HeadingOf(SectionKind kind) {
    return *std::find_if(kHeadings.begin(), kHeadings.end(),
                         [&](const Heading& heading) { return heading.kind == kind; });
}

std::string AllHeadings() {
    std::string all;
    for (const Heading& heading : kHeadings) {
        all += (all.empty() ? "[" : ", [") + std::string(heading.word) +
               (heading.ofAnArmy ? " ARMY]" : "]");
    }
    return all;
}

std::string_view WithoutEndBlanks(std::string_view line) {
    const std::size_t last = line.find_last_not_of(" \t\r");
    return last == std::string_view::npos ? std::string_view{} : line.substr(0, last + 1);
}

std::vector<SourceLine> LinesOf(std::string_view text) {
    std::vector<SourceLine> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.push_back(
            {static_cast<int>(lines.size()) + 1, WithoutEndBlanks(text.substr(0, end))});
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

}  // namespace

ScenarioText::ScenarioText(std::string_view text, SourceErrors& errors) {
    bool anyHeading = false;
    for (const SourceLine& line : LinesOf(text)) {
        lastLine_ = line.number;
        if (line.text.starts_with(';')) continue;
        if (line.text.starts_with('[')) {
            anyHeading = true;
            Open(line, errors);
            continue;
        }
        if (!anyHeading && !line.text.empty()) {
            errors.Add(line.number, "expected a heading such as [battle] before anything else");
            anyHeading = true;
        }
        Section* const section = OpenSection();
        if (section == nullptr) continue;
        const bool counts = !line.text.empty() || HeadingOf(section->kind).holds == Holds::Prose;
        if (counts) section->lines.push_back(line);
    }
}

void ScenarioText::Open(SourceLine line, SourceErrors& errors) {
    open_.reset();
    if (!line.text.ends_with(']')) {
        errors.Add(line.number, "a heading ends with \"]\"");
        return;
    }
    const auto words = Words(line.text.substr(1, line.text.size() - 2));
    const auto* const heading = std::find_if(
        kHeadings.begin(), kHeadings.end(),
        [&](const Heading& known) { return !words.empty() && words[0] == known.word; });
    if (heading == kHeadings.end()) {
        errors.Add(line.number,
                   "unknown section " + std::string(line.text) + ": expected " + AllHeadings());
        return;
    }
    Section section{heading->kind, 0, line.number, {}};
    if (words.size() != (heading->ofAnArmy ? 2U : 1U)) {
        errors.Add(line.number, "expected [" + std::string(heading->word) +
                                    (heading->ofAnArmy ? " ARMY]" : "]"));
        return;
    }
    if (heading->ofAnArmy) {
        const std::optional<int> army = ValueOf(kArmyWords, words[1]);
        if (!army) {
            errors.Add(line.number, UnknownWord("army", words[1], kArmyWords));
            return;
        }
        section.army = *army;
    }
    if (const Section* const earlier = Find(section.kind, section.army)) {
        errors.Add(line.number, "a second section " + std::string(line.text) +
                                    ": the first is on line " + std::to_string(earlier->line));
        return;
    }
    open_ = sections_.size();
    sections_.push_back(std::move(section));
}

const Section* ScenarioText::Find(SectionKind kind, int army) const {
    const auto found = std::find_if(
        sections_.begin(), sections_.end(),
        [&](const Section& section) { return section.kind == kind && section.army == army; });
    return found == sections_.end() ? nullptr : &*found;
}

const Section* ScenarioText::Need(SectionKind kind, SourceErrors& errors) const {
    const Section* const section = Find(kind);
    if (section == nullptr) {
        errors.Add(lastLine_, "the section [" + std::string(HeadingOf(kind).word) +
                                  "] is missing: expected it before the end of the source");
    }
    return section;
}

std::optional<KeyValue> KeyValueOf(const SourceLine& line, SourceErrors& errors) {
    const std::size_t equals = line.text.find('=');
    if (equals == std::string_view::npos) {
        errors.Add(line.number, "expected \"key = value\"");
        return std::nullopt;
    }
    return KeyValue{Trimmed(line.text.substr(0, equals)), Trimmed(line.text.substr(equals + 1))};
}

}  // namespace varnstride
