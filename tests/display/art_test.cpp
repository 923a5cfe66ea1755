// A data folder with missing and damaged pictures: each is named once, and something is drawn.
#include "display/art.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "display/painted_sheet.h"

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

}  // namespace
}  // namespace varnstride
