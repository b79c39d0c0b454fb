#include "platform/code_page.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

TEST(CodePage, EveryByteComesBackFromUtf8) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    EXPECT_EQ(from_utf8(to_utf8(text)), text) << byte;
  }
  EXPECT_EQ(to_utf8("\x80\xE9\x9F"), "\xE2\x82\xAC\xC3\xA9\xC5\xB8");
}

TEST(CodePage, RefusesWhatItHasNoByteFor) {
  // A Greek letter, a control character whose byte is the Euro sign, and an accent of its own; cut
  // off, overlong, half a surrogate pair, behind the last code point, not UTF-8 at all.
  for (const char* text : {"\xCE\xA9", "\xC2\x80", "e\xCC\x81", "\xC3", "\xC0\x80", "\xED\xA0\x80",
                           "\xF5\x80\x80\x80", "\xE9"}) {
    EXPECT_FALSE(from_utf8(text).has_value()) << text;
  }
  EXPECT_EQ(from_utf8_or_marks("a\xCE\xA9z\xFF"), "a?z?");
}

TEST(CodePage, FoldsAccentedLettersToo) {
  const std::string with_case = "az\xE0\xE9\xF6\xF8\xFE\x9A\x9C\x9E\xFF";
  const std::string without = "09.-\xF7\xD7\xDF\x83\xB5";
  const std::string capitals = "AZ\xC0\xC9\xD6\xD8\xDE\x8A\x8C\x8E\x9F";
  EXPECT_EQ(upper_case(with_case + without), capitals + without);
  EXPECT_EQ(lower_case(capitals + without), with_case + without);
}

}  // namespace
}  // namespace platform
