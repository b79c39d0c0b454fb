#include "files/code_page.h"

#include <gtest/gtest.h>

namespace files {

TEST(CodePage, EveryByteSurvivesUtf8) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    EXPECT_EQ(from_utf8(to_utf8(text)), text) << byte;
  }
  EXPECT_EQ(to_utf8("\x80\x81\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8D\x8E\x8F\x90\x91\x92"
                    "\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9D\x9E\x9F\xA0\xE9\xFF"),
            "\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u008D"
            "\u017D\u008F\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A"
            "\u0153\u009D\u017E\u0178\u00A0\u00E9\u00FF");
}

TEST(CodePage, RefusesCharactersItLacks) {
  // A Greek letter, a control character whose byte is the Euro sign, and a combining accent; then
  // truncated, overlong, a surrogate, after the last code point, not UTF-8 at all.
  for (const char* text : {"\xCE\xA9", "\xC2\x80", "e\xCC\x81", "\xC3", "\xC1\x81", "\xE0\x83\xA9",
                           "\xF0\x82\x82\xAC", "\xED\xA0\x80", "\xF5\x80\x80\x80", "\xE9"}) {
    EXPECT_FALSE(from_utf8(text).has_value()) << text;
  }
  EXPECT_EQ(from_utf8_lossy("a\xCE\xA9z\xFF"), "a?z?");
}

TEST(CodePage, FoldsAccentedLettersToo) {
  const std::string with_case = "az\xE0\xE9\xF6\xF8\xFE\x9A\x9C\x9E\xFF";
  const std::string without = "09.-\xF7\xD7\xDF\x83\xB5";
  const std::string capitals = "AZ\xC0\xC9\xD6\xD8\xDE\x8A\x8C\x8E\x9F";
  EXPECT_EQ(upper_case(with_case + without), capitals + without);
  EXPECT_EQ(lower_case(capitals + without), with_case + without);
}

}  // namespace files
