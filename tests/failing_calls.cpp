#include "failing_calls.h"

#include <algorithm>
#include <csignal>
#include <string_view>

namespace ostrane {
namespace {

namespace fs = std::filesystem;

const files::system_call_table real = files::system_calls;
failing_calls* current = nullptr;

// Records a call and returns its result or the error of the fault. Closes a file whose opening is
// reported as failed.
template <typename Call>
auto record(std::string_view name, const Call& call) {
  const int number = static_cast<int>(current->calls.size());
  current->calls.emplace_back(name);
  const call_fault& fault = current->fault;
  if (number < current->at || (number > current->at && !fault.lasting)) return call();
#ifdef SIGKILL  // where processes have signals
  if (fault.kind == call_fault::kills) std::raise(SIGKILL);
  if (fault.kind == call_fault::stops) std::raise(SIGSTOP);
  if (fault.kind == call_fault::stops) return call();
#endif
  using result = decltype(call());
  if (fault.kind == call_fault::writes_nothing) return name == "write_some" ? result{} : call();
  // A failing close or remove takes effect all the same, and a full disk takes part of a write.
  const bool fails_late = name[0] == 'c' || name == "remove_file" || name == "write_some";
  if (fault.kind == call_fault::lies || (fault.kind == call_fault::fails && fails_late)) {
    const result done = call();
    if (name.starts_with("open") && done >= 0) real.close_file(static_cast<int>(done));
  }
  return static_cast<result>(fault.kind == call_fault::interrupted ? -EINTR : -fault.reason);
}

struct call_name {
  char text[20] = {};
  constexpr call_name(const char* name) { std::copy_n(name, std::string_view(name).size(), text); }
};

using table = files::system_call_table;

template <call_name Name, auto Member>
struct counted;
template <call_name Name, typename Result, typename... Args, Result (*table::*Member)(Args...)>
struct counted<Name, Member> {
  static Result call(Args... args) {
    return record(Name.text, [&] { return (real.*Member)(args...); });
  }
};

std::size_t half(std::size_t count) { return (count + 1) / 2; }

table counted_calls() {
  table all = real;
  all.open_to_read = counted<"open_to_read", &table::open_to_read>::call;
  all.open_to_write = counted<"open_to_write", &table::open_to_write>::call;
  all.open_new = counted<"open_new", &table::open_new>::call;
  all.open_lock = counted<"open_lock", &table::open_lock>::call;
  all.read_some = [](int file, std::byte* to, std::size_t count) {
    return record("read_some", [&] { return real.read_some(file, to, half(count)); });
  };
  all.write_some = [](int file, const std::byte* from, std::size_t count) {
    return record("write_some", [&] { return real.write_some(file, from, half(count)); });
  };
  all.seek_to = counted<"seek_to", &table::seek_to>::call;
  all.set_size = counted<"set_size", &table::set_size>::call;
  all.info_of = counted<"info_of", &table::info_of>::call;
  all.info_at = counted<"info_at", &table::info_at>::call;
  all.copy_permissions = counted<"copy_permissions", &table::copy_permissions>::call;
  all.lock = counted<"lock", &table::lock>::call;
  all.flush_to_disk = counted<"flush_to_disk", &table::flush_to_disk>::call;
  all.close_file = counted<"close_file", &table::close_file>::call;
  all.remove_file = counted<"remove_file", &table::remove_file>::call;
  all.replace = counted<"replace", &table::replace>::call;
  all.flush_folder = counted<"flush_folder", &table::flush_folder>::call;
  all.list = counted<"list", &table::list>::call;
  return all;
}

}  // namespace

failing_calls::failing_calls(int number, call_fault with) : at(number), fault(with) {
  current = this;
  files::system_calls = counted_calls();
}

failing_calls::~failing_calls() {
  files::system_calls = real;
  current = nullptr;
}

}  // namespace ostrane
