#include "platform/headless/all_records.h"

#include <string_view>

namespace varnstride {

std::string RecordName::Text() const {
    const std::string_view word = kind;
    if (word == "unit") return "army " + std::to_string(first) + " unit " + std::to_string(second);
    if (word == "cell") return "cell " + std::to_string(first) + "," + std::to_string(second);
    return first < 0 ? std::string(word) : std::string(word) + " " + std::to_string(first);
}

}  // namespace varnstride
