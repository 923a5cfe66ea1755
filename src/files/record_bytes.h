// Records to bytes and back, by their field lists: little-endian, without gaps. Numbers beyond a
// field's width stop at its end.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

#include "model/record_fields.h"

namespace varnstride {

// Fills a buffer whose size the caller knows.
class ByteWriter {
 public:
    explicit ByteWriter(std::size_t size) : bytes_(size) {}

    void Bytes(std::span<const std::byte> bytes) {
        std::copy(bytes.begin(), bytes.end(), bytes_.begin() + static_cast<std::ptrdiff_t>(at_));
        at_ += bytes.size();
    }
    void Number(std::int64_t value, Width width) {
        const bool narrow = width == Width::Int16;
        const std::int64_t low = narrow ? INT16_MIN : INT32_MIN;
        const std::int64_t high = narrow ? INT16_MAX : INT32_MAX;
        const auto bits = static_cast<std::uint32_t>(std::clamp(value, low, high));
        for (int byte = 0; byte < static_cast<int>(width); ++byte) {
            bytes_[at_++] = static_cast<std::byte>(bits >> (8 * byte) & 0xFFU);
        }
    }
    template <typename Record>
    void Put(const Record& record);

    // Everything that was written.
    std::vector<std::byte> Take() {
        bytes_.resize(at_);
        return std::move(bytes_);
    }

 private:
    std::vector<std::byte> bytes_;
    std::size_t at_ = 0;
};

// Reads on from the front. The caller has made sure that enough bytes are left.
class ByteReader {
 public:
    explicit ByteReader(std::span<const std::byte> bytes) : bytes_(bytes) {}

    std::size_t Left() const { return bytes_.size() - at_; }
    std::span<const std::byte> Bytes(std::size_t count) {
        at_ += count;
        return bytes_.subspan(at_ - count, count);
    }
    int Number(Width width) {
        const auto bytes = Bytes(static_cast<std::size_t>(width));
        std::uint32_t bits = 0;
        for (std::size_t byte = 0; byte < bytes.size(); ++byte) {
            bits |= static_cast<std::uint32_t>(bytes[byte]) << (8 * byte);
        }
        if (width == Width::Int16) return static_cast<std::int16_t>(bits);
        return static_cast<std::int32_t>(bits);
    }
    template <typename Record>
    void Get(Record& record);

 private:
    std::span<const std::byte> bytes_;
    std::size_t at_ = 0;
};

template <typename Record>
struct FieldSizes {
    std::size_t& sum;

    template <typename Field>
    constexpr void operator()(const char*, Field Record::*, Width width) {
        sum += static_cast<std::size_t>(width);
    }
    template <typename Item, std::size_t Count>
    constexpr void operator()(const char*, std::array<Item, Count> Record::*) {
        sum += Count;
    }
};

// Bytes of a record in a file.
template <typename Record>
constexpr std::size_t SizeInFile() {
    std::size_t size = 0;
    RecordFields<Record>::ForEach(FieldSizes<Record>{size});
    return size;
}

// Whether the record lies in memory as it does in a file, so that it can be copied as a whole: with
// nothing but fields of four bytes, which its struct declares in the order of its list.
template <typename Record>
constexpr bool IsFileImage() {
    return std::endian::native == std::endian::little && std::is_trivially_copyable_v<Record> &&
           sizeof(Record) == SizeInFile<Record>();
}

template <typename Record>
struct FieldWriter {
    ByteWriter& writer;
    const Record& record;

    template <typename Field>
    void operator()(const char*, Field Record::*field, Width width) {
        writer.Number(static_cast<std::int64_t>(record.*field), width);
    }
    template <typename Item, std::size_t Count>
    void operator()(const char*, std::array<Item, Count> Record::*field) {
        writer.Bytes(std::as_bytes(std::span(record.*field)));
    }
};

template <typename Record>
struct FieldReader {
    ByteReader& reader;
    Record& record;

    template <typename Field>
    void operator()(const char*, Field Record::*field, Width width) {
        record.*field = static_cast<Field>(reader.Number(width));
    }
    template <typename Item, std::size_t Count>
    void operator()(const char*, std::array<Item, Count> Record::*field) {
        const auto bytes = reader.Bytes(Count);
        std::transform(bytes.begin(), bytes.end(), (record.*field).begin(),
                       [](std::byte byte) { return static_cast<Item>(byte); });
    }
};

template <typename Record>
void ByteWriter::Put(const Record& record) {
    if constexpr (IsFileImage<Record>()) {
        Bytes(std::as_bytes(std::span(&record, 1)));
    } else {
        RecordFields<Record>::ForEach(FieldWriter<Record>{*this, record});
    }
}

template <typename Record>
void ByteReader::Get(Record& record) {
    if constexpr (IsFileImage<Record>()) {
        std::memcpy(&record, Bytes(sizeof(Record)).data(), sizeof(Record));
    } else {
        RecordFields<Record>::ForEach(FieldReader<Record>{*this, record});
    }
}

}  // namespace varnstride
