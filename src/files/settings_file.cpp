#include "files/settings_file.h"

#include "files/record_bytes.h"
#include "files/safe_write.h"

namespace varnstride {
namespace {

constexpr std::size_t kSettingsSize = SizeInFile<Settings>();
static_assert(kSettingsSize == 58);

}  // namespace

Settings DefaultSettings() {
    Settings settings;
    settings.backgroundSound = 1;
    settings.battleSounds = 1;
    settings.computerSide = 2;
    settings.areaContours = 1;
    settings.showObjectives = 1;
    settings.mapView = 1;
    settings.edgeScroll = 1;
    settings.showFormation = 1;
    settings.healthBars = 1;
    settings.showLocations = 1;
    return settings;
}

Settings ReadSettings(const std::string& path) {
    const Result<std::vector<std::byte>> bytes = ReadWholeFile(path);
    if (!bytes.Ok() || bytes.Get().size() < kSettingsSize) return DefaultSettings();
    Settings settings;
    ByteReader reader(bytes.Get());
    reader.Get(settings);
    return settings;
}

Result<Done> WriteSettings(const std::string& path, const Settings& settings) {
    ByteWriter writer(kSettingsSize);
    writer.Put(settings);
    return WriteSafely(path, writer.Take());
}

}  // namespace varnstride
