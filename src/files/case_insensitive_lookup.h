#pragma once

#include <filesystem>
#include <string>
#include <unordered_map>

namespace files {

// Finds names in folders without regard to case. It reads a folder once at most and remembers the
// names, so it lives no longer than one command.
class case_insensitive_lookup {
 public:
  // The path of `name` in `folder`: the exact name if it exists, else one that differs in case
  // only, else the name as given.
  std::filesystem::path find(const std::filesystem::path& folder, const std::string& name);

  // A file was made at `path`.
  void add(const std::filesystem::path& path);

  // The folders of the tool that were looked up before, by their paths with "\" at the end.
  std::unordered_map<std::string, std::filesystem::path> known_folders;

 private:
  struct folder_names {
    int lookups = 0;
    bool is_read = false;
    // By their upper-case form.
    std::unordered_map<std::string, std::filesystem::path::string_type> names;
  };
  static void read(folder_names& known, const std::filesystem::path& folder);

  std::unordered_map<std::filesystem::path::string_type, folder_names> folders_;
};

}  // namespace files
