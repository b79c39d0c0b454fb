#include "files/code_page.h"
#include "files/file_writer.h"
#include "files/paths.h"
#include "tool_fixture.h"

using namespace ostrane;

using files_test = tool_test;

TEST_F(files_test, ResolvesPaths) {
  restart("C:\\work");
  const std::pair<const char*, const char*> cases[] = {{"a.txt", "C:\\work\\a.txt"},
                                                       {"\\a\\b", "C:\\a\\b"},
                                                       {"", "C:\\work"},
                                                       {"..\\..\\..\\x", "C:\\x"},
                                                       {"c: [test]", "C:\\work"},
                                                       {"d: [other]", "D:\\"},
                                                       {"c: [test]\\A", "C:\\work\\ [test]\\A"},
                                                       {"C: x", "C:\\work\\ x"},
                                                       {"\\", "C:\\"},
                                                       {"D:x/y", "D:\\x\\y"},
                                                       {"D:", "D:\\"},
                                                       {"d:\\a\\.\\b\\..\\\\c\\", "D:\\a\\c"}};
  for (const auto& [path, full] : cases) EXPECT_EQ(files::full_path(path), full) << path;
  EXPECT_THROW(files::system_path("Q:\\x"), files::file_error);
}

// Blocks from the buffer and blocks that bypass it, each followed by steps to offsets inside and
// outside the buffer, which is 262144 bytes long. The second time the system copies a half, then a
// half of the rest, and then refuses.
TEST_F(files_test, CopiesBlocksAndSeeks) {
  static int calls = 0;
  static const files::system_call_table real = files::system_calls;
  const std::string bytes = some_bytes(1000000);
  write("C:\\from", bytes);
  for (const bool refuses : {false, true}) {
    if (refuses) {
      files::system_calls.copy_some = +[](int from, int to, std::size_t count) -> std::int64_t {
        std::vector<std::byte> half(count / 2);
        if (++calls == 3) return -EXDEV;
        const std::int64_t size = real.read_some(from, half.data(), half.size());
        return real.write_some(to, half.data(), static_cast<std::size_t>(size));
      };
    }
    files::binary_file from;
    files::binary_file to;
    from.open_to_read(files::to_file_path("C:\\from"));
    files::file_writer writer(to, files::to_file_path("C:\\to"));
    std::string expected;
    std::size_t at = 0;
    for (const std::size_t size : {100U, 700000U, 5000U, 4095U, 4096U, 1U, 200000U, 0U}) {
      for (std::size_t left = size; left > 0;) left -= to.write_from(from, left);
      expected += bytes.substr(at, size);
      at += size;
      const std::size_t back = at > 262144 ? at - 262144 : 0;
      for (const std::size_t other : {back, back + 9, std::size_t{10}, at}) {
        for (const std::size_t count : {std::size_t{9}, std::size_t{300000}}) {
          from.seek(static_cast<std::int64_t>(other));
          std::string got(count, ' ');
          got.resize(from.read(std::as_writable_bytes(std::span(got))));
          ASSERT_TRUE(got == bytes.substr(other, count)) << other << " " << count;
        }
      }
      from.seek(static_cast<std::int64_t>(back));
      to.write(from.next(9));
      expected += bytes.substr(back, 9);
      from.seek(static_cast<std::int64_t>(at));
    }
    writer.keep();
    EXPECT_TRUE(read("C:\\to") == expected);
  }
  files::system_calls = real;
  EXPECT_EQ(calls, 3);
}

TEST(CodePage, ConvertsEveryByteToUtf8AndBack) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    EXPECT_EQ(files::from_utf8(files::to_utf8(text)), text) << byte;
  }
  EXPECT_TRUE(
      files::to_utf8("\x80\x81\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8D\x8E\x8F\x90\x91\x92"
                     "\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9D\x9E\x9F\xA0\xE9\xFF") ==
      u8"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u008D"
      u8"\u017D\u008F\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A"
      u8"\u0153\u009D\u017E\u0178\u00A0\u00E9\u00FF");
}

// FAT numbers a file anew when it is renamed.
TEST_F(files_test, ReplacesAFileWhoseIdentityARenameChanges) {
  static std::uint64_t renames = 0;
  failing_calls counted;
  counted.before("replace", [] { ++renames; });
  static const files::system_call_table real = files::system_calls;
  static const auto renumbered = [](int status, files::file_info& info) {
    info.stamp.identity.number += renames;
    return status;
  };
  files::system_calls.info_of =
      +[](int file, files::file_info& info) { return renumbered(real.info_of(file, info), info); };
  files::system_calls.info_at = +[](const fs::path& path, files::file_info& info) {
    return renumbered(real.info_at(path, info), info);
  };
  restart_with({{"a.txt", "a"}, {"ostrane.dat", "old"}});
  build_in();
  EXPECT_TRUE(new_messages().back().starts_with("Your new Ostrane.dat"));
  EXPECT_EQ(read("C:\\work\\OSTRANE.DAT"), archive_bytes({{"A.TXT", "a"}}));
}

TEST(CodePage, RejectsUnsupportedCharacters) {
  // A Greek letter, a control character whose byte is the Euro sign, and a combining accent; then
  // truncated, overlong, a surrogate, after the last code point, not UTF-8 at all.
  for (const char* text : {"\xCE\xA9", "\xC2\x80", "e\xCC\x81", "\xC3", "\xC1\x81", "\xE0\x83\xA9",
                           "\xF0\x82\x82\xAC", "\xED\xA0\x80", "\xF5\x80\x80\x80", "\xE9"}) {
    EXPECT_FALSE(files::from_utf8(files::as_utf8(text)).has_value()) << text;
  }
  EXPECT_EQ(files::from_utf8_lossy(files::as_utf8("a\xCE\xA9z\xFF")), "a?z?");
}

TEST(CodePage, FoldsAccentedLettersToo) {
  const std::string with_case = "az\xE0\xE9\xF6\xF8\xFE\x9A\x9C\x9E\xFF";
  const std::string without = "09.-\xF7\xD7\xDF\x83\xB5";
  const std::string capitals = "AZ\xC0\xC9\xD6\xD8\xDE\x8A\x8C\x8E\x9F";
  EXPECT_EQ(files::upper_case(with_case + without), capitals + without);
  EXPECT_EQ(files::lower_case(capitals + without), with_case + without);
}
