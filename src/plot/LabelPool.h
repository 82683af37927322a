// The distinct texts that label markers, in the code page of the records.

#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace plot {

using LabelId = std::uint32_t;

// Gives equal texts one number, so that a label is measured and painted once however many markers
// carry it and however often they are drawn. Numbers count up from 0 and hold until Clear.
class LabelPool {
public:
    LabelId Number(std::string_view text)
    {
        if (const auto known = numbers_.find(text); known != numbers_.end()) {
            return known->second;
        }
        const auto number = static_cast<LabelId>(texts_.size());
        texts_.emplace_back(text);
        numbers_.emplace(texts_.back(), number);
        return number;
    }

    // Valid until Clear.
    std::string_view Text(LabelId label) const { return texts_[label]; }

    std::size_t Size() const { return texts_.size(); }

    void Clear()
    {
        numbers_.clear();
        texts_.clear();
    }

private:
    std::deque<std::string> texts_;  // does not move its elements: the keys below point at them
    std::unordered_map<std::string_view, LabelId> numbers_;
};

}  // namespace plot
