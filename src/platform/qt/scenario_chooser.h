// The choice of a scenario: the game's own in a list, with what each is about beside it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

class QWidget;

namespace varnstride {

// Nothing when the person declines. A scenario that cannot be read is shown with the reason.
std::optional<std::string> ChooseScenarioFile(const std::filesystem::path& folder, QWidget* parent);

}  // namespace varnstride
