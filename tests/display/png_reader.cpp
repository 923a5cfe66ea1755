#include "display/png_reader.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace varnstride {
namespace {

using Bytes = std::vector<unsigned>;

void Require(bool holds, const char* what) {
    if (!holds) throw std::runtime_error(what);
}

class BitReader {
 public:
    explicit BitReader(const Bytes& bytes) : bytes_(bytes) {}

    unsigned Bit() {
        Require(at_ / 8 < bytes_.size(), "the packed bytes end too early");
        const unsigned bit = bytes_[at_ / 8] >> at_ % 8 & 1U;
        ++at_;
        return bit;
    }
    unsigned Number(unsigned count) {
        unsigned number = 0;
        for (unsigned bit = 0; bit < count; ++bit)
            number |= Bit() << bit;
        return number;
    }
    unsigned Code(unsigned count, unsigned begun = 0) {
        for (unsigned bit = 0; bit < count; ++bit)
            begun = begun << 1 | Bit();
        return begun;
    }
    std::size_t NextByte() const { return (at_ + 7) / 8; }

 private:
    const Bytes& bytes_;
    std::size_t at_ = 0;
};

unsigned ReadSymbol(BitReader& bits) {
    unsigned code = bits.Code(7);
    if (code <= 0x17) return 256 + code;
    code = bits.Code(1, code);
    if (code >= 0x30 && code <= 0xBF) return code - 0x30;
    if (code >= 0xC0 && code <= 0xC7) return 280 + code - 0xC0;
    return 144 + bits.Code(1, code) - 0x190;
}

constexpr unsigned kLengths[] = {3,  4,  5,  6,  7,  8,  9,  10, 11,  13,  15,  17,  19,  23, 27,
                                 31, 35, 43, 51, 59, 67, 83, 99, 115, 131, 163, 195, 227, 258};
constexpr unsigned kDistances[] = {1,    2,    3,    4,    5,    7,    9,    13,    17,    25,
                                   33,   49,   65,   97,   129,  193,  257,  385,   513,   769,
                                   1025, 1537, 2049, 3073, 4097, 6145, 8193, 12289, 16385, 24577};

void CopyRun(BitReader& bits, unsigned symbol, Bytes& out) {
    const unsigned index = symbol - 257;
    Require(index < std::size(kLengths), "a length is wrong");
    const unsigned lengthBits = index < 8 || index == 28 ? 0 : (index - 4) / 4;
    const unsigned length = kLengths[index] + bits.Number(lengthBits);
    const unsigned code = bits.Code(5);
    Require(code < std::size(kDistances), "a distance is wrong");
    const unsigned distance = kDistances[code] + bits.Number(code < 4 ? 0 : (code - 2) / 2);
    Require(distance <= out.size(), "a distance leads before the beginning");
    for (unsigned count = 0; count < length; ++count)
        out.push_back(out[out.size() - distance]);
}

Bytes Unpack(const Bytes& packed) {
    Require(packed.size() > 6 && packed[0] == 0x78 && (packed[0] * 256 + packed[1]) % 31 == 0,
            "no packed stream");
    const Bytes block(packed.begin() + 2, packed.end());
    BitReader bits(block);
    Require(bits.Number(3) == 3, "not one block with fixed codes");
    Bytes out;
    for (unsigned symbol; (symbol = ReadSymbol(bits)) != 256;) {
        if (symbol < 256) {
            out.push_back(symbol);
        } else {
            CopyRun(bits, symbol, out);
        }
    }
    unsigned low = 1;
    unsigned high = 0;
    for (const unsigned byte : out)
        high = (high + (low = (low + byte) % 65521)) % 65521;
    Bytes sum(block.begin() + static_cast<std::ptrdiff_t>(bits.NextByte()), block.end());
    Require(sum == Bytes{high >> 8, high & 255U, low >> 8, low & 255U}, "the check sum is wrong");
    return out;
}

unsigned BigNumber(const Bytes& bytes, std::size_t at) {
    Require(at + 4 <= bytes.size(), "the file ends too early");
    return bytes[at] << 24 | bytes[at + 1] << 16 | bytes[at + 2] << 8 | bytes[at + 3];
}

unsigned Crc(const Bytes& bytes, std::size_t from, std::size_t to) {
    unsigned crc = ~0U;
    for (std::size_t at = from; at < to; ++at) {
        crc ^= bytes[at];
        for (int bit = 0; bit < 8; ++bit)
            crc = crc >> 1 ^ ((crc & 1U) != 0 ? 0xEDB88320U : 0U);
    }
    return ~crc;
}

// The content of the next chunk; `at` moves behind it.
Bytes ReadChunk(const Bytes& file, std::size_t& at, const std::string& kind) {
    const std::size_t begin = at + 8;
    const std::size_t end = begin + BigNumber(file, at);
    Require(end + 4 <= file.size(), "the file ends too early");
    Require(std::string(file.begin() + static_cast<std::ptrdiff_t>(at) + 4,
                        file.begin() + static_cast<std::ptrdiff_t>(begin)) == kind,
            "a chunk is missing");
    Require(Crc(file, at + 4, end) == BigNumber(file, end), "the check sum of a chunk is wrong");
    at = end + 4;
    return {file.begin() + static_cast<std::ptrdiff_t>(begin),
            file.begin() + static_cast<std::ptrdiff_t>(end)};
}

Surface Decode(const Bytes& file) {
    const Bytes signature = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    Require(file.size() > 8 && std::equal(signature.begin(), signature.end(), file.begin()),
            "no PNG file");
    std::size_t at = 8;
    const Bytes header = ReadChunk(file, at, "IHDR");
    Require(Bytes(header.begin() + 8, header.end()) == Bytes{8, 2, 0, 0, 0}, "not 24 bits");
    Surface picture(static_cast<int>(BigNumber(header, 0)), static_cast<int>(BigNumber(header, 4)));
    const Bytes rows = Unpack(ReadChunk(file, at, "IDAT"));
    ReadChunk(file, at, "IEND");
    Require(at == file.size(), "the file goes on behind its end");
    std::size_t next = 0;
    for (int y = 0; y < picture.Height(); ++y) {
        Require(rows.at(next++) == 0, "a row has a filter");
        for (int x = 0; x < picture.Width(); ++x, next += 3)
            picture.At(x, y) =
                0xFF000000U | rows.at(next) << 16 | rows.at(next + 1) << 8 | rows.at(next + 2);
    }
    Require(next == rows.size(), "there are too many rows");
    return picture;
}

}  // namespace

Result<Surface> DecodePng(std::span<const std::byte> bytes) {
    Bytes file;
    for (const std::byte byte : bytes)
        file.push_back(std::to_integer<unsigned>(byte));
    try {
        return Decode(file);
    } catch (const std::exception& error) {
        return Failure{error.what()};
    }
}

}  // namespace varnstride
