#include "base/OldBytes.h"

#include <filesystem>
#include <string_view>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"

namespace base {
namespace {

class OldBytesTest : public testing::Test {
protected:
    static Written Replace(std::string_view contents, OldBytes& oldBytes)
    {
        const auto* const bytes = reinterpret_cast<const unsigned char*>(contents.data());
        return ReplaceFile("A.QTH", {ByteView(bytes, contents.size())}, oldBytes);
    }

    TemporaryFolder folder;
};

TEST_F(OldBytesTest, UnknownBytesAreSetAsideOnce)
{
    PutFile("A.QTH", "old");
    OldBytes oldBytes = OldBytes::Unknown;
    const Written first = Replace("new", oldBytes);
    EXPECT_FALSE(first);
    EXPECT_EQ(first.keptAs, "A.QTH.ALT");
    EXPECT_EQ(oldBytes, OldBytes::Known);
    EXPECT_EQ(GetFile("A.QTH"), "new");
    EXPECT_EQ(GetFile("A.QTH.ALT"), "old");

    EXPECT_EQ(Replace("newer", oldBytes).keptAs, "");
    EXPECT_EQ(GetFile("A.QTH"), "newer");
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"A.QTH", "A.QTH.ALT"}));
}

TEST_F(OldBytesTest, AMissingFileIsMadeAndNothingKept)
{
    OldBytes oldBytes = OldBytes::Unknown;
    EXPECT_EQ(Replace("new", oldBytes).keptAs, "");
    EXPECT_EQ(oldBytes, OldBytes::Known);
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"A.QTH"});
}

TEST_F(OldBytesTest, WhatCannotBeSetAsideIsNotReplaced)
{
    std::filesystem::create_directory("A.QTH");
    OldBytes oldBytes = OldBytes::Unknown;
    EXPECT_TRUE(Replace("new", oldBytes));
    EXPECT_EQ(oldBytes, OldBytes::Unknown);
    EXPECT_TRUE(std::filesystem::is_directory("A.QTH"));
}

}  // namespace
}  // namespace base
