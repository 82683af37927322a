// Times two ways of doing one thing, turn by turn, so that a slow moment of the machine meets both.

#pragma once

#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "Interleaved.h"

namespace bench {

// Does its own preparation and gives the seconds of the part that counts.
using Measure = std::function<double()>;

template <typename Work>
double Seconds(const Work& work)
{
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

struct Comparison {
    std::string name;
    double atMost;  // ratio of the medians that is aimed at
    Measure ours;
    Measure peer;
    int rounds = 31;
};

// Prints the median times and the median of the rounds' ratios.
inline void Run(const Comparison& comparison)
{
    std::vector<double> ours;
    std::vector<double> peer;
    std::vector<double> ratios;
    comparison.ours();  // the first run of each pays for pages and caches
    comparison.peer();
    for (int round = 0; round < comparison.rounds; ++round) {
        const bool oursFirst = round % 2 == 0;
        const double first = oursFirst ? comparison.ours() : comparison.peer();
        const double second = oursFirst ? comparison.peer() : comparison.ours();
        ours.push_back(oursFirst ? first : second);
        peer.push_back(oursFirst ? second : first);
        ratios.push_back(ours.back() / peer.back());
    }
    std::printf("%-58s %9.3f ms %9.3f ms %7.3f  (at most %.2f)\n", comparison.name.c_str(),
                Median(ours) * 1e3, Median(peer) * 1e3, Median(ratios), comparison.atMost);
    std::fflush(stdout);
}

}  // namespace bench
