#pragma once

#include <exception>
#include <string>
#include <utility>

namespace ostrane {

// Invalid data: a damaged archive, a list that is too long, a file that changed during a job.
struct data_error : std::exception {
  explicit data_error(std::string sentence) : text(std::move(sentence)) {}
  const char* what() const noexcept override { return text.c_str(); }

  std::string text;  // a sentence for the user
};

}  // namespace ostrane
