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
  if (fault.kind == call_fault::stops) std::raise(SIGSTOP);
  if (fault.kind == call_fault::stops) return call();
#endif
  using result = decltype(call());
  if (fault.kind == call_fault::does_nothing) {
    return name == "write_some" || name == "replace" ? result{} : call();
  }
  // A failing close or remove still takes effect, and a failing write writes a part.
  const bool fails_late = name == "close_file" || name == "remove_file" || name == "write_some";
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

// Reads and writes move a part of the bytes asked for.
auto& passed(auto& argument) { return argument; }
std::size_t passed(std::size_t& count) { return std::min((count + 1) / 2, current->max_bytes); }

using table = files::system_call_table;

template <call_name Name, auto Member>
struct counted;
template <call_name Name, typename Result, typename... Args,
          files::system_call<Result(Args...)> table::*Member>
struct counted<Name, Member> {
  static Result call(Args... args) {
    return record(Name.text, [&] { return (real.*Member)(passed(args)...); });
  }
  static void put_into(table& all) { all.*Member = call; }
};

template <typename... Calls>
table table_of() {
  table all = real;
  // Else no read or write would be left to fail.
  all.copy_some = +[](int, int, std::size_t) -> std::int64_t { return -ENOSYS; };
  (Calls::put_into(all), ...);
  return all;
}

#define COUNTED(name) counted<#name, &table::name>

const table counted_calls =
    table_of<COUNTED(open_to_read), COUNTED(open_to_write), COUNTED(open_new), COUNTED(open_lock),
             COUNTED(read_some), COUNTED(write_some), COUNTED(seek_to), COUNTED(set_size),
             COUNTED(info_of), COUNTED(info_at), COUNTED(copy_permissions), COUNTED(lock),
             COUNTED(flush_to_disk), COUNTED(close_file), COUNTED(remove_file), COUNTED(replace),
             COUNTED(flush_folder), COUNTED(list)>();

}  // namespace

failing_calls::failing_calls(int number, call_fault with, std::string name)
    : at(number), fault(with), failing_name(std::move(name)) {
  current = this;
  files::system_calls = counted_calls;
}

failing_calls::~failing_calls() {
  files::system_calls = real;
  current = nullptr;
}

}  // namespace ostrane
