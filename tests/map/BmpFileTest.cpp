#include "map/BmpFile.h"

#include <string>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"

namespace map {
namespace {

using namespace std::string_literals;

std::string Number(std::int64_t value, int length)
{
    std::string bytes;
    for (int i = 0; i < length; ++i, value >>= 8) {
        bytes += static_cast<char>(value & 255);
    }
    return bytes;
}

// What stands behind the mark of a file with the usual header, up to its rows.
struct Header {
    std::int32_t width = 3;
    std::int32_t height = 2;
    int bits = 24;
    int compression = 0;
    int colours = 0;
    int offset = -1;  // where the rows begin, unless it is named

    std::string Bytes() const
    {
        const int begin = 54 + 4 * colours;
        return Number(0, 8) + Number(offset < 0 ? begin : offset, 4) + Number(40, 4)
               + Number(width, 4) + Number(height, 4) + Number(1, 2) + Number(bits, 2)
               + Number(compression, 4) + Number(0, 12) + Number(colours, 4) + Number(0, 4)
               + std::string(static_cast<std::size_t>(4 * colours), 'c');
    }
};

class BmpFileTest : public testing::Test {
protected:
    static bool Whole(const std::string& behindMark)
    {
        PutFile("karte.bmp", "BM" + behindMark);
        base::InputFile file("karte.bmp");
        ByteStream bytes(file);
        EXPECT_TRUE(bytes.Skip(2));
        return IsWholeBmp(bytes, file.Size());
    }

    // True for the whole of it, with or without something behind, false for each of its beginnings.
    static void ExpectWholeOnlyAtItsEnd(const std::string& behindMark)
    {
        EXPECT_TRUE(Whole(behindMark));
        EXPECT_TRUE(Whole(behindMark + "behind"));
        for (std::size_t length = 0; length < behindMark.size(); ++length) {
            ASSERT_FALSE(Whole(behindMark.substr(0, length))) << length;
        }
    }

    TemporaryFolder folder;
};

TEST_F(BmpFileTest, RowsAreFilledUpToFourBytes)
{
    const struct {
        Header header;
        int length;
    } cases[] = {
        {{.width = 3, .height = 2, .bits = 24}, 2 * 12},
        {{.width = 3, .height = -2, .bits = 24}, 2 * 12},
        {{.width = 3, .height = 5, .bits = 32}, 5 * 12},
        {{.width = 3, .height = 2, .bits = 16, .compression = 3}, 2 * 8},
        {{.width = 9, .height = 3, .bits = 1, .colours = 2}, 3 * 4},
        {{.width = 9, .height = 3, .bits = 4, .colours = 16}, 3 * 8},
        {{.width = 5, .height = 3, .bits = 8, .colours = 7}, 3 * 8},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.header.bits);
        ExpectWholeOnlyAtItsEnd(c.header.Bytes()
                                + std::string(static_cast<std::size_t>(c.length), 'p'));
    }
}

TEST_F(BmpFileTest, TheOldHeaderHasShortNumbers)
{
    ExpectWholeOnlyAtItsEnd(Number(0, 8) + Number(26, 4) + Number(12, 4) + Number(3, 2)
                            + Number(2, 2) + Number(1, 2) + Number(24, 2) + std::string(24, 'p'));
}

TEST_F(BmpFileTest, RowsBeginAtTheOffsetButBehindTheColours)
{
    const std::string rows(24, 'p');
    ExpectWholeOnlyAtItsEnd(Header{.offset = 60}.Bytes() + "gap..." + rows);
    ExpectWholeOnlyAtItsEnd(Header{.offset = 0}.Bytes() + rows);
    const Header eight{.width = 4, .height = 1, .bits = 8, .colours = 4, .offset = 0};
    ExpectWholeOnlyAtItsEnd(eight.Bytes() + "pppp");
}

TEST_F(BmpFileTest, RunsEndWithTheirMark)
{
    const Header eight{.width = 6, .height = 3, .bits = 8, .compression = 1, .colours = 2};
    // A run, three pixels as they are with a filling, a run, a jump, the end.
    const std::string runs = "\x03r\x00\x03"
                             "abc\x00"
                             "\x00\x00"
                             "\x02r\x00\x02\x01\x00\x03r\x00\x01"s;
    ExpectWholeOnlyAtItsEnd(eight.Bytes() + runs);
    const Header four{.width = 6, .height = 1, .bits = 4, .compression = 2, .colours = 2};
    // Five pixels as they are in three bytes and a filling.
    ExpectWholeOnlyAtItsEnd(four.Bytes()
                            + "\x00\x05"
                              "abc\x00"
                              "\x00\x01"s);
}

TEST_F(BmpFileTest, RunsOfWholeRowsNeedNoMark)
{
    const Header eight{.width = 6, .height = 2, .bits = 8, .compression = 1, .colours = 2};
    EXPECT_TRUE(Whole(eight.Bytes() + "\x06r\x00\x00\x06r"s));
    EXPECT_TRUE(Whole(eight.Bytes() + "\x06r\x00\x00\x06r\x00\x00"s));
    EXPECT_FALSE(Whole(eight.Bytes() + "\x06r\x00\x00\x05r"s));
    EXPECT_FALSE(Whole(eight.Bytes() + "\x06r\x00\x00"s));
    EXPECT_FALSE(Whole(eight.Bytes()
                       + "\x06r\x00\x00\x00\x06"
                         "abc"s))
        << "cut off in the last row";
}

TEST_F(BmpFileTest, NoNumberUpsetsIt)
{
    const std::int32_t most = 2147483647;
    for (const std::int32_t height : {most, -most - 1}) {
        EXPECT_FALSE(Whole(Header{.width = most, .height = height, .bits = 65535}.Bytes()));
    }
    EXPECT_FALSE(Whole(Header{.width = -1}.Bytes() + std::string(100, 'p')));
    EXPECT_FALSE(Whole(Header{.offset = most}.Bytes() + std::string(100, 'p')));
    EXPECT_FALSE(Whole(Number(0, 8) + Number(26, 4) + Number(13, 4) + std::string(100, 'p')));
}

}  // namespace
}  // namespace map
