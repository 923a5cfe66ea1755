// A data folder with missing and damaged pictures: each is named once, and something is drawn.
#include "display/art.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "display/map_view.h"
#include "display/painted_sheet.h"
#include "support/field.h"

namespace varnstride {
namespace {

namespace fs = std::filesystem;

class DataFolder : public testing::Test {
 protected:
    DataFolder() : folder(fs::path(testing::TempDir()) / "varnstride_art_test") {
        fs::remove_all(folder);
        fs::create_directories(folder / "Graphics");
    }
    ~DataFolder() override { fs::remove_all(folder); }

    void Write(const std::string& file, const std::vector<std::byte>& bytes) {
        std::ofstream(folder / file, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()),
                   static_cast<std::streamsize>(bytes.size()));
    }

    fs::path folder;
};

std::vector<PaintedTile> Tiles(int count) {
    return std::vector<PaintedTile>(static_cast<std::size_t>(count),
                                    {Surface(6, 6, MakePixel(9, 9, 9)), {3, 3}});
}

TEST_F(DataFolder, HasALineForEachFaultAndAStandInForEachTile) {
    Write("Graphics/Shade4.bmp", EncodeBmp(PaintSheet(Tiles(2), 2)));
    Write("Graphics/Bridges2.bmp", EncodeBmp(PaintSheet(Tiles(20), 5)));
    Write("Graphics/Cursor1.bmp", std::vector<std::byte>(30));
    std::vector<std::byte> cut = EncodeBmp(PaintSheet(Tiles(1), 1));
    cut.pop_back();
    Write("Graphics/Highlight5.bmp", cut);
    fs::create_directory(folder / "Graphics/MouseMap.bmp");

    const Art art(folder);
    const auto complaints = [&](const std::string& file) {
        std::vector<std::string> found;
        for (const std::string& line : art.Complaints()) {
            if (line.find("/" + file + ".bmp: ") != line.npos)
                found.push_back(line.substr(line.find(": ") + 2));
        }
        return found;
    };
    using Lines = std::vector<std::string>;
    EXPECT_EQ(complaints("Shade4"), Lines{});
    EXPECT_EQ(complaints("Bridges2"), Lines{"lacks 1 of 21 tiles, or their anchor marks"});
    EXPECT_EQ(complaints("Cursor1"), Lines{"is no BMP picture"});
    EXPECT_EQ(complaints("Highlight5").size(), 1U);
    EXPECT_EQ(complaints("MouseMap"), Lines{"Is a directory"});
    EXPECT_EQ(complaints("Road6"), Lines{"No such file or directory"});
    EXPECT_EQ(complaints("French_Inf_Line1"), Lines{"No such file or directory"});

    for (const SheetRow& row : kSheetRows) {
        for (int tile = row.need.firstSeen; tile < row.need.tiles; ++tile) {
            Surface drawn(80, 80, kWhite);
            DrawTile(art.At(row.sheet), drawn, drawn.Bounds(), {40, 40}, tile);
            EXPECT_FALSE(drawn == Surface(80, 80, kWhite)) << row.need.file << ", tile " << tile;
        }
    }
    EXPECT_EQ(art.At(Sheet::RoadPieces).At(19).source.Width(), 6) << "its own picture";
    EXPECT_EQ(art.Footprint(ViewKind::Normal).Width(), 32);
    EXPECT_EQ(art.Footprint(ViewKind::ZoomOut).Height(), 32);
}

constexpr int kRoadMarker = 11;  // stands on the small ground sheet, in place of a height band

// The pictures of the game itself: none is missing, and every opaque pixel of a ground tile is a
// click on its own cell, so that the ground closes without a gap.
TEST(GameArt, HoldsEveryTileAndGroundThatFitsItsFootprint) {
    const Art art(VARNSTRIDE_DATA);
    EXPECT_EQ(art.Complaints(), std::vector<std::string>{});
    const Field field({});
    for (const ViewKind kind : {ViewKind::Normal, ViewKind::ZoomOut}) {
        const MapView view(art, kind, field.game.grid, {0, 0, 400, 400});
        const TileSet& ground =
            art.At(kind == ViewKind::Normal ? Sheet::Ground : Sheet::SmallGround);
        for (int number = 0; number < ground.Count(); ++number) {
            if (kind == ViewKind::ZoomOut && number == kRoadMarker) continue;
            const Surface picture = ground.PictureOf(number);
            int covered = 0;
            for (int y = 0; y < picture.Height(); ++y) {
                for (int x = 0; x < picture.Width(); ++x) {
                    if (picture.At(x, y) == ground.Key()) continue;
                    const Point place = view.CellToScreen({3, 3}) +
                                        ground.At(number).destination.TopLeft() + Point{x, y};
                    covered += view.ScreenToCell(place) == Cell{3, 3} ? 1 : 0;
                }
            }
            EXPECT_EQ(covered, view.Plot().tileWidth * view.Plot().tileHeight / 2)
                << "view " << static_cast<int>(kind) << ", tile " << number;
        }
    }
}

}  // namespace
}  // namespace varnstride
