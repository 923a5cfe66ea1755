#include "display/bmp_reader.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <optional>
#include <vector>

namespace varnstride {
namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::size_t kInfoHeader = 40;
constexpr std::size_t kHeaders = kFileHeader + kInfoHeader;
constexpr std::size_t kPaletteEntry = 4;

// Bytes from a place, the lowest first. The caller has checked that they are there.
std::uint32_t Number(std::span<const std::byte> bytes, std::size_t at, std::size_t width) {
    std::uint32_t number = 0;
    for (std::size_t index = width; index-- > 0;)
        number = number << 8 | std::to_integer<std::uint32_t>(bytes[at + index]);
    return number;
}

struct Header {
    std::size_t pixelsAt = 0;
    std::size_t paletteAt = 0;
    std::size_t paletteSize = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;  // below 0: the topmost row comes first
    unsigned depth = 0;       // bits a pixel
    unsigned compression = 0;

    int Rows() const { return height < 0 ? -height : height; }
    // Rows are filled up to whole groups of four bytes.
    std::size_t RowBytes() const { return (static_cast<std::size_t>(width) * depth + 31) / 32 * 4; }
    bool HasPalette() const { return depth <= 8; }
};

Header ReadHeader(std::span<const std::byte> bytes) {
    Header header;
    header.pixelsAt = Number(bytes, 10, 4);
    header.paletteAt = kFileHeader + std::size_t{Number(bytes, 14, 4)};
    header.width = static_cast<std::int32_t>(Number(bytes, 18, 4));
    header.height = static_cast<std::int32_t>(Number(bytes, 22, 4));
    header.depth = Number(bytes, 28, 2);
    header.compression = Number(bytes, 30, 4);
    const std::size_t colors = Number(bytes, 46, 4);
    if (header.HasPalette()) {
        header.paletteSize = colors == 0 ? std::size_t{1} << header.depth : colors;
    }
    return header;
}

std::string Count(std::size_t number) {
    return std::to_string(number);
}

std::optional<std::string> FindHeaderFault(std::span<const std::byte> bytes) {
    if (bytes.size() < 2 || Number(bytes, 0, 2) != 0x4D42) return "is no BMP picture";
    if (bytes.size() < kHeaders) return "is cut short: it ends inside its header";
    const std::size_t size = Number(bytes, 14, 4);
    if (size < kInfoHeader) return "has a header of " + Count(size) + " bytes, expected 40 or more";
    return std::nullopt;
}

std::optional<std::string> FindSizeFault(const Header& header) {
    const auto size = std::to_string(header.width) + " x " + std::to_string(header.height);
    if (header.width == 0 || header.height == 0) return "has no pixels: its size is " + size;
    if (header.width < 0 || header.height == INT32_MIN) return "has an impossible size, " + size;
    if (header.width > kWidestPicture || header.Rows() > kWidestPicture ||
        header.width > kMostPixels / header.Rows()) {
        return "is too large: its size is " + size;
    }
    return std::nullopt;
}

std::optional<std::string> FindDepthFault(const Header& header) {
    constexpr std::array kDepths = {1U, 4U, 8U, 24U, 32U};
    if (std::find(kDepths.begin(), kDepths.end(), header.depth) == kDepths.end()) {
        return "has " + Count(header.depth) + " bits a pixel, expected 1, 4, 8, 24 or 32";
    }
    if (header.compression != 0) {
        return "is compressed (kind " + Count(header.compression) + "), expected plain pixels";
    }
    return std::nullopt;
}

std::optional<std::string> FindLengthFault(const Header& header, std::size_t size) {
    if (header.HasPalette()) {
        if (header.paletteSize > std::size_t{1} << header.depth) {
            return "has a palette of " + Count(header.paletteSize) + " colours, more than " +
                   Count(header.depth) + " bits tell apart";
        }
        if (header.paletteAt + header.paletteSize * kPaletteEntry > size) {
            return "is cut short: it ends inside its palette";
        }
    }
    const std::size_t expected =
        header.pixelsAt + header.RowBytes() * static_cast<std::size_t>(header.Rows());
    if (header.pixelsAt < kHeaders || expected > size) {
        return "is cut short: it holds " + Count(size) + " bytes, its pixels end at " +
               Count(expected);
    }
    return std::nullopt;
}

std::optional<std::string> FindFault(const Header& header, std::size_t size) {
    if (auto fault = FindSizeFault(header)) return fault;
    if (auto fault = FindDepthFault(header)) return fault;
    return FindLengthFault(header, size);
}

Pixel ColorAt(std::span<const std::byte> bytes, std::size_t at) {
    return 0xFF000000U | Number(bytes, at, 3);
}

std::vector<Pixel> ReadPalette(const Header& header, std::span<const std::byte> bytes) {
    std::vector<Pixel> palette;
    palette.reserve(header.paletteSize);
    for (std::size_t entry = 0; entry < header.paletteSize; ++entry)
        palette.push_back(ColorAt(bytes, header.paletteAt + entry * kPaletteEntry));
    return palette;
}

// Pixels of less than a byte stand from its highest bits down.
std::size_t PaletteIndex(std::span<const std::byte> row, std::size_t x, unsigned depth) {
    const std::size_t bit = x * depth;
    const unsigned value = std::to_integer<unsigned>(row[bit / 8]);
    const unsigned shift = 8 - depth - static_cast<unsigned>(bit % 8);
    return value >> shift & ((1U << depth) - 1);
}

// An index beyond the palette is black.
void DecodeRow(const Header& header, std::span<const std::byte> row,
               const std::vector<Pixel>& palette, std::span<Pixel> pixels) {
    for (std::size_t x = 0; x < pixels.size(); ++x) {
        if (!header.HasPalette()) {
            pixels[x] = ColorAt(row, x * (header.depth / 8));
            continue;
        }
        const std::size_t index = PaletteIndex(row, x, header.depth);
        pixels[x] = index < palette.size() ? palette[index] : kBlack;
    }
}

Surface DecodePixels(const Header& header, std::span<const std::byte> bytes) {
    const std::vector<Pixel> palette = ReadPalette(header, bytes);
    Surface surface(header.width, header.Rows());
    for (int y = 0; y < surface.Height(); ++y) {
        const int stored = header.height < 0 ? y : surface.Height() - 1 - y;
        const std::size_t at =
            header.pixelsAt + static_cast<std::size_t>(stored) * header.RowBytes();
        DecodeRow(header, bytes.subspan(at, header.RowBytes()), palette,
                  {surface.Row(y), static_cast<std::size_t>(surface.Width())});
    }
    return surface;
}

}  // namespace

Result<Surface> DecodeBmp(std::span<const std::byte> bytes, const std::string& name) {
    if (const auto fault = FindHeaderFault(bytes)) return Failure{name + ": " + *fault};
    const Header header = ReadHeader(bytes);
    if (const auto fault = FindFault(header, bytes.size())) return Failure{name + ": " + *fault};
    return DecodePixels(header, bytes);
}

Result<Surface> ReadBmp(const std::string& path) {
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    if (error) return Failure{path + ": " + error.message()};
    std::ifstream stream(path, std::ios::binary);
    std::vector<std::byte> bytes(static_cast<std::size_t>(size));
    stream.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size));
    if (!stream) return Failure{path + ": cannot be read"};
    return DecodeBmp(bytes, path);
}

}  // namespace varnstride
