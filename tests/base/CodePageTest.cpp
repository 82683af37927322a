#include "base/CodePage.h"

#include <string>

#include <gtest/gtest.h>

namespace base {
namespace {

TEST(CodePage, ConvertsEveryByteThereAndBack)
{
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    const std::string text = FromCodePage(all);
    EXPECT_TRUE(IsUtf8(text));
    EXPECT_EQ(ToCodePage(text), all);
}

TEST(CodePage, KnowsUmlautsAndTheEuroSign)
{
    EXPECT_EQ(FromCodePage("M\xFCnchen \x80"), "M\u00fcnchen \u20ac");
    EXPECT_EQ(ToCodePage("M\u00fcnchen \u20ac"), "M\xFCnchen \x80");
}

TEST(CodePage, WritesAQuestionMarkForWhatItLacks)
{
    EXPECT_EQ(ToCodePage("\u0416\U0001F4FB."), "??.");
    EXPECT_EQ(ToCodePage("a\xFF\xC3"), "a??");
}

TEST(IsUtf8, RefusesMalformedText)
{
    EXPECT_TRUE(IsUtf8(""));
    EXPECT_TRUE(IsUtf8("M\u00fcnchen"));
    EXPECT_TRUE(IsUtf8("\U0010FFFF"));
    EXPECT_FALSE(IsUtf8("M\xFCnchen"));
    EXPECT_FALSE(IsUtf8("\xC0\x80")) << "overlong";
    EXPECT_FALSE(IsUtf8("\xED\xA0\x80")) << "surrogate";
    EXPECT_FALSE(IsUtf8("\xF4\x90\x80\x80")) << "beyond U+10FFFF";
    EXPECT_FALSE(IsUtf8("\xE2\x82")) << "cut short";
    EXPECT_FALSE(IsUtf8("\x80")) << "continuation byte alone";
}

TEST(AppendUtf8, WritesAQuestionMarkForNoCharacter)
{
    std::string text;
    AppendUtf8(text, 0xD800);
    AppendUtf8(text, 0x110000);
    EXPECT_EQ(text, "??");
}

}  // namespace
}  // namespace base
