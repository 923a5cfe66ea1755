#include "forge/scenario_values.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <vector>

#include "forge/source_text.h"

namespace varnstride {
namespace {

constexpr std::string_view kHexDigits = "0123456789abcdef";

bool IsPrintable(char letter) {
    return letter >= ' ' && letter <= '~';
}

bool StandsAsItIs(char letter) {
    return IsPrintable(letter) && letter != '"' && letter != '\\' && letter != '|';
}

std::string HexPair(unsigned char byte) {
    return {kHexDigits[byte >> 4], kHexDigits[byte & 15U]};
}

std::optional<unsigned char> ByteOf(std::string_view pair) {
    unsigned char byte = 0;
    const char* const end = pair.data() + pair.size();
    const auto [stopped, error] = std::from_chars(pair.data(), end, byte, 16);
    if (pair.size() != 2 || error != std::errc{} || stopped != end) return std::nullopt;
    return byte;
}

}  // namespace

std::string Quoted(std::string_view bytes) {
    std::string text = "\"";
    for (char byte : bytes) {
        if (StandsAsItIs(byte)) {
            text += byte;
        } else {
            text += '\\' + HexPair(static_cast<unsigned char>(byte));
        }
    }
    return text + '"';
}

std::optional<std::string> Unquoted(std::string_view word) {
    if (word.size() < 2 || word.front() != '"' || word.back() != '"') return std::nullopt;
    word = word.substr(1, word.size() - 2);
    std::string bytes;
    while (!word.empty()) {
        if (word.front() == '"') return std::nullopt;
        if (word.front() != '\\') {
            bytes += word.front();
            word.remove_prefix(1);
            continue;
        }
        const std::optional<unsigned char> byte = ByteOf(word.substr(1, 2));
        if (!byte) return std::nullopt;
        bytes += static_cast<char>(*byte);
        word.remove_prefix(3);
    }
    return bytes;
}

std::string_view ContentOf(std::span<const char> field) {
    std::size_t size = field.size();
    while (size > 0 && field[size - 1] == '\0')
        --size;
    return {field.data(), size};
}

bool IsPlain(std::string_view content) {
    return !content.empty() && std::all_of(content.begin(), content.end(), StandsAsItIs) &&
           Trimmed(content).size() == content.size();
}

std::string PutBytes(std::string_view bytes, std::span<char> field) {
    const bool fits = bytes.size() < field.size() ||
                      (bytes.size() == field.size() && bytes.find('\0') != bytes.npos);
    if (!fits) {
        return "expected at most " + std::to_string(field.size() - 1) + " characters, found " +
               std::to_string(bytes.size());
    }
    std::fill(field.begin(), field.end(), '\0');
    std::copy(bytes.begin(), bytes.end(), field.begin());
    return {};
}

std::string PutText(std::string_view text, std::span<char> field) {
    if (!text.starts_with('"')) return PutBytes(text, field);
    const std::optional<std::string> bytes = Unquoted(text);
    if (!bytes) return "expected a text in quotes, other bytes as \\xx in two hex digits";
    return PutBytes(*bytes, field);
}

std::string ReadValue(std::string_view text, int& number, Width width) {
    const bool isShort = width == Width::Int16;
    const int least = isShort ? std::numeric_limits<std::int16_t>::min()
                              : std::numeric_limits<std::int32_t>::min();
    const int most = isShort ? std::numeric_limits<std::int16_t>::max()
                             : std::numeric_limits<std::int32_t>::max();
    const std::optional<int> value = WholeNumber(text);
    if (!value || *value < least || *value > most) {
        return "expected a whole number from " + std::to_string(least) + " to " +
               std::to_string(most) + ", found \"" + std::string(text) + "\"";
    }
    number = *value;
    return {};
}

std::string ReadValue(std::string_view text, std::span<char> field) {
    if (!text.starts_with('"')) return "expected a text in quotes";
    return PutText(text, field);
}

std::string ReadValue(std::string_view text, std::span<std::uint8_t> bytes) {
    std::vector<std::uint8_t> read;
    for (std::size_t at = 0; at < text.size(); at += 2) {
        const std::optional<unsigned char> byte = ByteOf(text.substr(at, 2));
        if (!byte) return "expected pairs of hex digits, found \"" + std::string(text) + "\"";
        read.push_back(*byte);
    }
    if (read.size() > bytes.size()) {
        return "expected at most " + std::to_string(bytes.size()) + " bytes, found " +
               std::to_string(read.size());
    }
    read.resize(bytes.size());
    std::copy(read.begin(), read.end(), bytes.begin());
    return {};
}

std::string WriteValue(std::span<const char> field) {
    return Quoted(ContentOf(field));
}

std::string WriteValue(std::span<const std::uint8_t> bytes) {
    std::string text;
    for (std::uint8_t byte : bytes)
        text += HexPair(byte);
    const std::size_t last = text.find_last_not_of('0');
    const std::size_t kept = last == text.npos ? 0 : (last / 2 + 1) * 2;
    return text.substr(0, std::max<std::size_t>(kept, 2));
}

}  // namespace varnstride
