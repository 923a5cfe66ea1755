// Splits the lines of a script into words.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/result.h"

namespace varnstride {

// The words of one line, without quotes and without its comment. Fails when a quote stays open.
Result<std::vector<std::string>> SplitWords(std::string_view line);

}  // namespace varnstride
