#include "display/png_writer.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "display/deflate.h"

namespace varnstride {
namespace {

using Bytes = std::vector<std::byte>;

constexpr std::array<std::uint32_t, 256> CrcTable() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t index = 0; index < table.size(); ++index) {
        std::uint32_t value = index;
        for (int bit = 0; bit < 8; ++bit)
            value = (value & 1U) != 0 ? 0xEDB88320U ^ value >> 1 : value >> 1;
        table[index] = value;
    }
    return table;
}

std::uint32_t Crc32(std::span<const std::byte> bytes) {
    static constexpr std::array<std::uint32_t, 256> kTable = CrcTable();
    std::uint32_t crc = 0xFFFFFFFFU;
    for (const std::byte byte : bytes)
        crc = kTable[(crc ^ std::to_integer<std::uint32_t>(byte)) & 255U] ^ crc >> 8;
    return ~crc;
}

void PutNumber(Bytes& out, std::uint32_t number) {
    for (int shift = 24; shift >= 0; shift -= 8)
        out.push_back(static_cast<std::byte>(number >> shift & 255U));
}

// The check sum covers the kind and the content.
void PutChunk(Bytes& out, std::string_view kind, const Bytes& content) {
    PutNumber(out, static_cast<std::uint32_t>(content.size()));
    const std::size_t begin = out.size();
    for (const char letter : kind)
        out.push_back(static_cast<std::byte>(letter));
    out.insert(out.end(), content.begin(), content.end());
    PutNumber(out, Crc32(std::span(out).subspan(begin)));
}

Bytes Header(const Surface& surface) {
    constexpr std::array kEightBitColor = {8, 2, 0, 0, 0};
    Bytes header;
    PutNumber(header, static_cast<std::uint32_t>(surface.Width()));
    PutNumber(header, static_cast<std::uint32_t>(surface.Height()));
    for (const int value : kEightBitColor)
        header.push_back(static_cast<std::byte>(value));
    return header;
}

// Every row opens with the number of its filter: none.
Bytes Rows(const Surface& surface) {
    Bytes rows;
    rows.reserve(static_cast<std::size_t>(surface.Height()) *
                 (static_cast<std::size_t>(surface.Width()) * 3 + 1));
    for (int y = 0; y < surface.Height(); ++y) {
        rows.push_back(std::byte{0});
        for (int x = 0; x < surface.Width(); ++x) {
            const Pixel pixel = surface.At(x, y);
            for (const int value : {RedOf(pixel), GreenOf(pixel), BlueOf(pixel)})
                rows.push_back(static_cast<std::byte>(value));
        }
    }
    return rows;
}

}  // namespace

Bytes EncodePng(const Surface& surface) {
    Bytes png;
    for (const char sign : std::string_view("\x89PNG\r\n\x1A\n"))
        png.push_back(static_cast<std::byte>(sign));
    PutChunk(png, "IHDR", Header(surface));
    PutChunk(png, "IDAT", PackZlib(Rows(surface)));
    PutChunk(png, "IEND", {});
    return png;
}

}  // namespace varnstride
