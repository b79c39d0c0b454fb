#include "failing_calls.h"

#include <algorithm>
#include <csignal>
#include <string_view>

namespace ostrane {
namespace {

const files::system_call_table real = files::system_calls;
failing_calls* current = nullptr;

// Records a call and returns its result or the error of the fault. Closes a file whose opening is
// reported as failed.
auto record(std::string_view name, const auto& call) {
  const int number = static_cast<int>(current->calls.size());
  current->calls.emplace_back(name);
  current->before_call(current->calls.back());
  const call_fault& fault = current->fault;
  const bool is_named = name == current->failing_name;
  const bool is_first =
      number == current->at || (is_named && std::ranges::count(current->calls, name) == 1);
  const bool is_later = fault.lasting && (is_named || number > current->at);
  if (!is_first && !is_later) return call();
#ifdef SIGKILL  // where processes have signals
  if (fault.kind == call_fault::kills) std::raise(SIGKILL);
  if (fault.kind == call_fault::stops) return std::raise(SIGSTOP), call();
#endif
  using result = decltype(call());
  if (fault.kind == call_fault::does_nothing)
    return name == "write_some" || name == "replace" ? result{} : call();
  // A failing close or remove still takes effect, and a failing write writes a part.
  const bool fails_late = name == "close_file" || name == "remove_file" || name == "write_some";
  if (fault.kind == call_fault::lies || (fault.kind == call_fault::fails && fails_late)) {
    const result done = call();
    if (name.starts_with("open") && done >= 0) real.close_file(static_cast<int>(done));
  }
  return static_cast<result>(fault.kind == call_fault::interrupted ? -EINTR : -fault.reason);
}

// Reads and writes move a part of the bytes asked for.
auto& passed(auto& argument) { return argument; }
std::size_t passed(std::size_t& count) { return std::min((count + 1) / 2, current->max_bytes); }

template <auto Member>
std::string_view name_of;

// Has a call of the table recorded under this name.
template <auto Member>
void count(std::string_view name) {
  name_of<Member> = name;
  files::system_calls.*Member = {[](auto... args) {
    return record(name_of<Member>, [&] { return (real.*Member)(passed(args)...); });
  }};
}

}  // namespace

failing_calls::failing_calls(int number, call_fault with, std::string name)
    : at(number), fault(with), failing_name(std::move(name)) {
  current = this;
  // Else no read or write would be left to fail.
  files::system_calls.copy_some = +[](int, int, std::size_t) -> std::int64_t { return -ENOSYS; };
#define COUNT(name) count<&files::system_call_table::name>(#name)
  COUNT(open_to_read), COUNT(open_to_write), COUNT(open_new), COUNT(open_lock), COUNT(read_some),
      COUNT(write_some), COUNT(seek_to), COUNT(set_size), COUNT(info_of), COUNT(info_at),
      COUNT(copy_permissions), COUNT(lock), COUNT(flush_to_disk), COUNT(close_file),
      COUNT(remove_file), COUNT(replace), COUNT(flush_folder), COUNT(list);
}

failing_calls::~failing_calls() {
  files::system_calls = real;
  current = nullptr;
}

}  // namespace ostrane
