#include "map/PictureFile.h"

#include <string>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"

namespace map {
namespace {

using namespace std::string_literals;

class PictureFileTest : public testing::Test {
protected:
    static bool Whole(const std::string& bytes)
    {
        PutFile("karte", bytes);
        base::InputFile file("karte");
        return IsWholePicture(file);
    }

    // From the mark on, by which the format is told.
    static void ExpectWholeOnlyAtItsEnd(const std::string& bytes)
    {
        EXPECT_TRUE(Whole(bytes));
        EXPECT_TRUE(Whole(bytes + "behind"));
        EXPECT_TRUE(Whole(bytes + std::string(1000, '\0')));
        for (std::size_t length = 2; length < bytes.size(); ++length) {
            ASSERT_FALSE(Whole(bytes.substr(0, length))) << length;
            ASSERT_FALSE(Whole(bytes.substr(0, length) + std::string(1000, '\0')))
                << "filled up from " << length;
        }
    }

    TemporaryFolder folder;
};

std::string Segment(char marker, const std::string& contents)
{
    const std::size_t length = contents.size() + 2;
    return "\xFF"s + marker + static_cast<char>(length / 256) + static_cast<char>(length % 256)
           + contents;
}

TEST_F(PictureFileTest, AJpegEndsWithItsEndMarker)
{
    const std::string small = "\xFF\xD8 a small picture inside \xFF\xD9";
    // Pixels with a stuffed byte and a restart.
    const std::string pixels = "pix\xFF\x00"
                               "els\xFF\xD3pixels"s;
    const std::string scan = Segment('\xDA', "scan") + pixels;
    ExpectWholeOnlyAtItsEnd("\xFF\xD8" + Segment('\xE1', small) + Segment('\xC2', "frame") + scan
                            + Segment('\xC4', std::string(300, '\xFF')) + scan + "\xFF\xFF\xD9");
}

TEST_F(PictureFileTest, AGifEndsWithItsTrailer)
{
    const std::string header = "GIF89a\x04\x00\x02\x00\x80\x00\x00"s + "colour";
    const std::string image =
        ",\x00\x00\x00\x00\x04\x00\x02\x00\x81"s + "local colour" + "\x02\x03;;;\x01;\x00"s;
    const std::string extension = "!\xF9\x04;;;;\x00"s;
    ExpectWholeOnlyAtItsEnd(header + extension + image + ";");
    ExpectWholeOnlyAtItsEnd(header + image + "\x00"s + extension + image + ";");
    EXPECT_FALSE(Whole(header + extension + ";")) << "no image";
    EXPECT_TRUE(Whole(header + image + "what is no block")) << "the image is there";
}

TEST_F(PictureFileTest, AnXbmEndsWithItsBrace)
{
    ExpectWholeOnlyAtItsEnd("#define w 8\n#define h 1\nstatic char b[] = {\n 0x01 }");
}

TEST_F(PictureFileTest, ABmpIsAskedForItsRows)
{
    const std::string header = "BM\0\0\0\0\0\0\0\0\x1A\0\0\0\x0C\0\0\0\x01\0\x02\0\x01\0\x18\0"s;
    EXPECT_TRUE(Whole(header + "rgb.rgb."));
    EXPECT_FALSE(Whole(header + "rgb.rgb"));
}

TEST_F(PictureFileTest, OtherFormatsAreLeftToTheirDecoders)
{
    EXPECT_TRUE(Whole(""));
    EXPECT_TRUE(Whole("P"));
    EXPECT_TRUE(Whole("\x89PNG"));
    base::InputFile missing("missing");
    EXPECT_FALSE(IsWholePicture(missing));
}

}  // namespace
}  // namespace map
