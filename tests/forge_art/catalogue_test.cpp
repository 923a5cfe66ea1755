// The pictures of the forge are those that the game looks for, cut by the game's own cutter, and
// the same on every run.
#include "forge_art/catalogue.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "display/art.h"
#include "forge_art/sheet.h"

namespace varnstride {
namespace {

namespace fs = std::filesystem;

art::Studio OpenedStudio() {
    Result<art::Studio> studio = art::OpenStudio(VARNSTRIDE_ART);
    EXPECT_TRUE(studio.Ok());
    return std::move(studio.Get());
}

using Lines = std::vector<std::string>;

class PaintedFolder : public testing::Test {
 protected:
    PaintedFolder() : folder(fs::path(testing::TempDir()) / "varnstride_painted") {
        fs::remove_all(folder);
        fs::create_directories(folder / "Graphics");
        fs::create_directories(folder / "Units");
    }
    ~PaintedFolder() override { fs::remove_all(folder); }

    fs::path folder;
};

TEST_F(PaintedFolder, HoldsEveryTileThatTheGameDraws) {
    const art::Studio studio = OpenedStudio();
    const art::Studio other = OpenedStudio();
    std::set<std::string> files;
    for (const art::Picture& picture : art::Catalogue()) {
        EXPECT_TRUE(files.insert(picture.file).second) << picture.file << " is there twice";
        const QImage painted = picture.paint(studio);
        EXPECT_EQ(painted, picture.paint(other)) << picture.file << " differs from run to run";
        ASSERT_TRUE(art::WriteBitmap(folder / picture.file, painted).Ok());
    }
    EXPECT_EQ(studio.Missing(), "");
    const Art art(folder);
    EXPECT_EQ(art.Complaints(), Lines{});
}

}  // namespace
}  // namespace varnstride
