#include "platform/headless/script_words.h"

namespace varnstride {
namespace {

bool IsBlank(char letter) {
    return letter == ' ' || letter == '\t' || letter == '\r';
}

}  // namespace

Result<std::vector<std::string>> SplitWords(std::string_view line) {
    std::vector<std::string> words;
    bool inWord = false;
    bool quoted = false;
    for (char letter : line) {
        if (!quoted && letter == '#') break;
        if (!quoted && IsBlank(letter)) {
            inWord = false;
            continue;
        }
        if (!inWord) words.emplace_back();
        inWord = true;
        if (letter == '"') {
            quoted = !quoted;
        } else {
            words.back() += letter;
        }
    }
    if (quoted) return Failure{"a quoted text does not end on its line"};
    return words;
}

}  // namespace varnstride
