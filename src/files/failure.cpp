#include "files/failure.h"

#include "files/code_page.h"

namespace files {

std::string sentence_of(const failure& failed) {
  if (failed.subject.empty()) return failed.reason;
  return from_utf8_lossy(failed.subject) + " " + failed.reason;
}

}  // namespace files
