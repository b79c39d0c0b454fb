#include "failing_calls.h"

#include <cerrno>
#include <csignal>
#include <set>
#include <string_view>

#include "platform/system_calls.h"

namespace ostrane {
namespace {

namespace fs = std::filesystem;

const platform::system_call_table real = platform::system_calls;
failing_calls* current = nullptr;
std::set<int> written;  // files that are open for writing

// What the call returns: its own outcome, or an error in its place.
template <typename Call>
auto made(const char* name, const Call& call) {
  const bool opens = std::string_view(name).starts_with("open");
  const int number = static_cast<int>(current->made.size());
  current->made.emplace_back(name);
  const call_fault& fault = current->fault;
  if (number < current->at || (number > current->at && !fault.lasting)) return call();
  if (fault.kind == call_fault::kills) std::raise(SIGKILL);
  if (fault.kind == call_fault::stops) std::raise(SIGSTOP);
  if (fault.kind == call_fault::stops) return call();
  using outcome = decltype(call());
  if (fault.kind == call_fault::lies) {
    const outcome done = call();
    if (opens && done >= 0) real.close_file(static_cast<int>(done));
  }
  return static_cast<outcome>(fault.kind == call_fault::interrupted ? -EINTR : -fault.reason);
}

std::size_t half(std::size_t count) { return (count + 1) / 2; }

int to_write(int file) {
  if (file >= 0) written.insert(file);
  return file;
}

const platform::system_call_table counted = {
    .open_to_read =
        [](const fs::path& path) {
          return made("open_to_read", [&] { return real.open_to_read(path); });
        },
    .open_to_write =
        [](const fs::path& path) {
          return to_write(made("open_to_write", [&] { return real.open_to_write(path); }));
        },
    .open_new =
        [](const fs::path& path) {
          return to_write(made("open_new", [&] { return real.open_new(path); }));
        },
    .read_some =
        [](int file, std::byte* to, std::size_t count) {
          return made("read_some", [&] { return real.read_some(file, to, half(count)); });
        },
    .write_some =
        [](int file, const std::byte* from, std::size_t count) {
          const auto moved = [&] { return real.write_some(file, from, half(count)); };
          const std::int64_t outcome = made("write_some", moved);
          // A full disk has taken a part before it fails.
          if (outcome < 0 && current->fault.kind == call_fault::fails) moved();
          return outcome;
        },
    .seek_to =
        [](int file, std::int64_t offset) {
          return made("seek_to", [&] { return real.seek_to(file, offset); });
        },
    .set_size =
        [](int file, std::int64_t size) {
          return made("set_size", [&] { return real.set_size(file, size); });
        },
    .facts_of =
        [](int file, platform::file_facts& facts) {
          return made("facts_of", [&] { return real.facts_of(file, facts); });
        },
    .facts_at =
        [](const fs::path& path, platform::file_facts& facts) {
          return made("facts_at", [&] { return real.facts_at(path, facts); });
        },
    .set_rights =
        [](int file, const platform::file_facts& like) {
          return made("set_rights", [&] { return real.set_rights(file, like); });
        },
    .lock = [](int file) { return made("lock", [&] { return real.lock(file); }); },
    .flush_to_disk =
        [](int file) { return made("flush_to_disk", [&] { return real.flush_to_disk(file); }); },
    .close_file =
        [](int file) {
          const char* name = written.erase(file) > 0 ? "close_written" : "close_read";
          const std::size_t number = current->made.size();
          const int outcome = made(name, [&] { return real.close_file(file); });
          // The file is closed also where that is reported to have failed.
          const bool failed = outcome < 0 && static_cast<int>(number) >= current->at;
          if (failed && current->fault.kind != call_fault::lies) real.close_file(file);
          return outcome;
        },
    .remove_file =
        [](const fs::path& path) {
          const auto removed = [&] { return real.remove_file(path); };
          const int outcome = made("remove_file", removed);
          // Else what a failing disk leaves would hide what the tool leaves.
          if (outcome < 0 && current->fault.kind == call_fault::fails) removed();
          return outcome;
        },
    .replace =
        [](const fs::path& file, const fs::path& target) {
          return made("replace", [&] { return real.replace(file, target); });
        },
    .flush_folder =
        [](const fs::path& folder) {
          return made("flush_folder", [&] { return real.flush_folder(folder); });
        },
    .list =
        [](const fs::path& folder, std::vector<platform::listed_entry>& found) {
      return made("list", [&] { return real.list(folder, found); });
    }};

}  // namespace

failing_calls::failing_calls(int number, call_fault with) : at(number), fault(with) {
  current = this;
  platform::system_calls = counted;
}

failing_calls::~failing_calls() {
  platform::system_calls = real;
  current = nullptr;
}

}  // namespace ostrane
