#include "ui/map/MarkerLayer.h"

#include <map>
#include <random>
#include <string>
#include <vector>

#include <QPainter>

#include <gtest/gtest.h>

namespace ui {
namespace {

constexpr QColor kPlate{0x30, 0x8C, 0xC6};
constexpr QColor kInk{0xEE, 0xEE, 0xEE};

struct LabelledPoint {
    plot::SurfacePoint at;
    std::string label;
};

QImage NewPicture(plot::SurfaceSize surface, qreal scale)
{
    QImage picture(qRound(surface.width * scale), qRound(surface.height * scale),
                   QImage::Format_RGB32);
    picture.fill(QColor(0xD8, 0xE8, 0xD0));
    return picture;
}

const MarkerPainter& PainterAt(qreal scale)
{
    static std::map<qreal, MarkerPainter> painters;
    return painters.try_emplace(scale, scale, kPlate, kInk).first->second;
}

// One marker after the other, nothing left out, nothing kept.
QImage PaintedPlainly(const std::vector<LabelledPoint>& points, plot::SurfaceSize surface,
                      qreal scale)
{
    QImage picture = NewPicture(surface, scale);
    const MarkerPainter& marker = PainterAt(scale);
    QPainter painter(&picture);
    for (const LabelledPoint& point : points) {
        marker.DrawMarker(painter, point.at, point.label);
    }
    return picture;
}

QImage PaintedAtOnce(MarkerLayer& layer, const std::vector<LabelledPoint>& points,
                     plot::SurfaceSize surface, qreal scale)
{
    QImage picture = NewPicture(surface, scale);
    std::vector<Marker> markers;
    markers.reserve(points.size());
    for (const LabelledPoint& point : points) {
        markers.push_back({.at = point.at, .label = layer.Number(point.label)});
    }
    layer.Paint(picture, markers, PainterAt(scale));
    return picture;
}

class Points {
public:
    std::vector<LabelledPoint> Next(int count, plot::SurfaceSize surface)
    {
        std::uniform_int_distribution<int> x(-60, surface.width + 20);
        std::uniform_int_distribution<int> y(-20, surface.height + 20);
        std::vector<LabelledPoint> points;
        points.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i) {
            points.push_back({.at = {x(random_), y(random_)}, .label = NextLabel()});
        }
        return points;
    }

private:
    // Callsigns mostly; also every byte of the code page, and lengths from nothing to 254.
    std::string NextLabel()
    {
        std::uniform_int_distribution<int> kind(0, 20);
        std::uniform_int_distribution<int> letter('A', 'Z');
        std::uniform_int_distribution<int> byte(0, 255);
        std::uniform_int_distribution<std::size_t> length(0, 254);
        const int chosen = kind(random_);
        if (chosen == 0) {
            return {};
        }
        std::string label(chosen == 1 ? length(random_) / 4 : 6, ' ');
        for (char& c : label) {
            c = static_cast<char>(chosen < 4 ? byte(random_) : letter(random_));
        }
        return label;
    }

    std::mt19937 random_{7};  // NOLINT: the same pictures in every run
};

TEST(MarkerLayer, GivesThePixelsOfPlainPainting)
{
    Points points;
    for (const qreal scale : {1.0, 1.25, 1.5, 2.0}) {
        MarkerLayer layer;  // kept from frame to frame, as in the window
        for (const int count : {0, 1, 40, 400, 4000}) {
            SCOPED_TRACE(testing::Message() << count << " markers at scale " << scale);
            const plot::SurfaceSize surface{301, 203};
            const std::vector<LabelledPoint> scene = points.Next(count, surface);
            const QImage plain = PaintedPlainly(scene, surface, scale);
            EXPECT_EQ(PaintedAtOnce(layer, scene, surface, scale), plain);
            EXPECT_EQ(PaintedAtOnce(layer, scene, surface, scale), plain);
        }
    }
}

TEST(MarkerLayer, FollowsAChangeOfScaleAndColours)
{
    MarkerLayer layer;
    const std::vector<LabelledPoint> scene = {{{50, 50}, "DL1ABC"}};
    PaintedAtOnce(layer, scene, {120, 90}, 1.0);
    EXPECT_EQ(PaintedAtOnce(layer, scene, {120, 90}, 2.0), PaintedPlainly(scene, {120, 90}, 2.0));
    EXPECT_EQ(PaintedAtOnce(layer, scene, {120, 90}, 1.0), PaintedPlainly(scene, {120, 90}, 1.0));
}

TEST(MarkerLayer, DropsPicturesThatAreNoLongerShown)
{
    // All of them would be some 200 MB.
    MarkerLayer layer;
    std::string label(254, 'M');
    for (int i = 0; i < 1000; ++i) {
        label.replace(0, 4, std::to_string(1000 + i));
        const std::vector<LabelledPoint> scene = {{{10, 10}, label}};
        const QImage painted = PaintedAtOnce(layer, scene, {2500, 20}, 2.0);
        if (i % 20 == 0) {
            ASSERT_EQ(painted, PaintedPlainly(scene, {2500, 20}, 2.0));
        }
        ASSERT_LE(layer.KeptPixels(), (std::size_t{16} << 20U) + 200'000U);
    }
    layer.Restart();
    EXPECT_EQ(layer.KeptPixels(), 0U);
    EXPECT_EQ(layer.LabelCount(), 0U);
}

}  // namespace
}  // namespace ui
