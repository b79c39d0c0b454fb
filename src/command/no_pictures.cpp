#include "command/commands.h"
#include "data/data_error.h"

// Replaces the commands for pictures where the libraries for PNG and GIF are missing.
namespace ostrane::command {

int export_entries(const export_options& /*options*/) {
  throw data_error("export: this program was built without libpng and giflib.");
}

int import_pictures(const import_options& /*options*/) {
  throw data_error("import: this program was built without libpng and giflib.");
}

}  // namespace ostrane::command
