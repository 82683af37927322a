// The quicksort as it is defined: on whole records, step by step, as plainly as possible. The
// benchmark sorts with it, too.

#pragma once

#include <cmath>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "stations/StationRecord.h"

namespace stations {

class PlainQuicksort {
public:
    PlainQuicksort(std::vector<StationRecord>& records, int key, bool descending,
                   std::vector<double>& keyValues)
        : records_(records), keyValues_(keyValues), key_(key), descending_(descending)
    {
    }

    int Compare(long i, long j) const
    {
        const int result = CompareAscending(i, j);
        return descending_ ? -result : result;
    }

    void Swap(long i, long j)
    {
        if (key_ < 0 || key_ > 9) {
            return;
        }
        std::swap(At(i), At(j));
        if (key_ == 7 || key_ == 8) {
            std::swap(keyValues_[static_cast<std::size_t>(i)],
                      keyValues_[static_cast<std::size_t>(j)]);
        }
    }

    void Sort(long lo, long hi)
    {
        if (lo >= hi) {
            return;
        }
        std::vector<std::pair<long, long>> stack(101);  // from 1 on: upper bound, lower bound
        std::size_t sp = 1;
        for (;;) {
            auto [i, j] = Partition(lo, hi);
            if (lo < j) {
                if (sp + 1 == stack.size()) {
                    stack.resize(stack.size() + 100);
                }
                stack[sp] = {hi, i};
                ++sp;
                hi = j;
                continue;
            }
            while (i >= hi) {
                if (sp < 2) {
                    return;
                }
                --sp;
                hi = stack[sp].first;
                i = stack[sp].second;
            }
            lo = i;
        }
    }

private:
    StationRecord& At(long i) const { return records_[static_cast<std::size_t>(i)]; }

    std::pair<long, long> Partition(long lo, long hi)
    {
        long i = lo;
        long j = hi;
        long p = std::lrint(static_cast<double>(lo + hi) / 2.0);  // halves to even
        do {
            while (Compare(i, p) < 0) {
                ++i;
            }
            while (Compare(j, p) > 0) {
                --j;
            }
            if (i > j) {
                break;
            }
            if (i == p) {
                p = j;
            } else if (j == p) {
                p = i;
            }
            Swap(i, j);
            ++i;
            --j;
        } while (i <= hi && j >= lo);
        return {i, j};
    }

    int CompareTexts(long i, long j, const std::vector<int>& fields) const
    {
        for (const int field : fields) {
            const std::string a(At(i).Bytes(static_cast<Field>(field)));
            const std::string b(At(j).Bytes(static_cast<Field>(field)));
            if (a != b) {
                return a < b ? -1 : 1;
            }
        }
        return 0;
    }

    static int CompareNumbers(double a, double b)
    {
        if (a < b) {
            return -1;
        }
        return a > b ? 1 : 0;
    }

    int CompareAscending(long i, long j) const
    {
        const int latitude = CompareNumbers(At(i).Latitude(), At(j).Latitude());
        const int longitude = CompareNumbers(At(i).Longitude(), At(j).Longitude());
        switch (key_) {
        case 0: return CompareTexts(i, j, {0, 1, 2, 3});
        case 1: return CompareTexts(i, j, {1, 0, 2, 3});
        case 2: return CompareTexts(i, j, {2, 0, 1, 3});
        case 3: return CompareTexts(i, j, {3, 0, 1, 2});
        case 4:
            if (latitude != 0) {
                return latitude;
            }
            return longitude != 0 ? longitude : CompareTexts(i, j, {0, 1, 2, 3, 4, 5});
        case 5:
            if (longitude != 0) {
                return longitude;
            }
            return latitude != 0 ? latitude : CompareTexts(i, j, {0, 1, 2});
        case 6: return CompareTexts(i, j, {4, 0, 1, 2});
        case 7:
        case 8:
            return CompareNumbers(keyValues_[static_cast<std::size_t>(i)],
                                  keyValues_[static_cast<std::size_t>(j)]);
        case 9: return CompareTexts(i, j, {5, 0, 1, 2});
        default: return 0;
        }
    }

    std::vector<StationRecord>& records_;
    std::vector<double>& keyValues_;
    int key_;
    bool descending_;
};

}  // namespace stations
