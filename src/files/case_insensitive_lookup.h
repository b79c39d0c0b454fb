#pragma once

#include <filesystem>
#include <string>
#include <unordered_map>

namespace files {

// True also for a link that leads nowhere.
bool path_exists(const std::filesystem::path& path);

// Finds names in folders, ignoring case. It caches the names of a folder, so it must not outlive a
// command. A folder that cannot be read counts as empty.
class case_insensitive_lookup {
 public:
  // Returns the path of `name` in `folder`: the exact name if it exists, else one that differs in
  // case only, else the name as given. The caller may create that file: a later look-up of a name
  // that differs in case only finds it.
  std::filesystem::path find(const std::filesystem::path& folder, const std::string& name);

  // Cache of system_path: system paths of folders by their full tool paths, which end in "\".
  std::unordered_map<std::string, std::filesystem::path> known_folders;

 private:
  struct folder_names {
    int lookups = 0;
    bool is_read = false;
    // Names by their upper-case form.
    std::unordered_map<std::string, std::filesystem::path::string_type> names;
  };
  static void read_once(folder_names& known, const std::filesystem::path& folder);

  std::unordered_map<std::filesystem::path::string_type, folder_names> folders_;
};

// The path of an existing file whose name differs from that of `path` in case only, else `path`.
std::filesystem::path existing_spelling(const std::filesystem::path& path);

}  // namespace files
