#include "ui/map/MapImage.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ui {
namespace {

using namespace Qt::StringLiterals;

// Every pixel tells where it is.
QImage Chequered(int width, int height)
{
    QImage picture(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            picture.setPixel(x, y, qRgb(x, y, (x * 7 + y * 3) & 255));
        }
    }
    return picture;
}

TEST(MapImage, HandsOutClipsOfThePicture)
{
    const QImage picture = Chequered(100, 80);
    MapImage image;
    image.Set(picture);
    EXPECT_EQ(image.Size(), (map::ImageSize{100, 80}));
    for (const QRect& area : {QRect(0, 0, 100, 80), QRect(30, 20, 50, 40), QRect(99, 79, 1, 1)}) {
        EXPECT_EQ(image.Clip(area), picture.copy(area));
    }
}

TEST(MapImage, IsWhiteWhereThePictureDoesNotReach)
{
    MapImage image;
    EXPECT_TRUE(image.Empty());
    EXPECT_EQ(image.Clip({0, 0, 5, 5}).pixelColor(2, 2), QColor(Qt::white));
    image.Set(Chequered(10, 10));
    const QImage clip = image.Clip({5, 5, 10, 10});
    EXPECT_EQ(clip.pixelColor(4, 4), Chequered(10, 10).pixelColor(9, 9));
    EXPECT_EQ(clip.pixelColor(5, 4), QColor(Qt::white));
    EXPECT_EQ(clip.size(), QSize(10, 10));
}

TEST(MapImage, KeepsGreyAndPalettePicturesSmallAndClipsThemAlike)
{
    const QImage grey = Chequered(100, 80).convertToFormat(QImage::Format_Grayscale8);
    const QImage palette = Chequered(100, 80).convertToFormat(QImage::Format_Indexed8);
    const QImage lines = Chequered(100, 80).convertToFormat(QImage::Format_Mono);
    for (const QImage& picture : {grey, palette, lines}) {
        MapImage image;
        image.Set(picture);
        const QRect area(13, 7, 41, 31);
        EXPECT_EQ(image.Clip(area), picture.copy(area).convertToFormat(QImage::Format_RGB32));
    }
}

TEST(MapImage, TransparentPartsGetAWhiteGround)
{
    QImage picture(2, 1, QImage::Format_ARGB32);
    picture.setPixel(0, 0, qRgba(0, 0, 0, 0));
    picture.setPixel(1, 0, qRgba(10, 20, 30, 255));
    MapImage image;
    image.Set(picture);
    const QImage clip = image.Clip({0, 0, 2, 1});
    EXPECT_EQ(clip.pixelColor(0, 0), QColor(Qt::white));
    EXPECT_EQ(clip.pixelColor(1, 0), QColor(10, 20, 30));
}

TEST(MapImage, PictureLargerThanTheFreeMemoryIsRefused)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"karte.png"_s);
    ASSERT_TRUE(Chequered(1000, 1000).save(file));
    MapImage image;
    image.Set(Chequered(10, 10));
    constexpr std::uint64_t kDecoding = std::uint64_t{64} << 20U;
    EXPECT_EQ(image.Load(file, kDecoding + 3'999'999), PictureStatus::NoMemory);
    EXPECT_EQ(image.Size(), (map::ImageSize{10, 10})) << "the old picture stays";
    EXPECT_EQ(image.Load(file, kDecoding + 4'000'000), PictureStatus::Loaded);
    EXPECT_EQ(image.Size(), (map::ImageSize{1000, 1000}));
}

TEST(MapImage, PictureThatIsConvertedNeedsRoomForBothForms)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"karte.png"_s);
    ASSERT_TRUE(Chequered(1000, 1000).convertToFormat(QImage::Format_ARGB32).save(file));
    MapImage image;
    constexpr std::uint64_t kDecoding = std::uint64_t{64} << 20U;
    EXPECT_EQ(image.Load(file, kDecoding + 7'999'999), PictureStatus::NoMemory);
    EXPECT_EQ(image.Load(file, kDecoding + 8'000'000), PictureStatus::Loaded);
}

TEST(FreeMemory, IsKnown)
{
    EXPECT_GT(FreeMemory(), std::uint64_t{1} << 20U);
}

}  // namespace
}  // namespace ui
