// The player's settings on the disk: where each stands, and what a file that is missing or short
// gives.
#include "files/settings_file.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <utility>

#include "files/record_bytes.h"
#include "files/safe_write.h"

namespace varnstride {
namespace {

class SettingsFile : public testing::Test {
 protected:
    ~SettingsFile() override { std::remove(path_.c_str()); }

    static std::vector<std::byte> BytesOf(const Settings& settings) {
        ByteWriter writer(SizeInFile<Settings>());
        writer.Put(settings);
        return writer.Take();
    }

    const std::string path_ =
        testing::TempDir() + "varnstride-settings-" + std::to_string(getpid()) + ".dat";
};

TEST_F(SettingsFile, EveryFieldStandsAtItsPlace) {
    const std::pair<int Settings::*, std::size_t> places[] = {
        {&Settings::cellOutline, 0},      {&Settings::hideUnitPanels, 4},
        {&Settings::backgroundSound, 6},  {&Settings::battleSounds, 8},
        {&Settings::quickResults, 10},    {&Settings::computerSide, 12},
        {&Settings::areaContours, 14},    {&Settings::showObjectives, 16},
        {&Settings::mapView, 18},         {&Settings::armyColours, 22},
        {&Settings::autoSave, 24},        {&Settings::showUnitBases, 26},
        {&Settings::edgeScroll, 28},      {&Settings::showFormation, 32},
        {&Settings::noDelays, 34},        {&Settings::resultPauseSetting, 38},
        {&Settings::backgroundMusic, 40}, {&Settings::healthBars, 44},
        {&Settings::showLocations, 50},   {&Settings::noReplay, 54},
        {&Settings::noErrorAlert, 56},
    };
    for (const auto& [field, at] : places) {
        Settings settings;
        settings.*field = 0x1234;
        ASSERT_TRUE(WriteSettings(path_, settings).Ok());
        std::vector<std::byte> expected(58);
        expected[at] = std::byte{0x34};
        expected[at + 1] = std::byte{0x12};
        EXPECT_EQ(ReadWholeFile(path_).Get(), expected) << "byte " << at;
        EXPECT_EQ(ReadSettings(path_).*field, 0x1234) << "byte " << at;
    }
}

TEST_F(SettingsFile, ReservedBytesComeBack) {
    std::vector<std::byte> bytes;
    for (int byte = 0; byte < 58; ++byte)
        bytes.push_back(static_cast<std::byte>(200 - byte));
    ASSERT_TRUE(WriteSafely(path_, bytes).Ok());
    ASSERT_TRUE(WriteSettings(path_, ReadSettings(path_)).Ok());
    EXPECT_EQ(ReadWholeFile(path_).Get(), bytes);
}

TEST_F(SettingsFile, AMissingOrShortFileGivesTheDefaults) {
    const std::vector<std::byte> defaults = BytesOf(DefaultSettings());
    EXPECT_EQ(BytesOf(ReadSettings(path_)), defaults);
    ASSERT_TRUE(WriteSafely(path_, std::vector(57, std::byte{1})).Ok());
    EXPECT_EQ(BytesOf(ReadSettings(path_)), defaults);
    EXPECT_EQ(BytesOf(ReadSettings(testing::TempDir())), defaults) << "a folder";

    const Settings settings = ReadSettings(path_);
    EXPECT_EQ(settings.computerSide, 2);
    EXPECT_EQ(settings.mapView, 1);
    EXPECT_EQ(settings.showLocations, 1);
    EXPECT_EQ(settings.autoSave, 0);
}

}  // namespace
}  // namespace varnstride
