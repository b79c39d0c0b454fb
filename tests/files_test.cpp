#include "files/binary_file.h"
#include "files/file_error.h"
#include "files/file_system.h"
#include "files/paths.h"
#include "files/text_file.h"
#include "tool_fixture.h"

namespace ostrane {

using files_test = tool_test;

TEST_F(files_test, ResolvesPaths) {
  const char* const cases[][3] = {{"C:\\work", "a.txt", "C:\\work\\a.txt"},
                                  {"C:\\work", "\\a\\b", "C:\\a\\b"},
                                  {"C:\\work", "", "C:\\work"},
                                  {"C:\\work", "..\\..\\..\\x", "C:\\x"},
                                  {"C:\\work", "c: [test]", "C:\\work"},
                                  {"C:\\work", "d: [other]", "D:\\"},
                                  {"C:\\work", "c: [test]\\A", "C:\\work\\ [test]\\A"},
                                  {"C:\\work", "C: x", "C:\\work\\ x"},
                                  {"C:\\work", "D:", "D:\\"},
                                  {"C:\\work", "d:\\a\\.\\b\\..\\\\c\\", "D:\\a\\c"},
                                  {"D:\\", "\\", "D:\\"},
                                  {"D:\\", "C:x/y", "C:\\x\\y"}};
  for (const auto& [current, path, full] : cases) {
    restart(current);
    EXPECT_EQ(files::full_path(path), full) << path;
  }
  EXPECT_THROW(files::system_path("Q:\\x"), files::file_error);
}

TEST_F(files_test, MatchesPatternsIgnoringCase) {
  const std::tuple<const char*, const char*, bool> cases[] = {
      {"OSTRANE.DAT", "ostrane.dat", true},
      {"a.TXT", "*.txt", true},
      {".txt", "*.txt", true},
      {"aXbXc", "a?b*x*c", true},
      {"", "*", true},
      {"ac", "a?c", false},
      {"ostrane.dat2", "ostrane.dat", false},
      {"a.txt.bak", "*.txt", false}};
  for (const auto& [name, pattern, matches] : cases) {
    EXPECT_EQ(files::matches_pattern(name, pattern), matches) << name;
  }
}

TEST_F(files_test, ReadsLinesWithAnyLineEnd) {
  const std::string full_line(65535, 'x');
  const std::pair<std::string, texts> cases[] = {{"", {}},
                                                 {"a\n\nb\rc\r\n\r\n", {"a", "", "b", "c", ""}},
                                                 {full_line + "\r\nnext", {full_line, "next"}}};
  for (const auto& [bytes, lines] : cases) {
    write("C:\\lines.txt", bytes);
    files::text_reader reader(files::to_file_path("C:\\lines.txt"));
    texts read;
    while (!reader.at_end()) read.push_back(reader.read_line());
    EXPECT_EQ(read, lines);
  }
}

TEST_F(files_test, SeeksInsideAndOutsideItsBuffer) {
  const std::string bytes = some_bytes(300000);
  write("C:\\data", bytes);
  files::binary_file file;
  file.open_to_read(files::to_file_path("C:\\data"));
  for (const std::int64_t at : {0, 10, 70000, 69990, 5, 250000, 299990, 65536, 131071}) {
    for (const std::size_t count : {std::size_t{9}, std::size_t{70000}}) {
      file.seek(at);
      std::string got(count, ' ');
      got.resize(file.read(std::as_writable_bytes(std::span(got))));
      ASSERT_EQ(got, bytes.substr(static_cast<std::size_t>(at), count)) << at << " " << count;
    }
  }
}

}  // namespace ostrane
