// Little-endian records, field after field without padding: the layout of all binary files here.

#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace base {

static_assert(std::endian::native == std::endian::little,
              "fields are copied as they stand in memory");

using ByteVector = std::vector<unsigned char>;
using ByteView = std::span<const unsigned char>;

template <typename T>
concept Scalar = (std::is_arithmetic_v<T> && !std::is_same_v<T, bool>) || std::is_enum_v<T>;

// Appends fields to a growing buffer: little-endian, two's complement, IEEE 754.
class ByteWriter {
public:
    template <Scalar T>
    void Put(T value)
    {
        const auto* const bytes = reinterpret_cast<const unsigned char*>(&value);
        bytes_.insert(bytes_.end(), bytes, bytes + sizeof value);
    }

    void PutBytes(ByteView bytes) { bytes_.insert(bytes_.end(), bytes.begin(), bytes.end()); }

    // 16-bit boolean of the files: -1 true, 0 false.
    void PutBoolean(bool value) { Put<std::int16_t>(value ? -1 : 0); }

    // `length` characters: `text` cut or padded with blanks.
    void PutText(std::string_view text, std::size_t length);

    void PutZeros(std::size_t count) { bytes_.resize(bytes_.size() + count); }

    void Reserve(std::size_t size) { bytes_.reserve(size); }

    const ByteVector& Bytes() const { return bytes_; }
    ByteVector Take() { return std::move(bytes_); }

private:
    ByteVector bytes_;
};

// Reads fields from the front of a buffer. Asking for more than is left leaves the target as it was
// and makes every later read do the same; `Failed` tells.
class ByteReader {
public:
    explicit ByteReader(ByteView bytes) : rest_(bytes) {}

    template <Scalar T>
    void Get(T& value)
    {
        if (const ByteView field = Next(sizeof value); !field.empty()) {
            std::memcpy(&value, field.data(), sizeof value);
        }
    }

    // Any value but 0 is true.
    void GetBoolean(bool& value);

    // `length` characters as they stand, blanks included.
    void GetText(std::string& text, std::size_t length);

    void GetBytes(std::span<unsigned char> target);

    void Skip(std::size_t count) { Next(count); }

    std::size_t Left() const { return rest_.size(); }
    bool Failed() const { return failed_; }

private:
    // The next `count` bytes, or nothing when fewer are left.
    ByteView Next(std::size_t count);

    ByteView rest_;
    bool failed_ = false;
};

}  // namespace base
