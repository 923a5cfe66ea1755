#include "display/golden_picture.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "display/png_reader.h"
#include "display/png_writer.h"
#include "files/safe_write.h"

namespace varnstride {
namespace {

void Write(const std::string& path, const Surface& picture) {
    const Result<Done> written = WriteSafely(path, EncodePng(picture));
    ASSERT_TRUE(written.Ok()) << written.Message();
}

struct Difference {
    Surface picture;
    Rect area;
    int pixels = 0;
};

Difference Compare(const Surface& drawn, const Surface& golden) {
    Difference difference{Surface(drawn.Width(), drawn.Height()), {}, 0};
    for (int y = 0; y < drawn.Height(); ++y) {
        for (int x = 0; x < drawn.Width(); ++x) {
            const Pixel pixel = drawn.At(x, y);
            const bool same = golden.Bounds().Holds({x, y}) && golden.At(x, y) == pixel;
            const int grey = (RedOf(pixel) + GreenOf(pixel) + BlueOf(pixel)) / 6;
            difference.picture.At(x, y) = same ? MakePixel(grey, grey, grey) : MakePixel(255, 0, 0);
            if (same) continue;
            ++difference.pixels;
            difference.area = Union(difference.area, {x, y, x + 1, y + 1});
        }
    }
    return difference;
}

}  // namespace

void ExpectGolden(const Surface& drawn, const std::string& name) {
    const std::string path = VARNSTRIDE_SOURCE_DIR "/tests/display/golden/" + name + ".png";
    const char* update = std::getenv("VARNSTRIDE_UPDATE");
    if (update != nullptr && std::string(update) == "1") return Write(path, drawn);
    const Result<std::vector<std::byte>> file = ReadWholeFile(path);
    ASSERT_TRUE(file.Ok()) << file.Message();
    const Result<Surface> golden = DecodePng(file.Get());
    ASSERT_TRUE(golden.Ok()) << path << ": " << golden.Message();
    if (golden.Get() == drawn) return;
    const Difference difference = Compare(drawn, golden.Get());
    Write(name + ".drawn.png", drawn);
    Write(name + ".differs.png", difference.picture);
    const Rect& area = difference.area;
    ADD_FAILURE() << name << ": " << drawn.Width() << " x " << drawn.Height() << " beside "
                  << golden.Get().Width() << " x " << golden.Get().Height() << "; "
                  << difference.pixels << " pixels differ, from (" << area.left << ", " << area.top
                  << ") to (" << area.right - 1 << ", " << area.bottom - 1 << "), shown in "
                  << std::filesystem::current_path().string() << "/" << name << ".differs.png";
}

}  // namespace varnstride
