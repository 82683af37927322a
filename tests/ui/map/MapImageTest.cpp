#include "ui/map/MapImage.h"

#include <vector>

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
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

// A picture of 8 x 8 pixels in 128 greys whose codes are a byte each.
QByteArray GifBytes()
{
    QByteArray bytes = QByteArray::fromHex("47494638396108000800860000");
    for (int grey = 0; grey < 128; ++grey) {
        bytes.append(3, static_cast<char>(2 * grey));
    }
    bytes += QByteArray::fromHex("2c00000000080008000007");
    bytes += static_cast<char>(66);
    bytes += static_cast<char>(0x80);
    for (int pixel = 0; pixel < 64; ++pixel) {
        bytes += static_cast<char>(2 * pixel);
    }
    return bytes + QByteArray::fromHex("81003b");
}

struct PictureBytes {
    const char* what;
    QByteArray bytes;
};

QByteArray Saved(const QImage& picture, const char* format, bool progressive = false)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setProgressiveScanWrite(progressive);
    EXPECT_TRUE(writer.write(picture)) << format;
    return buffer.data();
}

std::vector<PictureBytes> PicturesOfEveryKind()
{
    const QImage colours = Chequered(31, 23);
    const QImage grey = colours.convertToFormat(QImage::Format_Grayscale8);
    const QImage palette = colours.convertToFormat(QImage::Format_Indexed8);
    const QImage lines = colours.convertToFormat(QImage::Format_Mono);
    const QByteArray xbm = Saved(lines, "xbm");
    return {
        {"JPEG", Saved(colours, "jpg")},
        {"grey JPEG", Saved(grey, "jpg")},
        {"progressive JPEG", Saved(colours, "jpg", true)},
        {"GIF", GifBytes()},
        {"BMP", Saved(colours, "bmp")},
        {"palette BMP", Saved(palette, "bmp")},
        {"BMP of lines", Saved(lines, "bmp")},
        {"XBM", xbm.left(xbm.lastIndexOf('}') + 1)},
        {"PPM", Saved(colours, "ppm")},
        {"PGM", Saved(grey, "pgm")},
        {"PBM", Saved(lines, "pbm")},
        {"ICO", Saved(colours, "ico")},
    };
}

void WriteBytes(const QString& name, const QByteArray& bytes)
{
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

TEST(MapImage, FileThatWasCutOffAnywhereIsUnreadable)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"karte"_s);
    for (const PictureBytes& picture : PicturesOfEveryKind()) {
        SCOPED_TRACE(picture.what);
        MapImage image;
        image.Set(Chequered(10, 10));
        constexpr qsizetype kEnd = 20;  // gone through byte by byte
        for (qsizetype left = picture.bytes.size(); left > 0; left -= left > kEnd + 13 ? 13 : 1) {
            const qsizetype length = picture.bytes.size() - left;
            WriteBytes(file, picture.bytes.left(length));
            ASSERT_EQ(image.Load(file), PictureStatus::Unreadable) << length;
        }
        EXPECT_EQ(image.Clip({0, 0, 10, 10}), Chequered(10, 10)) << "the old picture stays";
        WriteBytes(file, picture.bytes + "something behind it");
        EXPECT_EQ(image.Load(file), PictureStatus::Loaded);
        WriteBytes(file, picture.bytes);
        EXPECT_EQ(image.Load(file), PictureStatus::Loaded);
        EXPECT_NE(image.Size(), (map::ImageSize{10, 10}));
    }
}

TEST(MapImage, EveryFormatThatCanBeWrittenHereCanBeLoaded)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"karte"_s);
    for (const QByteArray& format : QImageWriter::supportedImageFormats()) {
        if (QImageReader::supportedImageFormats().contains(format)) {
            WriteBytes(file, Saved(Chequered(31, 23), format));
            MapImage image;
            EXPECT_EQ(image.Load(file), PictureStatus::Loaded) << format.data();
        }
    }
}

TEST(MapImage, PngThatLacksNoPixelMayLackItsLastBytes)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"karte.png"_s);
    const QByteArray whole = Saved(Chequered(31, 23), "png");
    for (qsizetype length = 0; length < whole.size(); ++length) {
        WriteBytes(file, whole.left(length));
        MapImage image;
        if (image.Load(file) == PictureStatus::Loaded) {
            EXPECT_EQ(image.Clip({0, 0, 31, 23}), Chequered(31, 23)) << length;
        }
    }
}

TEST(FreeMemory, IsKnown)
{
    EXPECT_GT(FreeMemory(), std::uint64_t{1} << 20U);
}

}  // namespace
}  // namespace ui
