#include "base/Bytes.h"

#include <array>
#include <cstdint>
#include <string>

#include <gtest/gtest.h>

namespace base {
namespace {

TEST(ByteWriter, WritesFieldsLittleEndianWithoutPadding)
{
    ByteWriter writer;
    writer.Put<std::int16_t>(1);
    writer.Put<std::int32_t>(171294);
    writer.PutBoolean(true);
    writer.PutText("AB", 4);
    writer.PutText("ABCDEF", 4);
    writer.PutZeros(2);
    writer.Put(1.0);
    const ByteVector expected = {
        0x01, 0x00,                                      //
        0x1E, 0x9D, 0x02, 0x00,                          //
        0xFF, 0xFF,                                      //
        'A',  'B',  ' ',  ' ',                           //
        'A',  'B',  'C',  'D',                           //
        0x00, 0x00,                                      //
        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xF0, 0x3F,  //
    };
    EXPECT_EQ(writer.Bytes(), expected);
}

TEST(ByteReader, ReadsWhatTheWriterWrote)
{
    ByteWriter writer;
    writer.Put<std::int16_t>(-2);
    writer.PutBoolean(false);
    writer.PutText("AB", 4);
    writer.Put(48.3125);

    ByteReader reader(writer.Bytes());
    std::int16_t number = 0;
    bool flag = true;
    std::string text;
    double value = 0.0;
    reader.Get(number);
    reader.GetBoolean(flag);
    reader.GetText(text, 4);
    reader.Get(value);
    EXPECT_EQ(number, -2);
    EXPECT_FALSE(flag);
    EXPECT_EQ(text, "AB  ");
    EXPECT_EQ(value, 48.3125);
    EXPECT_EQ(reader.Left(), 0U);
    EXPECT_FALSE(reader.Failed());
}

TEST(ByteReader, LeavesTheTargetsBehindTheEndAsTheyWere)
{
    const ByteVector bytes = {1, 2, 3};
    ByteReader reader(bytes);
    std::int16_t first = 0;
    std::int16_t second = 77;
    reader.Get(first);
    reader.Get(second);
    EXPECT_EQ(first, 0x0201);
    EXPECT_EQ(second, 77);
    EXPECT_TRUE(reader.Failed());
    std::uint8_t third = 9;
    reader.Get(third);
    EXPECT_EQ(third, 9) << "a byte is left, but the layout is lost";
    std::array<unsigned char, 2> raw = {5, 6};
    reader.GetBytes(raw);
    EXPECT_EQ(raw, (std::array<unsigned char, 2>{5, 6}));
}

TEST(ByteReader, TakesAnyNonZeroBooleanAsTrue)
{
    const ByteVector bytes = {1, 0, 0, 0};
    ByteReader reader(bytes);
    bool first = false;
    bool second = true;
    reader.GetBoolean(first);
    reader.GetBoolean(second);
    EXPECT_TRUE(first);
    EXPECT_FALSE(second);
}

}  // namespace
}  // namespace base
