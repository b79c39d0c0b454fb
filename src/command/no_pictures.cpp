#include "command/commands.h"
#include "data/data_error.h"

// Replaces export_command.cpp and import_command.cpp in builds without the PNG and GIF libraries.
namespace ostrane::command {

int export_entries(const export_options& /*options*/) {
  throw data_error("export: this program was built without libpng and giflib.");
}

int import_pictures(const import_options& /*options*/) {
  throw data_error("import: this program was built without libpng and giflib.");
}

}  // namespace ostrane::command
