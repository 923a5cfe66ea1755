#include "forge/scenario_prose.h"

#include <algorithm>
#include <iterator>

#include "forge/scenario_values.h"
#include "forge/scenario_words.h"

namespace varnstride {
namespace {

// The lines of a free text without the empty ones at its ends.
std::string ProseOf(const Section& section) {
    auto first = section.lines.begin();
    auto last = section.lines.end();
    while (first != last && first->text.empty())
        ++first;
    while (first != last && std::prev(last)->text.empty())
        --last;
    std::string prose;
    for (auto line = first; line != last; ++line) {
        if (line != first) prose += '\n';
        prose += line->text;
    }
    return prose;
}

void PutProse(const Section& section, std::span<char> field, SourceErrors& errors) {
    const std::string wrong = PutBytes(ProseOf(section), field);
    if (!wrong.empty()) errors.Add(section.line, "the text is too long: " + wrong);
}

// The content under a heading, if it comes back from there unchanged; else nothing.
std::string ProseText(const std::string& heading, std::span<const char> field) {
    const std::string content(ContentOf(field));
    const bool clean = std::all_of(content.begin(), content.end(), [](char letter) {
        return letter == '\n' || (letter >= ' ' && letter <= '~');
    });
    const std::string section = heading + "\n" + content + "\n";
    SourceErrors ignored("");
    const ScenarioText back(section, ignored);
    const bool same =
        clean && back.Sections().size() == 1 && ProseOf(back.Sections().front()) == content;
    return (same ? section : heading + "\n") + "\n";
}

}  // namespace

void ReadDescription(const ScenarioText& text, ScenarioBuild& build) {
    const Section* const section = text.Need(SectionKind::Description, build.errors);
    if (section != nullptr) {
        PutProse(*section, build.file.header.scenarioDescription, build.errors);
    }
}

std::string WriteDescription(const BattleFile& file) {
    return ProseText("[description]", file.header.scenarioDescription);
}

void ReadBriefings(const ScenarioText& text, ScenarioBuild& build) {
    for (const Section& section : text.Sections()) {
        if (section.kind != SectionKind::Briefing) continue;
        const auto army = static_cast<std::size_t>(section.army);
        PutProse(section, build.file.briefings[army].text, build.errors);
        build.file.armies[army].hasGroupAssignments = 1;
        build.file.armies[kFrench].hasGroupAssignments = 1;
    }
}

std::string WriteBriefings(const BattleFile& file) {
    std::string text;
    if (file.armies[kFrench].hasGroupAssignments != 1) return text;
    for (const Word& army : kArmyWords) {
        const auto index = static_cast<std::size_t>(army.value);
        if (file.armies[index].hasGroupAssignments == 0) continue;
        text += ProseText("[briefing " + std::string(army.text) + "]", file.briefings[index].text);
    }
    return text;
}

}  // namespace varnstride
