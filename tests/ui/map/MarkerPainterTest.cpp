#include "ui/map/MarkerPainter.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include "base/CodePage.h"

namespace ui {
namespace {

constexpr QColor kGround{0xFF, 0x00, 0x00};
constexpr QColor kPlate{0x30, 0x8C, 0xC6};
constexpr QColor kInk{0xCC, 0xCC, 0xCC};

QImage Painted(const MarkerPainter& marker, plot::SurfacePoint at, std::string_view text, int scale)
{
    QImage picture(200 * scale, 60 * scale, QImage::Format_RGB32);
    picture.fill(kGround);
    QPainter painter(&picture);
    marker.DrawMarker(painter, at, text);
    return picture;
}

// Box around all pixels that are no longer ground; empty when there are none.
QRect Touched(const QImage& picture)
{
    QRect box;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) != kGround) {
                box |= QRect(x, y, 1, 1);
            }
        }
    }
    return box;
}

TEST(DrawMarker, DrawsThePlateFromLeftAboveTheAnchorToBehindTheText)
{
    const MarkerPainter marker(1.0, kPlate, kInk);
    const int width = marker.TextWidth("DL1ABC");
    EXPECT_GT(width, 30);
    const QImage picture = Painted(marker, {20, 30}, "DL1ABC", 1);
    EXPECT_EQ(Touched(picture), QRect(QPoint(16, 25), QPoint(20 + width + 5, 36)));
    EXPECT_EQ(picture.pixelColor(16, 25), kPlate);
    EXPECT_EQ(picture.pixelColor(20 + width + 5, 36), kPlate);
}

TEST(DrawMarker, DrawsTheSquareAroundTheAnchor)
{
    const QImage picture = Painted(MarkerPainter(1.0, kPlate, kInk), {20, 30}, "DL1ABC", 1);
    for (int y = 27; y <= 33; ++y) {
        for (int x = 17; x <= 23; ++x) {
            const int distance = std::max(std::abs(x - 20), std::abs(y - 30));
            EXPECT_EQ(picture.pixelColor(x, y), distance == 2 ? kInk : kPlate) << x << "/" << y;
        }
    }
}

TEST(DrawMarker, PrintsTheTextFourUnitsBehindTheAnchor)
{
    const MarkerPainter marker(1.0, kPlate, kInk);
    const QImage picture = Painted(marker, {20, 30}, "HHHHHH", 1);
    QRect text;
    for (int y = 25; y <= 36; ++y) {
        for (int x = 23; x <= 20 + marker.TextWidth("HHHHHH") + 5; ++x) {
            if (picture.pixelColor(x, y) != kPlate) {
                text |= QRect(x, y, 1, 1);
            }
        }
    }
    // The stem of an H begins up to 2 pixels behind its place; capitals stand on the baseline,
    // which lies 10 below the top of the text at y - 6.
    EXPECT_GE(text.left(), 24);
    EXPECT_LE(text.left(), 26);
    EXPECT_EQ(text.bottom(), 30 - 6 + 10 - 1);
    EXPECT_GE(text.top(), 25);
    EXPECT_LE(text.top(), 27);
    EXPECT_GE(text.right(), 20 + marker.TextWidth("HHHHHH") - 2);
    EXPECT_LE(text.right(), 24 + marker.TextWidth("HHHHHH"));
}

TEST(DrawMarker, EmptyLabelLeavesAnEmptyBox)
{
    const QImage picture = Painted(MarkerPainter(1.0, kPlate, kInk), {20, 30}, "", 1);
    EXPECT_EQ(Touched(picture), QRect(QPoint(16, 25), QPoint(25, 36)));
}

TEST(DrawMarker, IsTwiceAsLargeAtTwoPixelsPerUnit)
{
    const MarkerPainter marker(2.0, kPlate, kInk);
    const QImage picture = Painted(marker, {20, 30}, "", 2);
    EXPECT_EQ(Touched(picture), QRect(QPoint(32, 50), QPoint(51, 73)));
    EXPECT_EQ(picture.pixelColor(36, 56), kInk);  // corner of the square
    EXPECT_EQ(picture.pixelColor(45, 65), kInk);  // its other corner
    EXPECT_EQ(picture.pixelColor(40, 60), kPlate);
}

TEST(TextWidth, IsTheWidthThatTheTextTakes)
{
    for (const qreal scale : {1.0, 1.5, 2.0}) {
        const MarkerPainter marker(scale, kPlate, kInk);
        const QFontMetricsF metrics(LabelFont(scale));
        std::string all;
        for (int byte = 0; byte < 256; ++byte) {
            all += static_cast<char>(byte);
        }
        for (const std::string& text :
             {std::string("DL1ABC"), std::string("AVAWAT fi ffl Tel."), std::string(254, 'W'), all,
              std::string("\xC4\xD6\xDC\xDF \x80"), std::string("a\tb")}) {
            SCOPED_TRACE(text);
            const QString shown = QString::fromStdString(base::FromCodePage(text));
            EXPECT_EQ(marker.TextWidth(text), qRound(metrics.horizontalAdvance(shown) / scale));
        }
    }
}

TEST(StaysOnPlate, IsTrueOfCallsigns)
{
    const MarkerPainter marker(1.0, kPlate, kInk);
    EXPECT_TRUE(marker.StaysOnPlate("DL1ABC/P"));
    EXPECT_TRUE(marker.StaysOnPlate("Garching"));
    EXPECT_TRUE(marker.StaysOnPlate(""));
    EXPECT_FALSE(marker.StaysOnPlate("a\tb"));
}

}  // namespace
}  // namespace ui
