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

inline std::byte* PutNumber(std::byte* to, std::int64_t value, Width width) {
    const bool narrow = width == Width::Int16;
    const std::int64_t low = narrow ? INT16_MIN : INT32_MIN;
    const std::int64_t high = narrow ? INT16_MAX : INT32_MAX;
    const auto bits = static_cast<std::uint32_t>(std::clamp(value, low, high));
    to[0] = static_cast<std::byte>(bits);
    to[1] = static_cast<std::byte>(bits >> 8);
    if (narrow) return to + 2;
    to[2] = static_cast<std::byte>(bits >> 16);
    to[3] = static_cast<std::byte>(bits >> 24);
    return to + 4;
}

inline int NumberAt(const std::byte* from, Width width) {
    const auto low = static_cast<std::uint32_t>(from[0]) | static_cast<std::uint32_t>(from[1]) << 8;
    if (width == Width::Int16) return static_cast<std::int16_t>(low);
    return static_cast<std::int32_t>(low | static_cast<std::uint32_t>(from[2]) << 16 |
                                     static_cast<std::uint32_t>(from[3]) << 24);
}

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
    std::byte* to;
    const Record& record;

    template <typename Field>
    void operator()(const char*, Field Record::*field, Width width) {
        to = PutNumber(to, static_cast<std::int64_t>(record.*field), width);
    }
    template <typename Item, std::size_t Count>
    void operator()(const char*, std::array<Item, Count> Record::*field) {
        static_assert(sizeof(Item) == 1);
        std::memcpy(to, (record.*field).data(), Count);
        to += Count;
    }
};

template <typename Record>
struct FieldReader {
    const std::byte* from;
    Record& record;

    template <typename Field>
    void operator()(const char*, Field Record::*field, Width width) {
        record.*field = static_cast<Field>(NumberAt(from, width));
        from += static_cast<std::size_t>(width);
    }
    template <typename Item, std::size_t Count>
    void operator()(const char*, std::array<Item, Count> Record::*field) {
        static_assert(sizeof(Item) == 1);
        std::memcpy((record.*field).data(), from, Count);
        from += Count;
    }
};

// Fills a buffer whose size the caller knows.
class ByteWriter {
 public:
    explicit ByteWriter(std::size_t size) : bytes_(size) {}

    void Bytes(std::span<const std::byte> bytes) {
        std::memcpy(Next(bytes.size()), bytes.data(), bytes.size());
    }
    void Number(std::int64_t value, Width width) {
        PutNumber(Next(static_cast<std::size_t>(width)), value, width);
    }
    template <typename Record>
    void Put(const Record& record) {
        std::byte* const to = Next(SizeInFile<Record>());
        if constexpr (IsFileImage<Record>()) {
            std::memcpy(to, &record, sizeof(Record));
        } else {
            RecordFields<Record>::ForEach(FieldWriter<Record>{to, record});
        }
    }

    // The buffer, once it is full.
    std::vector<std::byte> Take() { return std::move(bytes_); }

 private:
    std::byte* Next(std::size_t size) {
        at_ += size;
        return bytes_.data() + (at_ - size);
    }

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
        return NumberAt(Bytes(static_cast<std::size_t>(width)).data(), width);
    }
    template <typename Record>
    void Get(Record& record) {
        const std::byte* const from = Bytes(SizeInFile<Record>()).data();
        if constexpr (IsFileImage<Record>()) {
            std::memcpy(&record, from, sizeof(Record));
        } else {
            RecordFields<Record>::ForEach(FieldReader<Record>{from, record});
        }
    }

 private:
    std::span<const std::byte> bytes_;
    std::size_t at_ = 0;
};

}  // namespace varnstride
