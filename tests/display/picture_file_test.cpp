// Pictures on the disk: BMP files in, with every kind of damage, and PNG files out.
#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "display/bmp_reader.h"
#include "display/painted_sheet.h"
#include "display/png_reader.h"
#include "display/png_writer.h"

namespace varnstride {
namespace {

using Bytes = std::vector<std::byte>;

Surface SmallPicture() {
    Surface picture(5, 3);
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 5; ++x)
            picture.At(x, y) = (x + y) % 2 == 0 ? MakePixel(10 * x, 20 * y, 200) : kWhite;
    }
    return picture;
}

TEST(BmpReader, ReadsEitherWayUp) {
    Bytes file = EncodeBmp(SmallPicture());
    EXPECT_EQ(DecodeBmp(file, "picture").Get(), SmallPicture());
    Overwrite(file, 22, static_cast<std::uint32_t>(-3), 4);
    EXPECT_EQ(DecodeBmp(file, "picture").Get().At(1, 0), SmallPicture().At(1, 2));
}

// A picture of 5 x 1 pixels whose palette counts the colours 0 to 3 in red.
Bytes WithPalette(unsigned depth, const std::vector<int>& row) {
    Bytes file(54 + 16);
    Overwrite(file, 0, 0x4D42, 2);
    Overwrite(file, 10, 70, 4);
    Overwrite(file, 14, 40, 4);
    Overwrite(file, 18, 5, 4);
    Overwrite(file, 22, 1, 4);
    Overwrite(file, 28, depth, 2);
    Overwrite(file, 46, depth == 1 ? 2 : 4, 4);
    for (std::uint32_t color = 0; color < 4; ++color)
        Overwrite(file, 54 + 4 * color, color << 16, 4);
    for (const int byte : row)
        file.push_back(static_cast<std::byte>(byte));
    return file;
}

TEST(BmpReader, ReadsEveryDepth) {
    const struct {
        unsigned depth;
        std::vector<int> row;
        std::array<int, 5> reds;
    } cases[] = {
        {1, {0b10110000, 0, 0, 0}, {1, 0, 1, 1, 0}},
        {4, {0x12, 0x30, 0x20, 0}, {1, 2, 3, 0, 2}},
        {8, {3, 2, 1, 0, 9, 0, 0, 0}, {3, 2, 1, 0, 0}},  // beyond the palette lies black
        {32, {0, 0, 3, 9, 0, 0, 2, 9, 0, 0, 1, 9, 0, 0, 0, 9, 0, 0, 3, 9}, {3, 2, 1, 0, 3}},
    };
    for (const auto& each : cases) {
        const Result<Surface> picture = DecodeBmp(WithPalette(each.depth, each.row), "picture");
        ASSERT_TRUE(picture.Ok()) << picture.Message();
        for (int x = 0; x < 5; ++x) {
            EXPECT_EQ(picture.Get().At(x, 0),
                      MakePixel(each.reds[static_cast<std::size_t>(x)], 0, 0))
                << each.depth << " bits, pixel " << x;
        }
    }
}

TEST(BmpReader, SaysWhatIsWrong) {
    const auto number = [](std::size_t at, std::uint32_t value, std::size_t width) {
        return [=](Bytes& file) { Overwrite(file, at, value, width); };
    };
    const auto cutTo = [](std::size_t size) { return [=](Bytes& file) { file.resize(size); }; };
    const struct {
        const char* message;
        std::function<void(Bytes&)> damage;
    } cases[] = {
        {"p.bmp: is no BMP picture", cutTo(0)},
        {"p.bmp: is no BMP picture", number(0, 0, 2)},
        {"p.bmp: is cut short: it ends inside its header", cutTo(53)},
        {"p.bmp: has a header of 12 bytes, expected 40 or more", number(14, 12, 4)},
        {"p.bmp: has no pixels: its size is 0 x 3", number(18, 0, 4)},
        {"p.bmp: has no pixels: its size is 5 x 0", number(22, 0, 4)},
        {"p.bmp: has an impossible size, -1 x 3", number(18, 0xFFFFFFFF, 4)},
        {"p.bmp: has an impossible size, 5 x -2147483648", number(22, 0x80000000, 4)},
        {"p.bmp: is too large: its size is 16385 x 3", number(18, 16385, 4)},
        {"p.bmp: is too large: its size is 5 x -16385",
         number(22, static_cast<std::uint32_t>(-16385), 4)},
        {"p.bmp: has 16 bits a pixel, expected 1, 4, 8, 24 or 32", number(28, 16, 2)},
        {"p.bmp: is compressed (kind 1), expected plain pixels", number(30, 1, 4)},
        {"p.bmp: is cut short: it holds 101 bytes, its pixels end at 102", cutTo(101)},
        {"p.bmp: is cut short: it holds 102 bytes, its pixels end at 4294967343",
         number(10, 0xFFFFFFFF, 4)},
    };
    for (const auto& each : cases) {
        Bytes file = EncodeBmp(SmallPicture());
        each.damage(file);
        const Result<Surface> picture = DecodeBmp(file, "p.bmp");
        ASSERT_FALSE(picture.Ok()) << each.message;
        EXPECT_EQ(picture.Message(), each.message);
    }
}

TEST(BmpReader, SaysWhatIsWrongWithThePalette) {
    Bytes file = WithPalette(8, {3, 2, 1, 0, 9, 0, 0, 0});
    Overwrite(file, 46, 257, 4);
    EXPECT_EQ(DecodeBmp(file, "p").Message(),
              "p: has a palette of 257 colours, more than 8 bits tell apart");
    Overwrite(file, 46, 200, 4);
    EXPECT_EQ(DecodeBmp(file, "p").Message(), "p: is cut short: it ends inside its palette");
    EXPECT_EQ(ReadBmp("nowhere/p.bmp").Message(), "nowhere/p.bmp: No such file or directory");
}

// Noise, long runs, and repeats from farther away than the packer looks.
TEST(PngWriter, IsReadBackByAnotherReader) {
    std::mt19937 engine(3);
    for (const int width : {1, 2, 37, 300}) {
        Surface picture(width, 90);
        for (int y = 0; y < picture.Height(); ++y) {
            for (int x = 0; x < width; ++x) {
                const bool noise = y % 30 < 8;
                picture.At(x, y) = noise ? 0xFF000000U | (engine() & 0xFFFFFFU)
                                         : MakePixel(y / 11 * 20, x / 50, 3);
            }
        }
        const Result<Surface> read = DecodePng(EncodePng(picture));
        ASSERT_TRUE(read.Ok()) << read.Message();
        EXPECT_EQ(read.Get(), picture) << width;
    }
}

}  // namespace
}  // namespace varnstride
