#include "platform/binary_file.h"
#include "platform/file_error.h"
#include "platform/file_system.h"
#include "platform/paths.h"
#include "platform/text_file.h"
#include "tool_fixture.h"

namespace ostrane {
namespace {

class files_test : public tool_test {
 protected:
  std::vector<std::string> lines_of(const std::string& bytes) const {
    write("C:\\lines.txt", bytes);
    platform::text_reader reader("C:\\lines.txt");
    std::vector<std::string> lines;
    while (!reader.at_end()) lines.push_back(reader.read_line());
    return lines;
  }
};

TEST_F(files_test, WorksPathsOut) {
  const struct {
    const char* current;
    const char* path;
    const char* whole;
  } cases[] = {
      {"C:\\work", "a.txt", "C:\\work\\a.txt"},
      {"C:\\work", "\\a\\b", "C:\\a\\b"},
      {"C:\\work", "", "C:\\work"},
      {"C:\\work", "..\\..\\..\\x", "C:\\x"},
      {"C:\\work", "c: [test]", "C:\\work"},
      {"C:\\work", "d: [other]", "D:\\"},
      {"C:\\work", "D:", "D:\\"},
      {"C:\\work", "d:\\a\\.\\b\\..\\\\c\\", "D:\\a\\c"},
      {"D:\\", "\\", "D:\\"},
      {"D:\\", "C:x/y", "C:\\x\\y"},
  };
  for (const auto& c : cases) {
    begin(c.current);
    EXPECT_EQ(platform::full_path(c.path), c.whole) << c.path;
  }
  EXPECT_THROW(platform::system_path("Q:\\x"), platform::file_error);
}

// A file that a command has just made must be found in another case too.
TEST_F(files_test, WritesASecondTimeIntoTheFileOfOtherCase) {
  for (const char* name : {"C:\\New.Txt", "C:\\NEW.TXT"}) {
    platform::binary_file file;
    file.open_to_write(name);
    file.write(std::as_bytes(std::span("12345", 5)));
    file.close();
  }
  EXPECT_EQ(names_in("C:\\"), (std::vector<std::string>{"New.Txt", "program"}));
}

TEST_F(files_test, MatchesPatternsWithoutRegardToCase) {
  const struct {
    const char* name;
    const char* pattern;
    bool matches;
  } cases[] = {
      {"OSTRANE.DAT", "ostrane.dat", true},
      {"ostrane.dat2", "ostrane.dat", false},
      {"a.TXT", "*.txt", true},
      {"a.txt.bak", "*.txt", false},
      {".txt", "*.txt", true},
      {"abc", "a?c", true},
      {"ac", "a?c", false},
      {"", "*", true},
      {"aXbXc", "a*x*c", true},
      {"anything", "*", true},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(platform::matches_pattern(c.name, c.pattern), c.matches) << c.name << c.pattern;
  }
}

TEST_F(files_test, EndsLinesAtEveryKindOfLineEnd) {
  using lines = std::vector<std::string>;
  EXPECT_EQ(lines_of(""), lines{});
  EXPECT_EQ(lines_of("a\r\nb"), (lines{"a", "b"}));
  EXPECT_EQ(lines_of("a\r\nb\r\n"), (lines{"a", "b"}));
  EXPECT_EQ(lines_of("a\n\nb\rc\r\n\r\n"), (lines{"a", "", "b", "c", ""}));
  const std::string to_the_edge(65535, 'x');
  EXPECT_EQ(lines_of(to_the_edge + "\r\nnext"), (lines{to_the_edge, "next"}));
}

TEST_F(files_test, SeeksInsideAndOutsideItsBuffer) {
  const std::string bytes = some_bytes(300000);
  write("C:\\data", bytes);
  platform::binary_file file;
  file.open_to_read("C:\\data");
  for (const std::int64_t at : {0, 10, 70000, 69990, 5, 250000, 299990, 65536, 131071}) {
    for (const std::size_t count : {std::size_t{9}, std::size_t{70000}}) {
      file.seek(at);
      std::string got(count, ' ');
      got.resize(file.read(std::as_writable_bytes(std::span(got))));
      ASSERT_EQ(got, bytes.substr(static_cast<std::size_t>(at), count)) << at << " " << count;
    }
  }
}

}  // namespace
}  // namespace ostrane
