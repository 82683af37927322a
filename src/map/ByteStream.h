// A file read byte by byte, and past what is of no interest.

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <vector>

#include "base/FileBytes.h"

namespace map {

using Byte = unsigned char;

class ByteStream {
public:
    explicit ByteStream(base::InputFile& file) : file_(file), unread_(file.Size()) {}

    std::optional<Byte> Next()
    {
        if (!Fill()) {
            return std::nullopt;
        }
        return buffer_[at_++];
    }

    // False when the file ends before.
    bool Skip(std::uint64_t count)
    {
        while (count > 0 && Fill()) {
            const auto step = std::min<std::uint64_t>(count, buffer_.size() - at_);
            at_ += static_cast<std::size_t>(step);
            count -= step;
        }
        return count == 0;
    }

    // To behind the next such byte; false when there is none.
    bool SkipPast(Byte wanted)
    {
        while (Fill()) {
            const void* const found = std::memchr(&buffer_[at_], wanted, buffer_.size() - at_);
            if (found != nullptr) {
                at_ =
                    static_cast<std::size_t>(static_cast<const Byte*>(found) - buffer_.data()) + 1;
                return true;
            }
            at_ = buffer_.size();
        }
        return false;
    }

    // Fills `target`; false when the file ends before.
    bool Take(std::span<Byte> target)
    {
        for (Byte& byte : target) {
            const std::optional<Byte> next = Next();
            if (!next) {
                return false;
            }
            byte = *next;
        }
        return true;
    }

private:
    // Whether there is a byte at `at_`.
    bool Fill()
    {
        if (at_ < buffer_.size()) {
            return true;
        }
        constexpr std::uint64_t kPiece = std::uint64_t{64} << 10U;
        buffer_.resize(static_cast<std::size_t>(std::min(unread_, kPiece)));
        at_ = 0;
        unread_ -= buffer_.size();
        if (!file_.Read(buffer_)) {
            buffer_.clear();
            unread_ = 0;
        }
        return !buffer_.empty();
    }

    base::InputFile& file_;
    std::uint64_t unread_;
    std::vector<Byte> buffer_;
    std::size_t at_ = 0;
};

}  // namespace map
