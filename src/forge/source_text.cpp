#include "forge/source_text.h"

#include <charconv>

namespace varnstride {
namespace {

constexpr std::string_view kBlanks = " \t\r";

}  // namespace

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::vector<std::string_view> SplitAt(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    std::size_t end = text.find(separator);
    while (end != std::string_view::npos) {
        parts.push_back(Trimmed(text.substr(0, end)));
        text.remove_prefix(end + 1);
        end = text.find(separator);
    }
    parts.push_back(Trimmed(text));
    return parts;
}

std::vector<std::string_view> Words(std::string_view text) {
    std::vector<std::string_view> words;
    text = Trimmed(text);
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find_first_of(kBlanks));
        words.push_back(word);
        text = Trimmed(text.substr(word.size()));
    }
    return words;
}

std::optional<int> WholeNumber(std::string_view word) {
    int number = 0;
    const char* const end = word.data() + word.size();
    const auto [stopped, error] = std::from_chars(word.data(), end, number);
    if (error != std::errc{} || stopped != end) return std::nullopt;
    return number;
}

std::optional<Cell> CellFrom(std::string_view word) {
    const std::vector<std::string_view> parts = SplitAt(word, ',');
    if (parts.size() != 2) return std::nullopt;
    const std::optional<int> x = WholeNumber(parts[0]);
    const std::optional<int> y = WholeNumber(parts[1]);
    if (!x || !y) return std::nullopt;
    return Cell{*x, *y};
}

std::string Shown(Cell cell) {
    return "(" + std::to_string(cell.x) + "," + std::to_string(cell.y) + ")";
}

std::string Shown(const std::array<Cell, 3>& slots) {
    return Shown(slots[0]) + " " + Shown(slots[1]) + " " + Shown(slots[2]);
}

}  // namespace varnstride
