#include "forge/scenario_words.h"

namespace varnstride {

std::optional<int> ValueOf(std::span<const Word> words, std::string_view text) {
    for (const Word& word : words) {
        if (word.text == text) return word.value;
    }
    return std::nullopt;
}

std::string_view WordOf(std::span<const Word> words, int value) {
    for (const Word& word : words) {
        if (word.value == value) return word.text;
    }
    return {};
}

std::string UnknownWord(std::string_view what, std::string_view text, std::span<const Word> words) {
    std::string message =
        "unknown " + std::string(what) + " \"" + std::string(text) + "\": expected ";
    for (const Word& word : words) {
        if (&word != words.data()) message += ", ";
        message += word.text;
    }
    return message;
}

}  // namespace varnstride
