// Compares the run times of two or more functions on a machine that is not quiet.
//
// All functions run once per round, one after the other, and only times of the same round are
// divided by each other: a slow stretch of the machine slows both sides of a ratio. The median over
// the rounds is what counts.

#pragma once

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <functional>
#include <utility>
#include <vector>

namespace bench {

inline constexpr int kRounds = 41;

// CPU time of this thread in seconds.
inline double ThreadSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

inline double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// What is compared: a function that does its work once and returns a number made of every result,
// so that none of the work can be left out.
using Work = std::function<double()>;

class Interleaved {
public:
    // The index by which the times are asked for.
    std::size_t Add(Work work)
    {
        works_.push_back(std::move(work));
        return works_.size() - 1;
    }

    // One round to warm up, then kRounds measured ones.
    void Run()
    {
        seconds_.assign(works_.size(), {});
        for (int round = 0; round <= kRounds; ++round) {
            for (std::size_t i = 0; i < works_.size(); ++i) {
                const double start = ThreadSeconds();
                sink_ = works_[i]();
                const double end = ThreadSeconds();
                if (round > 0) {
                    seconds_[i].push_back(end - start);
                }
            }
        }
    }

    double MedianSeconds(std::size_t work) const { return Median(seconds_[work]); }

    // Median over the rounds of time of `work` / time of `peer`.
    double MedianRatio(std::size_t work, std::size_t peer) const
    {
        std::vector<double> ratios;
        for (std::size_t round = 0; round < seconds_[work].size(); ++round) {
            ratios.push_back(seconds_[work][round] / seconds_[peer][round]);
        }
        return Median(ratios);
    }

private:
    std::vector<Work> works_;
    std::vector<std::vector<double>> seconds_;  // by work, then by round
    volatile double sink_ = 0.0;
};

}  // namespace bench
