#include "platform/headless/script.h"

#include <array>
#include <charconv>
#include <limits>
#include <span>

#include "platform/headless/script_words.h"
#include "platform/headless/settable_fields.h"

namespace varnstride {
namespace {

using Words = std::span<const std::string>;
using Parsed = Result<ScriptAction>;

constexpr int kMost = std::numeric_limits<int>::max();

struct KeyName {
    std::string_view name;
    Key key;
};

constexpr std::array kNamedKeys = {
    KeyName{"1", Key::One},   KeyName{"2", Key::Two},       KeyName{"3", Key::Three},
    KeyName{"Tab", Key::Tab}, KeyName{"Shift", Key::Shift}, KeyName{"F1", Key::F1},
    KeyName{"F2", Key::F2},
};

template <typename Number>
std::optional<Number> ReadNumber(std::string_view word) {
    Number number{};
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc{} || end != word.data() + word.size()) return std::nullopt;
    return number;
}

std::string Quoted(const std::string& word) {
    return "\"" + word + "\"";
}

Failure NoNumber(const std::string& word, int least, int most) {
    const std::string range = most == kMost
                                  ? std::to_string(least) + " or more"
                                  : "from " + std::to_string(least) + " to " + std::to_string(most);
    return {Quoted(word) + " is no whole number " + range};
}

Result<int> NumberWithin(const std::string& word, int least, int most) {
    const std::optional<int> number = ReadNumber<int>(word);
    if (!number || *number < least || *number > most) return NoNumber(word, least, most);
    return *number;
}

// An action with one number between bounds.
template <typename Action, int kLeast, int kGreatest>
Parsed OneNumber(Words words) {
    const Result<int> number = NumberWithin(words[0], kLeast, kGreatest);
    if (!number.Ok()) return Failure{number.Message()};
    return ScriptAction{Action{number.Get()}};
}

template <typename Action>
Parsed NoWord(Words) {
    return ScriptAction{Action{}};
}

Parsed ParseTime(Words words) {
    const auto time = ReadNumber<unsigned>(words[0]);
    if (!time) return NoNumber(words[0], 0, kMost);
    return ScriptAction{SeedTime{*time}};
}

Parsed ParseSet(Words words) {
    const auto value = ReadNumber<double>(words[1]);
    if (!value) return Failure{Quoted(words[1]) + " is no number"};
    if (const auto wrong = WrongSetting(words[0], *value)) return Failure{*wrong};
    return ScriptAction{SetValue{words[0], *value}};
}

Parsed ParseMail(Words words) {
    const Result<int> number = NumberWithin(words[0], 0, 1);
    if (!number.Ok()) return Failure{number.Message()};
    return ScriptAction{TickMailBox{number.Get() == 1}};
}

Parsed ParseNew(Words words) {
    return ScriptAction{OpenBattle{words[0], false}};
}

Parsed ParseLoad(Words words) {
    return ScriptAction{OpenBattle{words[0], true}};
}

Parsed ParseSave(Words words) {
    return ScriptAction{SaveBattle{words[0]}};
}

Parsed ParseKey(Words words) {
    const std::optional<Key> key = KeyOf(words[0]);
    if (!key) return Failure{Quoted(words[0]) + " is no key"};
    return ScriptAction{PressKey{*key}};
}

Parsed ParseClick(Words words, bool left) {
    const Result<int> x = NumberWithin(words[0], 0, kMost);
    const Result<int> y = NumberWithin(words[1], 0, kMost);
    if (!x.Ok()) return Failure{x.Message()};
    if (!y.Ok()) return Failure{y.Message()};
    return ScriptAction{ClickMap{{x.Get(), y.Get()}, left}};
}

Parsed ParseLeft(Words words) {
    return ParseClick(words, true);
}

Parsed ParseRight(Words words) {
    return ParseClick(words, false);
}

Parsed ParsePass(Words words) {
    if (words.empty()) return ScriptAction{RunPasses{}};
    return OneNumber<RunPasses, 1, kMost>(words);
}

Result<AnswerStep> ParseStep(const std::string& word) {
    const std::size_t equals = word.find('=');
    const Result<int> control = NumberWithin(word.substr(0, equals), 0, kMost);
    if (!control.Ok()) return Failure{control.Message()};
    AnswerStep step{control.Get()};
    if (equals != std::string::npos) step.value = word.substr(equals + 1);
    return step;
}

Parsed ParseDialogAnswer(Words words) {
    const Result<int> templateId = NumberWithin(words[0], 1, kMost);
    if (!templateId.Ok()) return Failure{templateId.Message()};
    DialogAnswer answer{templateId.Get(), {}};
    for (const std::string& word : words.subspan(1)) {
        const Result<AnswerStep> step = ParseStep(word);
        if (!step.Ok()) return Failure{step.Message()};
        answer.steps.push_back(step.Get());
    }
    if (answer.steps.back().value) {
        return Failure{"the last control of an answer closes the dialog and takes no value"};
    }
    return ScriptAction{std::move(answer)};
}

Parsed ParseAnswer(Words words) {
    if (words[0] == "box" && words.size() == 2) return OneNumber<BoxAnswer, 1, 2>(words.subspan(1));
    if (words[0] == "file" && words.size() == 2) return ScriptAction{FileAnswer{words[1]}};
    return ParseDialogAnswer(words);
}

struct Verb {
    std::string_view name;
    std::size_t leastWords;
    std::size_t mostWords;
    Parsed (*parse)(Words);
    std::string_view usage;
};

constexpr std::size_t kManyWords = 100;

constexpr std::array kVerbs = {
    Verb{"time", 1, 1, ParseTime, "time N"},
    Verb{"set", 2, 2, ParseSet, "set FIELD N"},
    Verb{"pbem", 1, 1, ParseMail, "pbem 0 or pbem 1"},
    Verb{"new", 1, 1, ParseNew, "new FILE"},
    Verb{"load", 1, 1, ParseLoad, "load FILE"},
    Verb{"save", 1, 1, ParseSave, "save FILE"},
    Verb{"command", 1, 1, OneNumber<GiveCommand, 1, kMost>, "command ID"},
    Verb{"key", 1, 1, ParseKey, "key NAME, with A to Z, 1, 2, 3, Tab, Shift, F1 or F2"},
    Verb{"left", 2, 2, ParseLeft, "left X Y"},
    Verb{"right", 2, 2, ParseRight, "right X Y"},
    Verb{"panel", 1, 1, OneNumber<ClickPanel, 1, 3>, "panel N, with N from 1 to 3"},
    Verb{"strip", 1, 1, OneNumber<PressCard, 1, 3>, "strip N, with N from 1 to 3"},
    Verb{"answer", 2, kManyWords, ParseAnswer,
         "answer TEMPLATE CONTROL..., answer box 1, answer box 2 or answer file PATH"},
    Verb{"pass", 0, 1, ParsePass, "pass or pass N"},
    Verb{"tick", 1, 1, OneNumber<TickClock, 1, kMost>, "tick N"},
    Verb{"dump", 0, 0, NoWord<DumpState>, "dump"},
    Verb{"quit", 0, 0, NoWord<QuitScript>, "quit"},
};

const Verb* FindVerb(std::string_view name) {
    for (const Verb& verb : kVerbs) {
        if (verb.name == name) return &verb;
    }
    return nullptr;
}

std::string AllVerbs() {
    std::string names;
    for (const Verb& verb : kVerbs) {
        names += (names.empty() ? "" : ", ") + std::string(verb.name);
    }
    return names;
}

Parsed ParseWords(Words words) {
    const Verb* verb = FindVerb(words[0]);
    if (verb == nullptr) {
        return Failure{"unknown command " + Quoted(words[0]) + "; expected: one of " + AllVerbs()};
    }
    const Words rest = words.subspan(1);
    const std::string expected = "; expected: " + std::string(verb->usage);
    if (rest.size() < verb->leastWords) return Failure{"too few words" + expected};
    if (rest.size() > verb->mostWords) return Failure{"too many words" + expected};
    Parsed parsed = verb->parse(rest);
    if (!parsed.Ok()) return Failure{parsed.Message() + expected};
    return parsed;
}

// Appends the command of one line, if it has one; the message of what is wrong otherwise.
std::optional<std::string> ParseLine(std::string_view line, int number, Script& script) {
    const Result<std::vector<std::string>> words = SplitWords(line);
    if (!words.Ok()) return words.Message() + "; expected: a closing double quote";
    if (words.Get().empty()) return std::nullopt;
    Parsed parsed = ParseWords(words.Get());
    if (!parsed.Ok()) return parsed.Message();
    script.commands.push_back({number, std::move(parsed.Get())});
    return std::nullopt;
}

}  // namespace

std::string AtLine(const std::string& script, int line, const std::string& message) {
    return script + ":" + std::to_string(line) + ": " + message;
}

Result<Script> ParseScript(std::string_view text, const std::string& name) {
    Script script{name, {}};
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = text.find('\n');
        if (const auto wrong = ParseLine(text.substr(0, end), number, script)) {
            return Failure{AtLine(name, number, *wrong)};
        }
        text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
    }
    return script;
}

std::optional<Key> KeyOf(std::string_view name) {
    if (name.size() == 1 && name[0] >= 'A' && name[0] <= 'Z') {
        return static_cast<Key>(static_cast<int>(Key::A) + (name[0] - 'A'));
    }
    for (const KeyName& named : kNamedKeys) {
        if (named.name == name) return named.key;
    }
    return std::nullopt;
}

std::string NameOf(Key key) {
    for (const KeyName& named : kNamedKeys) {
        if (named.key == key) return std::string(named.name);
    }
    return std::string(1,
                       static_cast<char>('A' + (static_cast<int>(key) - static_cast<int>(Key::A))));
}

}  // namespace varnstride
