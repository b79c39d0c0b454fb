#pragma once

#include <string>

#include "command/console.h"

namespace ostrane::command {

// Prints an array of JSON objects, one on each line.
class json_rows {
 public:
  bool is_empty() const { return is_empty_; }
  void add(const std::string& object) {
    print((is_empty_ ? "[\n  " : ",\n  ") + object);
    is_empty_ = false;
  }
  void end() { print(is_empty_ ? "[\n]\n" : "\n]\n"); }

 private:
  bool is_empty_ = true;
};

}  // namespace ostrane::command
