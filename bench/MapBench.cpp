// The map model beside GDAL's thin plate spline and beside its own step-by-step form, in one run:
// each round measures both in turn, the ratio is the median over the rounds.

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <gdal.h>
#include <string>
#include <vector>

#include "MapQuality.h"
#include "ThinPlateSpline.h"
#include "map/CalibrationFile.h"
#include "map/Georeference.h"
#include "map/ReferenceTable.h"
#include "map/SampleMaps.h"
#include "map/blend/TriangleBlend.h"

namespace bench {
namespace {

constexpr int kRounds = 31;

double Nanoseconds(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    const auto end = std::chrono::steady_clock::now();
    return std::chrono::duration<double, std::nano>(end - start).count();
}

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// What both do `units` times a call.
struct Contest {
    std::string name;
    double units;
    double bound;  // of the ratio; 0 for none
    std::function<void()> ours;
    std::function<void()> peer;
};

void Run(const Contest& contest, int rounds = kRounds)
{
    contest.ours();
    contest.peer();
    std::vector<double> ours;
    std::vector<double> peer;
    std::vector<double> ratios;
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(Nanoseconds(contest.ours) / contest.units);
        peer.push_back(Nanoseconds(contest.peer) / contest.units);
        ratios.push_back(ours.back() / peer.back());
    }
    const double ratio = Median(ratios);
    std::printf("%-44s %12.1f %12.1f %9.5f", contest.name.c_str(), Median(ours), Median(peer),
                ratio);
    if (contest.bound > 0.0) {
        std::printf("  %7.4f %s", contest.bound, ratio <= contest.bound ? "" : "ABOVE");
    }
    std::printf("\n");
    std::fflush(stdout);
}

constexpr std::size_t kPositions = 25000;

// Keeps results alive.
volatile double sink = 0.0;

struct Workload {
    map::SampleMap map;
    map::ReferenceTable table;
    std::vector<geo::GeoPosition> positions;
    std::vector<map::Pixel> pixels;
    ThinPlateSpline spline;
    std::vector<double> x;
    std::vector<double> y;

    explicit Workload(const map::SampleMap& sample)
        : map(sample), pixels(kPositions), spline(sample.points), x(kPositions), y(kPositions)
    {
        table.Replace(sample.points, static_cast<std::int16_t>(sample.points.size()));
        map::Random random(7);
        for (std::size_t i = 0; i < kPositions; ++i) {
            positions.push_back(map::PositionAround(random, sample));
        }
    }

    void TakePositions()
    {
        for (std::size_t i = 0; i < kPositions; ++i) {
            x[i] = positions[i].longitude;
            y[i] = positions[i].latitude;
        }
    }
};

void RunForward(Workload& w, const std::string& name, double oneBound, double manyBound)
{
    Run({.name = "GeoToPixel, one call, " + name,
         .units = kPositions,
         .bound = oneBound,
         .ours =
             [&w] {
                 for (std::size_t i = 0; i < kPositions; ++i) {
                     w.pixels[i] = GeoToPixel(w.table, w.positions[i]);
                 }
             },
         .peer =
             [&w] {
                 w.TakePositions();
                 for (std::size_t i = 0; i < kPositions; ++i) {
                     w.spline.ToPixels({&w.x[i], 1}, {&w.y[i], 1});
                 }
             }});
    Run({.name = "GeoToPixel, batch, " + name,
         .units = kPositions,
         .bound = manyBound,
         .ours = [&w] { GeoToPixel(w.table, w.positions, w.pixels); },
         .peer =
             [&w] {
                 w.TakePositions();
                 w.spline.ToPixels(w.x, w.y);
             }});
}

void RunEstimate(Workload& w, const std::string& name, double bound)
{
    map::Random random(8);
    std::vector<double> columns;
    std::vector<double> rows;
    for (std::size_t i = 0; i < kPositions; ++i) {
        columns.push_back(std::floor(map::Between(random, 0.0, w.map.size.width)));
        rows.push_back(std::floor(map::Between(random, 0.0, w.map.size.height)));
    }
    Run({.name = "PixelToGeoEstimate, " + name,
         .units = kPositions,
         .bound = bound,
         .ours =
             [&] {
                 double sum = 0.0;
                 for (std::size_t i = 0; i < kPositions; ++i) {
                     sum += PixelToGeoEstimate(w.table, static_cast<std::int32_t>(columns[i]),
                                               static_cast<std::int32_t>(rows[i]))
                                .latitude;
                 }
                 sink = sum;
             },
         .peer =
             [&] {
                 w.x = columns;
                 w.y = rows;
                 for (std::size_t i = 0; i < kPositions; ++i) {
                     w.spline.ToPositions({&w.x[i], 1}, {&w.y[i], 1});
                 }
             }});
}

void RunChange(Workload& w, const std::string& name, double bound)
{
    constexpr int kChanges = 20;
    Run({.name = "table change, " + name,
         .units = kChanges,
         .bound = bound,
         .ours =
             [&w] {
                 for (int i = 0; i < kChanges; ++i) {
                     w.table.Replace(w.map.points, w.table.RefCount());
                 }
             },
         .peer =
             [&w] {
                 for (int i = 0; i < kChanges; ++i) {
                     const ThinPlateSpline spline(w.map.points);
                 }
             }});
}

// The search of PixelToGeo over the step-by-step form.
geo::GeoPosition SearchedThroughTriangles(std::span<const map::ReferencePoint> points,
                                          map::Pixel target)
{
    geo::GeoPosition at = TriangleBlendToGeo(points, target);
    const auto errorOf = [&](geo::GeoPosition position) {
        return map::Distance(TriangleBlendToPixel(points, position), target);
    };
    double best = errorOf(at);
    double step = 0.1;
    for (int round = 0; round <= 1000; ++round) {
        bool improved = false;
        for (const double change : {-step, step}) {
            for (double* const coordinate : {&at.latitude, &at.longitude}) {
                const double before = *coordinate;
                *coordinate += change;
                const double error = errorOf(at);
                if (error < best) {
                    best = error;
                    improved = true;
                    if (error < map::kClickTolerance) {
                        return at;
                    }
                } else {
                    *coordinate = before;
                }
            }
        }
        step = improved ? step * 2.0 : step / 2.0;
    }
    return at;
}

void RunSearch(const Workload& w, const std::string& name, int clicks, int rounds, double bound)
{
    const auto click = [&w](int i) {
        return map::Pixel{.x = std::floor(w.map.size.width * (i + 1) / 13.0),
                          .y = std::floor(w.map.size.height * (i + 2) / 14.0)};
    };
    Run({.name = "refined PixelToGeo / step by step, " + name,
         .units = static_cast<double>(clicks),
         .bound = bound,
         .ours =
             [&] {
                 for (int i = 0; i < clicks; ++i) {
                     const map::Pixel p = click(i);
                     sink = PixelToGeo(w.table, static_cast<std::int32_t>(p.x),
                                       static_cast<std::int32_t>(p.y), map::kClickTolerance,
                                       map::Refinement::On)
                                .error;
                 }
             },
         .peer =
             [&] {
                 for (int i = 0; i < clicks; ++i) {
                     sink = SearchedThroughTriangles(w.table.Points(), click(i)).latitude;
                 }
             }},
        rounds);
}

struct Bounds {
    int count;
    double one, many, estimate, search, change;
    int clicks, rounds;
};

void RunScattered(const Bounds& b)
{
    map::Random random(static_cast<std::uint64_t>(b.count));
    Workload w(map::ScannedSheet(random, b.count));
    const std::string name = "n = " + std::to_string(b.count);
    RunForward(w, name, b.one, b.many);
    RunEstimate(w, name, b.estimate);
    RunChange(w, name, b.change);
    RunSearch(w, name, b.clicks, b.rounds, b.search);
}

void RunAll()
{
    std::printf("%-44s %12s %12s %9s  %7s\n", "nanoseconds", "ours", "peer", "ratio", "bound");
    const Bounds scattered[] = {
        {3, 0.0, 1.2, 2.0, 0.0, 0.5, 12, 31},   {4, 0.0, 1.2, 2.0, 0.0, 0.5, 12, 31},
        {6, 0.0, 1.2, 2.0, 0.0, 0.5, 12, 31},   {10, 0.0, 0.70, 2.0, 0.012, 0.5, 6, 9},
        {20, 0.0, 0.50, 3.0, 0.002, 0.5, 2, 5}, {50, 0.0, 0.40, 4.0, 0.0003, 1.5, 1, 3},
    };
    for (const Bounds& bounds : scattered) {
        RunScattered(bounds);
    }

    const map::ImageSize size = {.width = 1200, .height = 900};
    std::vector<map::ReferencePoint> corners = ReferencesFromInf({48.5, 47.9, 11.0, 12.1}, size);
    corners.pop_back();
    Workload fourCorners({.size = size, .points = corners});
    RunForward(fourCorners, "four corners", 0.0, 1.2);
    for (const int lines : {3, 5, 7}) {
        Workload grid(map::PrintedGrid(lines, lines, 0.1, 8.2, 48.1));
        RunForward(grid, "grid " + std::to_string(lines) + "x" + std::to_string(lines), 0.0, 1.2);
    }
}

void PrintTime(const char* what, double bound, const std::function<void()>& work)
{
    constexpr double kPerMillisecond = 1e6;
    std::vector<double> times;
    for (int round = 0; round < 5; ++round) {
        times.push_back(Nanoseconds(work) / kPerMillisecond);
    }
    const double median = Median(times);
    std::printf("  %-20s %8.1f ms  (at most %.0f)%s\n", what, median, bound,
                median <= bound ? "" : " ABOVE");
}

// Tables of 200 references that no map has: what no table may do is to freeze the window.
void PrintHostile()
{
    constexpr int kCount = 200;
    using Maker = map::ReferencePoint (*)(map::Random&, int);
    const struct {
        const char* name;
        Maker make;
    } tables[] = {
        {"an oblique line but for 1e-7 degrees",
         [](map::Random& r, int i) {
             const double along = i / 200.0;
             return map::ReferencePoint{std::floor(1000.0 * along), std::floor(700.0 * along),
                                        8.0 + along + map::Between(r, -1e-7, 1e-7),
                                        48.0 + 0.5 * along + map::Between(r, -1e-7, 1e-7)};
         }},
        {"the same, and one beside it",
         [](map::Random& r, int i) {
             const double along = i / 200.0;
             return map::ReferencePoint{std::floor(1000.0 * along), std::floor(700.0 * along),
                                        8.0 + along + map::Between(r, -1e-7, 1e-7),
                                        48.0 + 0.5 * along + map::Between(r, -1e-7, 1e-7)
                                            + (i == 77 ? 0.3 : 0.0)};
         }},
        {"a row but for 1e-7 degrees, in six decimals",
         [](map::Random& r, int i) {
             return map::ReferencePoint{static_cast<double>(5 * i), i == 77 ? 500.0 : 100.0,
                                        8.0 + i % 100 * 0.01,
                                        48.0 + (i % 2) * 1e-7 + map::Between(r, 0.0, 0.0)};
         }},
        {"scales from 1e-9 to 100 degrees",
         [](map::Random& r, int i) {
             const double scale = std::pow(10.0, i % 12 - 9);
             return map::ReferencePoint{
                 std::floor(map::Between(r, 0.0, 1000.0)), std::floor(map::Between(r, 0.0, 1000.0)),
                 8.0 + map::Between(r, -scale, scale), 48.0 + map::Between(r, -scale, scale)};
         }},
        {"ten places twenty times each",
         [](map::Random& r, int i) {
             return map::ReferencePoint{std::floor(map::Between(r, 0.0, 1000.0)),
                                        std::floor(map::Between(r, 0.0, 1000.0)),
                                        8.0 + i % 10 * 0.1, 48.0 + i % 10 * (i % 10) * 0.01};
         }},
        {"a grid in six decimals",
         [](map::Random&, int i) {
             return map::ReferencePoint{50.0 * (i % 14), 1000.0 - 60.0 * (i / 14),
                                        std::round((8.0 + i % 14 / 3.0) * 1e6) / 1e6,
                                        std::round((48.0 + i / 14 / 3.0) * 1e6) / 1e6};
         }},
    };
    for (const auto& hostile : tables) {
        map::Random random(9);
        std::vector<map::ReferencePoint> points;
        for (int i = 0; i < kCount; ++i) {
            points.push_back(hostile.make(random, i));
        }
        std::vector<geo::GeoPosition> positions;
        for (std::size_t i = 0; i < kPositions; ++i) {
            positions.push_back({.latitude = map::Between(random, 47.5, 49.0),
                                 .longitude = map::Between(random, 7.5, 9.5)});
        }
        std::vector<map::Pixel> pixels(kPositions);
        map::ReferenceTable table;
        std::printf("200 references: %s\n", hostile.name);
        PrintTime("prepared", 200.0, [&] { table.Replace(points, kCount); });
        PrintTime("25000 stations", 30.0, [&] { GeoToPixel(table, positions, pixels); });
        PrintTime("a refined click", 50.0, [&] {
            sink = PixelToGeo(table, 300, 200, map::kClickTolerance, map::Refinement::On).error;
        });
    }
}

}  // namespace
}  // namespace bench

int main()
{
    // The spline warns of tables that it can only solve approximately.
    CPLSetErrorHandler(CPLQuietErrorHandler);
    bench::PrintHostile();
    bench::RunAll();
    bench::PrintMapQuality();
    return EXIT_SUCCESS;
}
