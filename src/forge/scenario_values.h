// Stored fields as scenario sources write them: numbers, quoted texts, runs of bytes; and a record
// read, written and compared field by field with the names of record_fields.h. The sections that
// name fields, and the decompiler, call it.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "model/record_fields.h"

namespace varnstride {

// A text in quotes. Bytes that cannot stand in a source are written \xx, two hex digits.
std::string Quoted(std::string_view bytes);
// The bytes of a quoted text; nothing when the quotes or an escape are wrong.
std::optional<std::string> Unquoted(std::string_view word);

// The bytes of a field up to the last that is not zero.
std::string_view ContentOf(std::span<const char> field);

// Whether a source can write the content of a field without quotes: letters, digits and signs of
// ASCII, no blanks at the ends, nothing behind the first zero byte.
bool IsPlain(std::string_view content);

// Puts a text, quoted or not, into a field that ends with a zero byte. Gives what is wrong; empty
// when nothing is.
std::string PutText(std::string_view text, std::span<char> field);
// The same for bytes that are no longer quoted.
std::string PutBytes(std::string_view bytes, std::span<char> field);

// Reads a number into a member; gives what is wrong, empty when nothing is.
std::string ReadValue(std::string_view text, int& number, Width width);
std::string ReadValue(std::string_view text, std::span<char> field);
// Pairs of hex digits; bytes left out at the end are zero.
std::string ReadValue(std::string_view text, std::span<std::uint8_t> bytes);

template <typename Value>
requires std::is_enum_v<Value> std::string ReadValue(std::string_view text, Value& value,
                                                     Width width) {
    int number = 0;
    const std::string wrong = ReadValue(text, number, width);
    if (wrong.empty()) value = static_cast<Value>(number);
    return wrong;
}

std::string WriteValue(std::span<const char> field);
std::string WriteValue(std::span<const std::uint8_t> bytes);

template <typename Value>
requires(std::is_enum_v<Value> || std::is_integral_v<Value>) std::string WriteValue(Value value) {
    return std::to_string(static_cast<int>(value));
}

// The names of a record's fields for messages, "x, y, reservedA ...".
template <typename Record>
std::string FieldNames() {
    std::string names;
    RecordFields<Record>::ForEach([&](std::string_view field, auto...) {
        names += (names.empty() ? "" : ", ") + std::string(field);
    });
    return names;
}

// Sets a field by its name; gives what is wrong, empty when nothing is.
template <typename Record>
std::string SetField(Record& record, std::string_view name, std::string_view text) {
    bool known = false;
    std::string wrong;
    RecordFields<Record>::ForEach([&](std::string_view field, auto member, auto... width) {
        if (field != name) return;
        known = true;
        wrong = ReadValue(text, record.*member, width...);
    });
    if (known) return wrong;
    return "unknown field \"" + std::string(name) + "\": expected one of " + FieldNames<Record>();
}

// Calls visit(name, value as text) for each field in which the wanted record differs.
template <typename Record, typename Visit>
void ForEachDifference(const Record& have, const Record& want, Visit visit) {
    RecordFields<Record>::ForEach([&](std::string_view field, auto member, auto...) {
        if (have.*member != want.*member) visit(field, WriteValue(want.*member));
    });
}

}  // namespace varnstride
