#include "platform/code_page.h"

#include <gtest/gtest.h>

#include "platform/text.h"

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
  const char* const cases[] = {
      "\xCE\xA9",          // a Greek letter
      "\xC2\x80",          // a control character whose byte is the Euro sign
      "e\xCC\x81",         // an accent of its own
      "\xC3",              // cut off
      "\xC0\x80",          // overlong
      "\xED\xA0\x80",      // half a surrogate pair
      "\xF5\x80\x80\x80",  // behind the last code point
      "\xE9",              // not UTF-8 at all
  };
  for (const char* text : cases) {
    EXPECT_FALSE(from_utf8(text).has_value()) << text;
  }
  EXPECT_EQ(from_utf8_or_marks("a\xCE\xA9z\xFF"), "a?z?");
}

TEST(CodePage, FoldsAccentedLettersToo) {
  const struct {
    const char* small;
    const char* capital;
  } cases[] = {
      {"az09.-", "AZ09.-"},
      {"\xE0\xE9\xF6\xF8\xFE", "\xC0\xC9\xD6\xD8\xDE"},
      {"\x9A\x9C\x9E\xFF", "\x8A\x8C\x8E\x9F"},
      {"\xF7\xD7\xDF\x83\xB5", "\xF7\xD7\xDF\x83\xB5"},  // these have no other case
  };
  for (const auto& c : cases) {
    EXPECT_EQ(upper_case(c.small), c.capital);
    EXPECT_EQ(lower_case(c.capital), c.small);
  }
}

TEST(Text, ReadsNumbersAndNothingElse) {
  const struct {
    const char* text;
    bool good;
    double value;
  } cases[] = {
      {"300", true, 300}, {"+5", true, 5},     {"-5", true, -5},  {"12.", true, 12},
      {".5", true, .5},   {"3e2", true, 300},  {"1E+", false, 0}, {"2e-1", true, .2},
      {"", false, 0},     {".", false, 0},     {"-", false, 0},   {"e5", false, 0},
      {"1,0", false, 0},  {"&H1F", false, 0},  {"0x1", false, 0}, {"abc", false, 0},
      {"1 ", false, 0},   {"1.2.3", false, 0}, {"--1", false, 0}, {"inf", false, 0},
      {"1d2", false, 0},  {"\xB2", false, 0},  {"nan", false, 0}, {"1e-999", true, 0},
  };
  for (const auto& c : cases) {
    const std::optional<double> number = as_number(c.text);
    EXPECT_EQ(number.has_value(), c.good) << c.text;
    EXPECT_DOUBLE_EQ(number.value_or(0), c.value) << c.text;
  }
  EXPECT_GT(as_number("9e999").value_or(0), 1e308);
}

}  // namespace
}  // namespace platform
