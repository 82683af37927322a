#include "map/ByteStream.h"

#include <array>
#include <string>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"

namespace map {
namespace {

// Longer than the pieces in which a file is read, and every byte tells where it stands.
class ByteStreamTest : public testing::Test {
protected:
    static constexpr std::size_t kSize = 150'001;

    static Byte At(std::size_t place) { return static_cast<Byte>(place % 251); }

    void SetUp() override
    {
        std::string contents;
        for (std::size_t i = 0; i < kSize; ++i) {
            contents += static_cast<char>(At(i));
        }
        PutFile("bytes", contents);
    }

    TemporaryFolder folder;
};

TEST_F(ByteStreamTest, HandsOutTheFileByteByByte)
{
    base::InputFile file("bytes");
    ByteStream bytes(file);
    for (std::size_t i = 0; i < kSize; ++i) {
        ASSERT_EQ(bytes.Next(), At(i)) << i;
    }
    EXPECT_EQ(bytes.Next(), std::nullopt);
    EXPECT_EQ(bytes.Next(), std::nullopt);
}

TEST_F(ByteStreamTest, SkipsToTheEndAndNoFarther)
{
    for (const std::size_t count : {0U, 1U, 65'535U, 65'536U, 65'537U, 140'000U, 150'000U}) {
        base::InputFile file("bytes");
        ByteStream bytes(file);
        EXPECT_TRUE(bytes.Skip(count));
        EXPECT_EQ(bytes.Next(), At(count)) << count;
        EXPECT_TRUE(bytes.Skip(kSize - count - 1));
        EXPECT_TRUE(bytes.Skip(0));
        EXPECT_FALSE(bytes.Skip(1));
    }
}

TEST_F(ByteStreamTest, FindsTheNextByteAcrossPieces)
{
    PutFile("far", std::string(70'000, 'x') + "y" + std::string(60'000, 'x') + "yz");
    base::InputFile file("far");
    ByteStream bytes(file);
    EXPECT_TRUE(bytes.SkipPast('y'));
    EXPECT_EQ(bytes.Next(), Byte{'x'});
    EXPECT_TRUE(bytes.SkipPast('y'));
    EXPECT_EQ(bytes.Next(), Byte{'z'});
    EXPECT_FALSE(bytes.SkipPast('y'));
}

TEST_F(ByteStreamTest, FillsATargetOnlyWhole)
{
    base::InputFile file("bytes");
    ByteStream bytes(file);
    EXPECT_TRUE(bytes.Skip(kSize - 3));
    std::array<Byte, 2> two = {};
    EXPECT_TRUE(bytes.Take(two));
    EXPECT_EQ(two, (std::array<Byte, 2>{At(kSize - 3), At(kSize - 2)}));
    EXPECT_FALSE(bytes.Take(two));
}

TEST_F(ByteStreamTest, AMissingFileHasNoBytes)
{
    base::InputFile file("missing");
    ByteStream bytes(file);
    EXPECT_EQ(bytes.Next(), std::nullopt);
    EXPECT_FALSE(bytes.SkipPast('x'));
}

}  // namespace
}  // namespace map
