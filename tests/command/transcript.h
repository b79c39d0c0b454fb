#pragma once

#include <cstdint>
#include <cstdlib>
#include <functional>
#include <map>
#include <utility>

#include "command_fixture.h"
#include "failing_calls.h"
#include "files/code_page.h"
#include "version/version.h"

namespace ostrane {

// The current folder of the test is another one, on Windows maybe on another drive.
inline const fs::path sample_archive = fs::absolute(SAMPLE_ARCHIVE);
inline const fs::path transcript_folder = fs::absolute(TRANSCRIPT_FOLDER);

// Runs the commands of a transcript and compares what they print.
//
// A line "$ COMMAND ; ..." has commands "ostrane-dat ARGUMENT ..." and "VERB WORD ...". The lines
// of standard output follow, then "!", the exit status and a line of standard error for each. A
// status other than 0 also shows if there is no error. "# " starts a comment. A backslash and two
// digits are a byte that is not printable ASCII; a backslash at the end of a line is a missing line
// end. With OSTRANE_RENEW set the transcript is written with what was printed.
struct transcript_test : command_test {
  static std::string unescaped(const std::string& text) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
      const bool is_escape = text[i] == '\\';
      bytes +=
          is_escape ? static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16)) : text[i];
      i += is_escape ? 2 : 0;
    }
    return bytes;
  }
  static std::string hex_of(std::uint64_t number, std::size_t digits) {
    std::string text(digits, '0');
    for (std::size_t i = digits; i-- > 0; number >>= 4U) text[i] = "0123456789ABCDEF"[number & 15U];
    return text;
  }
  static std::string hex_bytes(const std::string& bytes) {
    std::string text;
    for (const char byte : bytes) text += hex_of(static_cast<unsigned char>(byte), 2);
    return text;
  }
  static std::string checksum_of(const std::string& bytes) {
    std::uint64_t sum = 14695981039346656037U;  // FNV-1a
    for (const char c : bytes) sum = (sum ^ static_cast<unsigned char>(c)) * 1099511628211U;
    return hex_of(sum, 16);
  }
  static std::string escaped(const std::string& line) {
    std::string text;
    for (const char c : line) {
      const bool is_plain = c >= 0x20 && c < 0x7F && c != '\\';
      text += is_plain ? std::string(1, c) : "\\" + hex_of(static_cast<unsigned char>(c), 2);
    }
    return text;
  }
  static std::string lines_of(const std::string& text, const std::string& mark = "") {
    std::string lines;
    std::istringstream from(text);
    for (std::string line; std::getline(from, line);) {
      lines += mark + escaped(line) + (from.eof() ? "\\\n" : "\n");
    }
    return lines;
  }
  static std::string lines_of(const result& seen) {
    const std::string output = lines_of(without_version(seen.output));
    const std::string mark = "!" + std::to_string(seen.status);
    if (seen.errors.empty() && seen.status != 0) return output + mark + "\n";
    return output + lines_of(seen.errors, mark + " ");
  }
  // Another program replaces a.dat by words[1] after its index is read, before each call that
  // words[0] names.
  static result run_beside_a_writer(const texts& words) {
    failing_calls watched;
    watched.before(words[0], [&] {
      if (std::count(watched.calls.begin(), watched.calls.end(), "open_to_read") < 2) return;
      const auto time = fs::last_write_time("a.dat") + std::chrono::seconds(1);
      write_bytes("a.dat", bytes_of(words[1]));
      fs::last_write_time("a.dat", time);
    });
    return run_arguments({words.begin() + 2, words.end()});
  }
  // NAME=TEXT or NAME=<FILE.
  static archive_entry entry_of(const std::string& word) {
    const std::string bytes = word.substr(word.find('=') + 1);
    return {word.substr(0, word.find('=')),
            bytes.starts_with('<') ? bytes_of(bytes.substr(1)) : bytes};
  }
  static void put_files(const texts& words) {
    for (const std::string& word : words) {
      const archive_entry file = entry_of(word);
      write_bytes(files::as_utf8(file.name), file.bytes);
    }
  }
  static void make_archive(const texts& words) {
    std::vector<archive_entry> entries;
    for (std::size_t i = 1; i < words.size(); ++i) entries.push_back(entry_of(words[i]));
    write_bytes(words[0], archive_bytes(entries));
  }
  static void replace_bytes(const texts& words) {
    std::string bytes = bytes_of(words[0]);
    write_bytes(words[0], bytes.replace(std::stoul(words[1]), words[2].size(), words[2]));
  }
  static std::string list_files(const std::string& folder) {
    std::string names;
    for (const auto& [name, bytes] : files_at(folder)) names += (names.empty() ? "" : " ") + name;
    return names + "\n";
  }
  static std::string without_version(std::string text) {
    const std::string_view old = version;
    const std::size_t at = text.find(old);
    return at == std::string::npos ? text : text.replace(at, old.size(), "VERSION");
  }
  // The first lines, and the checksum of a text that has more.
  static std::string shown(const texts& words) {
    const std::string text = without_version(bytes_of(words[0]));
    std::size_t end = words.size() > 1 ? 0 : std::string::npos;
    for (int left = end == 0 ? std::stoi(words[1]) : 0; left > 0; --left) {
      end = std::min(text.find('\n', end), text.size()) + 1;
    }
    if (end >= text.size()) return text;
    return text.substr(0, end) + "... " + checksum_of(text) + "\n";
  }

  std::string answer_to_one(texts words) const {
    const std::string first = words.front();
    words.erase(words.begin());
    if (first != "ostrane-dat") return lines_of(verbs.at(first)(words));
    return lines_of(run_arguments(words));
  }
  std::string answer(const std::string& line) const {
    std::string all;
    texts words;
    for (const std::string& word : arguments_of(line + " ;")) {
      if (word != ";") {
        words.push_back(unescaped(word));
      } else {
        all += answer_to_one(std::exchange(words, {}));
      }
    }
    return all;
  }

  void replay(const std::string& name) const {
    fs::copy_file(sample_archive, "sample.dat", fs::copy_options::overwrite_existing);
    const std::string golden = "\n" + bytes_of(transcript_folder / name);
    ASSERT_GT(golden.size(), 1U) << name;
    std::string all;
    for (std::size_t at = 1; at < golden.size();) {
      const std::size_t next = std::min(golden.find("\n$ ", at), golden.find("\n# ", at));
      const std::string part = golden.substr(at, next == std::string::npos ? next : next + 1 - at);
      std::string seen = part.substr(0, part.find('\n') + 1);
      if (part.starts_with('$')) seen += answer(seen.substr(2));
      EXPECT_EQ(seen, part);
      all += seen;
      at += part.size();
    }
    if (std::getenv("OSTRANE_RENEW") != nullptr) write_bytes(transcript_folder / name, all);
  }

  using verb = std::function<std::string(const texts& words)>;
  static verb quiet(const std::function<void(const texts& words)>& made) {
    return [made](const texts& words) {
      made(words);
      return std::string();
    };
  }
  std::map<std::string, verb> verbs = {
      {"archive", quiet(make_archive)},
      {"put", quiet(put_files)},
      {"replace", quiet(replace_bytes)},
      {"cut", quiet([](const texts& w) { fs::resize_file(w[0], std::stoul(w[1])); })},
      {"append", quiet([](const texts& w) {
         std::ofstream to(w[0], std::ios::app | std::ios::binary);
         for (int left = std::stoi(w[1]); left > 0; --left) to << w[2];
       })},
      {"link", quiet([](const texts& w) { fs::create_hard_link(w[0], w[1]); })},
      {"delete", quiet([](const texts& w) { fs::remove_all(w[0]); })},
      {"beside", [](const texts& w) { return lines_of(run_beside_a_writer(w)); }},
      {"cat", shown},
      {"ls", [](const texts& w) { return list_files(w[0]); }}};
};

}  // namespace ostrane
