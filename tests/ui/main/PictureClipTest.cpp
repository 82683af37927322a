#include "ui/main/PictureClip.h"

#include <algorithm>
#include <cmath>
#include <set>

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

#include "ui/main/MainFormFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

QPalette Light()
{
    return {QColor(0xEF, 0xEF, 0xEF)};
}

QPalette Dark()
{
    QPalette palette(QColor(0x35, 0x35, 0x35));
    palette.setColor(QPalette::ButtonText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x90, 0x90, 0x90));
    return palette;
}

// Relative luminance as in the accessibility guidelines for web contents (WCAG 2).
double Luminance(const QColor& colour)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
           + 0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& first, const QColor& second)
{
    const auto [darker, lighter] = std::minmax({Luminance(first), Luminance(second)});
    return (lighter + 0.05) / (darker + 0.05);
}

QImage Piece(const PictureClip& clip, int piece, QIcon::Mode mode = QIcon::Normal, int size = 16)
{
    return clip.Icon(static_cast<PictureClip::Piece>(piece))
        .pixmap(QSize(size, size), mode)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32);
}

// The strongest pixel of a piece on a button of this palette, and how many pixels are drawn at all.
struct Ink {
    double contrast = 1.0;
    int pixels = 0;
};

Ink InkOf(const QImage& piece, const QColor& button)
{
    Ink ink;
    for (int y = 0; y < piece.height(); ++y) {
        for (int x = 0; x < piece.width(); ++x) {
            const QColor pixel = piece.pixelColor(x, y);
            const auto mixed = [&](double over, double under) {
                return over * pixel.alphaF() + under * (1.0 - pixel.alphaF());
            };
            const QColor shown =
                QColor::fromRgbF(static_cast<float>(mixed(pixel.redF(), button.redF())),
                                 static_cast<float>(mixed(pixel.greenF(), button.greenF())),
                                 static_cast<float>(mixed(pixel.blueF(), button.blueF())));
            const double contrast = Contrast(shown, button);
            ink.contrast = std::max(ink.contrast, contrast);
            ink.pixels += contrast >= 3.0 ? 1 : 0;
        }
    }
    return ink;
}

TEST(PictureClip, EveryPieceReadsOnLightAndOnDark)
{
    for (const QPalette& palette : {Light(), Dark()}) {
        PictureClip clip;
        clip.Draw(palette);
        const QColor button = palette.color(QPalette::Button);
        for (int piece = 0; piece < PictureClip::Pieces; ++piece) {
            SCOPED_TRACE(std::to_string(piece) + " on " + button.name().toStdString());
            const Ink ink = InkOf(Piece(clip, piece), button);
            EXPECT_GE(ink.contrast, 4.5);
            EXPECT_GE(ink.pixels, 9) << "too little to be seen";
        }
    }
}

TEST(PictureClip, PiecesOfAButtonThatIsOffAreFainterButThere)
{
    for (const QPalette& palette : {Light(), Dark()}) {
        PictureClip clip;
        clip.Draw(palette);
        const QColor button = palette.color(QPalette::Button);
        for (int piece = 0; piece < PictureClip::Pieces; ++piece) {
            SCOPED_TRACE(piece);
            const double off = InkOf(Piece(clip, piece, QIcon::Disabled), button).contrast;
            EXPECT_LT(off, InkOf(Piece(clip, piece), button).contrast);
            EXPECT_GT(off, 1.3);
        }
    }
}

TEST(PictureClip, NoTwoPiecesLookAlikeAndNoneReachesIntoItsNeighbour)
{
    PictureClip clip;
    clip.Draw(Light());
    std::set<QByteArray> seen;
    for (int piece = 0; piece < PictureClip::Pieces; ++piece) {
        SCOPED_TRACE(piece);
        const QImage image = Piece(clip, piece, QIcon::Normal, 16);
        ASSERT_EQ(image.size(), QSize(16, 16));
        seen.insert(
            QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()));
        for (int y = 0; y < image.height(); ++y) {
            ASSERT_EQ(qAlpha(image.pixel(0, y)), 0);
            ASSERT_EQ(qAlpha(image.pixel(15, y)), 0);
        }
    }
    EXPECT_EQ(seen.size(), static_cast<std::size_t>(PictureClip::Pieces));
}

class PictureClipOfMainFormTest : public MainFormFixture {
protected:
    void TearDown() override { QApplication::setPalette(QPalette()); }

    double ContrastOn(const char* button)
    {
        auto* const control = Find<QPushButton>(button);
        return InkOf(control->icon()
                         .pixmap(QSize(16, 16))
                         .toImage()
                         .convertToFormat(QImage::Format_ARGB32),
                     control->palette().color(QPalette::Button))
            .contrast;
    }
};

TEST_F(PictureClipOfMainFormTest, EveryButtonFollowsTheColoursOfTheDesktop)
{
    EXPECT_NE(Find<PictureClip>("PC1"), nullptr);
    for (const QPalette& palette : {Dark(), Light()}) {
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        for (const char* const button :
             {"Command1_0", "Command1_1", "Command4_0", "Command4_1", "SA_0", "SA_1", "Command5",
              "Command2", "Command3", "Command6", "Command7"}) {
            SCOPED_TRACE(button);
            EXPECT_GE(ContrastOn(button), 4.5);
        }
    }
}

}  // namespace
}  // namespace ui
