#pragma once

#include <exception>
#include <new>
#include <string>
#include <utility>

namespace files {

// What a user is told. The window shows the sentence "SUBJECT REASON", the command line the line
// "SUBJECT: REASON".
struct failure {
  std::u8string subject;  // a file, folder or entry; "" if the reason is a whole sentence
  std::string reason;     // "cannot be read: it is not there."; "" if nothing failed

  explicit operator bool() const { return !reason.empty(); }
};

constexpr const char* out_of_memory_text = "There is not enough memory for this.";

// In the code page, with "?" for the characters that it lacks. "" if nothing failed.
std::string sentence_of(const failure& failed);

// An exception that carries a failure.
struct error : std::exception {
  explicit error(failure failed) : told(std::move(failed)) {}
  const char* what() const noexcept override { return told.reason.c_str(); }

  failure told;
};

// Runs `part` and catches its exceptions. Returns why it failed.
template <typename Part>
[[nodiscard]] failure failure_in(const Part& part) {
  try {
    part();
  } catch (const std::bad_alloc&) {
    return {u8"", out_of_memory_text};
  } catch (const error& caught) {
    return caught.told;
  } catch (const std::exception& caught) {
    return {u8"", caught.what()};
  }
  return {};
}

// The same as a sentence, or "".
template <typename Part>
[[nodiscard]] std::string failure_of(const Part& part) {
  return sentence_of(failure_in(part));
}

template <typename Part>
void ignore_failure(const Part& part) {
  try {
    part();
  } catch (const std::exception&) {
    // ignored
  }
}

}  // namespace files
