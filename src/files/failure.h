#pragma once

#include <new>
#include <string>

#include "files/file_error.h"

namespace files {

// Runs a part of a command. Returns why it failed, as a sentence for the user, or "".
template <typename Part>
std::string failure_of(const Part& part) {
  try {
    part();
  } catch (const file_error& error) {
    return error.text;
  } catch (const std::bad_alloc&) {
    return "There is not enough memory for this.";
  }
  return "";
}

}  // namespace files
