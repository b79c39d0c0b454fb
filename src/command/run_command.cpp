#include "command/run_command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <functional>
#include <map>

#include "command/commands.h"
#include "command/console.h"
#include "command/interruption.h"
#include "command/nearest_word.h"
#include "data/archive_index.h"
#include "files/code_page.h"
#include "files/failure.h"
#include "version/version.h"

namespace ostrane::command {

namespace {

struct all_options {
  bool is_quiet = false;
  bool is_verbose = false;
  bool is_dry_run = false;
  list_options list;
  extract_options extract;
  build_options build;
  add_options add;
  remove_options remove;
  rename_options rename;
  pack_options pack;
  diff_options diff;
  compare_options compare;
  check_options check;
  export_options exported;
  import_options imported;
  std::function<int()> chosen;
};

std::string version_text() { return std::string("ostrane-dat ") + ostrane::version; }

// Adds a command with its help and an example.
CLI::App* add_command(CLI::App& app, all_options& options, const char* name, const char* help,
                      const char* example, std::function<int()> job) {
  CLI::App* command = app.add_subcommand(name, help)->group("Commands");
  command->footer(std::string("Example:\n  ostrane-dat ") + example);
  command->add_flag("-q,--quiet", options.is_quiet, "Suppress notes and progress");
  command->set_version_flag("-V,--version", version_text());
  command->callback([&options, job = std::move(job)] { options.chosen = job; });
  return command;
}

// The same for a command that writes files.
CLI::App* add_writer(CLI::App& app, all_options& options, const char* name, const char* help,
                     const char* example, std::function<int()> job) {
  CLI::App* command = add_command(app, options, name, help, example, std::move(job));
  command->add_flag("-v,--verbose", options.is_verbose, "Report each file that is written")
      ->excludes("--quiet");
  command->add_flag("-n,--dry-run", options.is_dry_run,
                    "Report what would be written, and write nothing");
  return command;
}

// Adds a positional argument. Its help shows no type.
template <typename Value>
CLI::Option* add_argument(CLI::App* command, const char* name, Value& value,
                          const std::string& help) {
  return command->add_option(name, value, help)->type_name("");
}

void add_archive(CLI::App* command, std::string& archive) {
  add_argument(command, "ARCHIVE", archive, "The archive")->required();
}

void add_folder(CLI::App* command, std::string& folder) {
  command->add_option("-d", folder, "The folder to write to (default: the current one)")
      ->type_name("FOLDER");
}

constexpr const char* names_help = "Names of entries; * and ? are wildcards, case is ignored";

void add_list(CLI::App& app, all_options& all) {
  list_options& options = all.list;
  CLI::App* command = add_command(app, all, "list", "Print the names of the entries",
                                  "list ostrane.dat --long", [&options] { return list(options); });
  add_argument(command, "ARCHIVE", options.archives, "The archives")->required();
  command->add_option("--sort", options.order, "The order (default: that of the index)")
      ->check(CLI::IsMember({"name", "size", "offset", "kind"}))
      ->option_text("name|size|offset|kind");
  command->add_flag("-l,--long", options.is_long,
                    "Also print size, offset, kind, number of icons and description");
  command->add_flag("--json", options.is_json, "Print the same as a JSON array of objects");
  command
      ->add_option("--icon-names", options.icon_names,
                   "The descriptions (default: iconlist.csv in the program's folder)")
      ->type_name("FILE");
}

void add_extract(CLI::App& app, all_options& all) {
  extract_options& options = all.extract;
  CLI::App* command =
      add_writer(app, all, "extract", "Write entries to files",
                 "extract ostrane.dat '*.SHP' -d work", [&options] { return extract(options); });
  add_archive(command, options.archive);
  add_argument(command, "NAME", options.names, std::string(names_help) + " (default: all entries)");
  add_folder(command, options.folder);
  command->add_option("-o", options.output, "Write the only entry to this file instead")
      ->type_name("FILE")
      ->excludes("-d");
  command->add_flag("--overwrite", options.overwrites,
                    "Write into existing files instead of replacing them, which is faster");
}

void add_build(CLI::App& app, all_options& all) {
  build_options& options = all.build;
  CLI::App* command =
      add_writer(app, all, "build", "Make an archive from the files in a folder",
                 "build work -o ostrane.dat", [&options] { return build(options); });
  add_argument(command, "FOLDER", options.folder, "The folder")->required();
  command
      ->add_option("-o", options.archive, "The archive to write (default: OSTRANE.DAT in FOLDER)")
      ->type_name("ARCHIVE");
}

void add_add(CLI::App& app, all_options& all) {
  add_options& options = all.add;
  CLI::App* command =
      add_writer(app, all, "add", "Add files to an archive; entries with their names are replaced",
                 "add ostrane.dat GEMS.SHP", [&options] { return add(options); });
  add_archive(command, options.archive);
  add_argument(command, "FILE", options.files, "The files")->required();
  command->add_flag("--force", options.is_forced,
                    "Also add files that become the same entry as another one");
}

void add_remove(CLI::App& app, all_options& all) {
  remove_options& options = all.remove;
  CLI::App* command =
      add_writer(app, all, "remove", "Remove entries from an archive",
                 "remove ostrane.dat CHIME.WAV", [&options] { return remove(options); });
  add_archive(command, options.archive);
  add_argument(command, "NAME", options.names, names_help)->required();
}

void add_rename(CLI::App& app, all_options& all) {
  rename_options& options = all.rename;
  CLI::App* command =
      add_writer(app, all, "rename", "Rename an entry of an archive",
                 "rename ostrane.dat GEMS.SHP JEWELS.SHP", [&options] { return rename(options); });
  add_archive(command, options.archive);
  add_argument(command, "OLD", options.old_name, "The entry")->required();
  add_argument(command, "NEW", options.new_name, "Its new name")->required();
  command->add_flag("--keep-order", options.keeps_order,
                    "Keep its position instead of the order of names");
}

void add_pack(CLI::App& app, all_options& all) {
  pack_options& options = all.pack;
  CLI::App* command =
      add_writer(app, all, "pack", "Pack icon files into the shortest streams; no pixel changes",
                 "pack ostrane.dat", [&options] { return pack(options); });
  add_archive(command, options.archive);
  add_argument(command, "NAME", options.names,
               std::string(names_help) + " (default: all icon files)");
}

void add_diff(CLI::App& app, all_options& all) {
  diff_options& options = all.diff;
  CLI::App* command = add_command(app, all, "diff", "Report the entries that differ",
                                  "diff old.dat ostrane.dat", [&options] { return diff(options); });
  add_argument(command, "OLD", options.old_archive, "An archive")->required();
  add_argument(command, "NEW", options.new_archive, "Another one")->required();
  command->add_flag("--json", options.is_json, "Print a JSON array of objects");
}

void add_compare(CLI::App& app, all_options& all) {
  compare_options& options = all.compare;
  CLI::App* command =
      add_writer(app, all, "compare", "Report names that only an archive or only a list has",
                 "compare ostrane.dat shplist.txt", [&options] { return compare(options); });
  add_archive(command, options.archive);
  add_argument(command, "SHIPLIST", options.shiplist, "The list, one name per line")->required();
  command->add_option("-o", options.report, "The report to write (default: standard output)")
      ->type_name("REPORT");
}

void add_check(CLI::App& app, all_options& all) {
  check_options& options = all.check;
  CLI::App* command = add_command(app, all, "check", "Report the faults of archives, one per line",
                                  "check ostrane.dat", [&options] { return check(options); });
  add_argument(command, "ARCHIVE", options.archives, "The archives")->required();
}

void add_form(CLI::App* command, picture_form& form) {
  const std::map<std::string, picture_form> forms = {
      {"png", picture_form::png}, {"sheet", picture_form::sheet}, {"gif", picture_form::gif}};
  command
      ->add_option_function<std::string>(
          "--as", [&form, forms](const std::string& name) { form = forms.at(name); },
          "One PNG per icon (default), one PNG with all icons, or an animation")
      ->check(CLI::IsMember(forms))
      ->type_name("png|sheet|gif")
      ->option_text("png|sheet|gif");
}

void add_export(CLI::App& app, all_options& all) {
  export_options& options = all.exported;
  CLI::App* command = add_writer(
      app, all, "export", "Write icons as PNG or GIF, palettes as PNG and GPL, texts in UTF-8",
      "export ostrane.dat GEMS.SHP -d gems", [&options] { return export_entries(options); });
  add_archive(command, options.archive);
  add_argument(command, "NAME", options.names, names_help)->required();
  add_folder(command, options.folder);
  add_form(command, options.form);
  command
      ->add_option("--pace", options.pace,
                   "Hundredths of a second per icon of a GIF or sheet (default: 10)")
      ->check(CLI::Range(1, 65535))
      ->option_text("N");
  command
      ->add_option("--scale", options.scale, "Enlarge the pictures N times (1 to 64, default: 1)")
      ->check(CLI::Range(1, 64))
      ->option_text("N");
}

void add_import(CLI::App& app, all_options& all) {
  import_options& options = all.imported;
  CLI::App* command = add_writer(app, all, "import", "Make an icon file from PNGs",
                                 "import gems -o GEMS.SHP --palette ostrane.dat",
                                 [&options] { return import_pictures(options); });
  add_argument(command, "SOURCE", options.sources,
               "PNGs, sheets, a GIF, or the folder or JSON of an export")
      ->required();
  command->add_option("-o", options.icon_file, "The icon file to write")
      ->required()
      ->type_name("FILE.SHP");
  command
      ->add_option("--palette", options.palette,
                   "The archive or palette with the colours of the game")
      ->required()
      ->type_name("ARCHIVE|GAME.PAL");
  command->add_option("--like", options.like, "Keep identifier, boxes and order of this icon file")
      ->type_name("OLD.SHP");
  command->add_option("--grid", options.grid, "Cut each PNG into a grid of icons")
      ->type_name("COLSxROWS");
}

int run_chosen(const all_options& options) {
  set_talk(options.is_quiet     ? talk::quiet
           : options.is_verbose ? talk::verbose
                                : talk::normal,
           options.is_dry_run);
  int status = status_failed;
  const files::failure failed = files::failure_in([&] {
    try {
      status = options.chosen();
      flush_output();
    } catch (const archive_changed& error) {
      if (error.told.subject.empty()) throw;
      throw data_error(error.told.subject,
                       "another program has changed it: run the command again.");
    }
  });
  if (!failed) return status;
  check_interruption();  // a closed pipe is also a failure to write
  print_error(failed);
  return status_failed;
}

void add_commands(CLI::App& app, all_options& options) {
  for (const auto add_one : {add_list, add_extract, add_build, add_add, add_remove, add_rename,
                             add_pack, add_diff, add_compare, add_check, add_export, add_import}) {
    add_one(app, options);
  }
}

std::vector<std::string> names_of_commands(const CLI::App& app) {
  std::vector<std::string> names;
  for (const CLI::App* command : app.get_subcommands(nullptr)) names.push_back(command->get_name());
  return names;
}

// "help COMMAND" means "COMMAND --help".
void replace_help(std::vector<std::string>& arguments) {
  if (arguments.empty() || arguments.front() != "help") return;
  arguments.erase(arguments.begin());
  arguments.emplace_back("--help");
}

// Why CLI11 refuses the arguments. It does not say which command or option is meant.
files::failure reason_of(const CLI::App& app, const CLI::ParseError& error,
                         const std::vector<std::string>& arguments) {
  const auto names = names_of_commands(app);
  const std::string& first = arguments.empty() ? "" : arguments.front();
  if (!first.empty() && !first.starts_with('-') &&
      std::find(names.begin(), names.end(), first) == names.end()) {
    return {files::as_utf8(first), "is not a command." + did_you_mean(first, names)};
  }
  const auto commands = app.get_subcommands();
  const auto extra = commands.empty() ? std::vector<std::string>() : commands.front()->remaining();
  if (extra.empty() || !extra.front().starts_with('-')) {
    return {files::as_utf8(error.what()), "see --help"};
  }
  const std::string option = extra.front().substr(0, extra.front().find('='));
  std::vector<std::string> options;
  for (const CLI::Option* known : commands.front()->get_options()) {
    for (const std::string& name : known->get_lnames()) options.push_back("--" + name);
    for (const std::string& name : known->get_snames()) options.push_back("-" + name);
  }
  return {files::as_utf8(option),
          "is not an option of " + first + "." + did_you_mean(option, options)};
}

}  // namespace

int run_command(std::vector<std::string> arguments) {
  CLI::App app("List, extract, build, change, compare and check archives, and convert their icons.",
               "ostrane-dat");
  app.get_formatter()->label("REQUIRED", "(required)");
  app.get_formatter()->label("SUBCOMMAND", "COMMAND");
  app.get_formatter()->label("Positionals", "Arguments");
  all_options options;
  app.require_subcommand(1);
  app.set_version_flag("-V,--version", version_text());
  app.footer("ostrane-dat COMMAND --help describes a command.");
  add_commands(app, options);
  replace_help(arguments);
  try {
    app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) return app.exit(error);
    print_error(reason_of(app, error, arguments));
    return status_failed;
  }
  return run_chosen(options);
}

}  // namespace ostrane::command
