#include "files/record_bytes.h"

namespace varnstride {
namespace {

std::int64_t Clamped(std::int64_t value, Width width) {
    const bool narrow = width == Width::Int16;
    const std::int64_t low = narrow ? INT16_MIN : INT32_MIN;
    const std::int64_t high = narrow ? INT16_MAX : INT32_MAX;
    return std::clamp(value, low, high);
}

}  // namespace

void ByteWriter::Number(std::int64_t value, Width width) {
    const auto bits = static_cast<std::uint32_t>(Clamped(value, width));
    for (int byte = 0; byte < static_cast<int>(width); ++byte) {
        bytes_[at_++] = static_cast<std::byte>(bits >> (8 * byte) & 0xFFU);
    }
}

int ByteReader::Number(Width width) {
    const auto bytes = Bytes(static_cast<std::size_t>(width));
    std::uint32_t bits = 0;
    for (std::size_t byte = 0; byte < bytes.size(); ++byte) {
        bits |= static_cast<std::uint32_t>(bytes[byte]) << (8 * byte);
    }
    if (width == Width::Int16) return static_cast<std::int16_t>(bits);
    return static_cast<std::int32_t>(bits);
}

}  // namespace varnstride
