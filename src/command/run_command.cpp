#include "command/run_command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <functional>
#include <memory>

#include "command/commands.h"
#include "command/console.h"
#include "command/interruption.h"
#include "data/archive_index.h"
#include "files/code_page.h"
#include "files/failure.h"
#include "files/nearest_word.h"
#include "version/version.h"

namespace ostrane::command {

namespace {

constexpr const char* names_help = "Names of entries; * and ? are wildcards, case is ignored";

// What the parser finds besides the options of the chosen command.
struct parsed_line {
  bool is_quiet = false;
  bool is_verbose = false;
  bool is_dry_run = false;
  std::function<int()> chosen;
};

std::string version_text() { return std::string("ostrane-dat ") + ostrane::version; }

// A command with its options, which its callback keeps alive.
template <typename Options>
struct command_form {
  command_form(CLI::App& app, parsed_line& line, int (*job)(const Options&), const char* name,
               const char* help, const std::string& example)
      : command(app.add_subcommand(name, help)->group("Commands")) {
    command->footer("Example:\n  ostrane-dat " + example);
    command->add_flag("-q,--quiet", line.is_quiet, "Suppress notes and progress");
    command->set_version_flag("-V,--version", version_text());
    command->callback(
        [&line, job, values = options] { line.chosen = [job, values] { return job(*values); }; });
  }
  // For a command that writes files.
  void writes(parsed_line& line) {
    command->add_flag("-v,--verbose", line.is_verbose, "Report each file that is written")
        ->excludes("--quiet");
    command->add_flag("-n,--dry-run", line.is_dry_run,
                      "Report what would be written, and write nothing");
  }
  // Help shows the name of an argument, but no type.
  template <typename Value>
  CLI::Option* argument(const char* name, Value Options::*value, const std::string& help) {
    return command->add_option(name, (*options).*value, help)->type_name("");
  }
  template <typename Value>
  CLI::Option* option(const char* name, Value Options::*value, const char* type, const char* help) {
    return command->add_option(name, (*options).*value, help)->type_name(type);
  }
  void flag(const char* name, bool Options::*value, const char* help) {
    command->add_flag(name, (*options).*value, help);
  }

  CLI::App* command;
  std::shared_ptr<Options> options = std::make_shared<Options>();
};

void add_list(CLI::App& app, parsed_line& line) {
  command_form form(app, line, list, "list", "Print the names of the entries",
                    "list ostrane.dat --long");
  form.argument("ARCHIVE", &list_options::archives, "The archives")->required();
  form.option("--sort", &list_options::order, "name|size|offset|kind",
              "The order (default: that of the index)")
      ->check(CLI::IsMember({"name", "size", "offset", "kind"}))
      ->option_text("name|size|offset|kind");
  form.flag("-l,--long", &list_options::is_long,
            "Also print size, offset, kind, number of icons and description");
  form.flag("--json", &list_options::is_json, "Print the same as a JSON array of objects");
  form.option("--icon-names", &list_options::icon_names, "FILE",
              "The descriptions (default: iconlist.csv in the program's folder)");
}

void add_extract(CLI::App& app, parsed_line& line) {
  command_form form(app, line, extract, "extract", "Write entries to files",
                    "extract ostrane.dat '*.SHP' -d work");
  form.argument("ARCHIVE", &extract_options::archive, "The archive")->required();
  form.argument("NAME", &extract_options::names,
                std::string(names_help) + " (default: all entries)");
  form.option("-d", &extract_options::folder, "FOLDER",
              "The folder to write to (default: the current one)");
  form.option("-o", &extract_options::output, "FILE", "Write the only entry to this file instead")
      ->excludes("-d");
  form.flag("--overwrite", &extract_options::overwrites,
            "Write into existing files instead of replacing them, which is faster");
  form.writes(line);
}

void add_build(CLI::App& app, parsed_line& line) {
  command_form form(app, line, build, "build", "Make an archive from the files in a folder",
                    "build work -o ostrane.dat");
  form.argument("FOLDER", &build_options::folder, "The folder")->required();
  form.option("-o", &build_options::archive, "ARCHIVE",
              "The archive to write (default: OSTRANE.DAT in the folder)");
  form.writes(line);
}

void add_add(CLI::App& app, parsed_line& line) {
  command_form form(app, line, add, "add",
                    "Add files to an archive; entries with their names are replaced",
                    "add ostrane.dat GEMS.SHP");
  form.argument("ARCHIVE", &add_options::archive, "The archive")->required();
  form.argument("FILE", &add_options::files, "The files")->required();
  form.flag("--force", &add_options::is_forced,
            "Also add files that become the same entry as another one");
  form.writes(line);
}

void add_remove(CLI::App& app, parsed_line& line) {
  command_form form(app, line, remove, "remove", "Remove entries from an archive",
                    "remove ostrane.dat CHIME.WAV");
  form.argument("ARCHIVE", &remove_options::archive, "The archive")->required();
  form.argument("NAME", &remove_options::names, names_help)->required();
  form.writes(line);
}

void add_rename(CLI::App& app, parsed_line& line) {
  command_form form(app, line, rename, "rename", "Rename an entry of an archive",
                    "rename ostrane.dat GEMS.SHP JEWELS.SHP");
  form.argument("ARCHIVE", &rename_options::archive, "The archive")->required();
  form.argument("OLD", &rename_options::old_name, "The entry")->required();
  form.argument("NEW", &rename_options::new_name, "Its new name")->required();
  form.flag("--keep-order", &rename_options::keeps_order,
            "Keep its position instead of the order of names");
  form.writes(line);
}

void add_pack(CLI::App& app, parsed_line& line) {
  command_form form(app, line, pack, "pack",
                    "Pack icon files into the shortest streams; no pixel changes",
                    "pack ostrane.dat");
  form.argument("ARCHIVE", &pack_options::archive, "The archive")->required();
  form.argument("NAME", &pack_options::names,
                std::string(names_help) + " (default: all icon files)");
  form.writes(line);
}

void add_diff(CLI::App& app, parsed_line& line) {
  command_form form(app, line, diff, "diff", "Report the entries that differ",
                    "diff old.dat ostrane.dat");
  form.argument("OLD", &diff_options::old_archive, "An archive")->required();
  form.argument("NEW", &diff_options::new_archive, "Another one")->required();
  form.flag("--json", &diff_options::is_json, "Print a JSON array of objects");
}

void add_compare(CLI::App& app, parsed_line& line) {
  command_form form(app, line, compare, "compare",
                    "Report names that only an archive or only a list has",
                    "compare ostrane.dat shplist.txt");
  form.argument("ARCHIVE", &compare_options::archive, "The archive")->required();
  form.argument("SHIPLIST", &compare_options::shiplist, "The list, one name per line")->required();
  form.option("-o", &compare_options::report, "REPORT",
              "The report to write (default: standard output)");
  form.writes(line);
}

void add_check(CLI::App& app, parsed_line& line) {
  command_form form(app, line, check, "check", "Report the faults of archives, one per line",
                    "check ostrane.dat");
  form.argument("ARCHIVE", &check_options::archives, "The archives")->required();
}

void add_export(CLI::App& app, parsed_line& line) {
  command_form form(app, line, export_entries, "export",
                    "Write icons as PNG or GIF, palettes as PNG and GPL, texts in UTF-8",
                    "export ostrane.dat GEMS.SHP -d gems");
  form.argument("ARCHIVE", &export_options::archive, "The archive")->required();
  form.argument("NAME", &export_options::names, names_help)->required();
  form.option("-d", &export_options::folder, "FOLDER",
              "The folder to write to (default: the current one)");
  form.option("--as", &export_options::form, "png|sheet|gif",
              "One PNG per icon (default), one PNG with all icons, or an animation")
      ->check(CLI::IsMember({"gif", "png", "sheet"}))
      ->option_text("png|sheet|gif");
  form.option("--pace", &export_options::pace, "N",
              "Hundredths of a second per icon of a GIF or sheet (default: 10)")
      ->check(CLI::Range(1, 65535))
      ->option_text("N");
  form.option("--scale", &export_options::scale, "N",
              "Enlarge the pictures N times (1 to 64, default: 1)")
      ->check(CLI::Range(1, 64))
      ->option_text("N");
  form.writes(line);
}

void add_import(CLI::App& app, parsed_line& line) {
  command_form form(app, line, import_pictures, "import", "Make an icon file from pictures",
                    "import gems -o GEMS.SHP --palette ostrane.dat");
  form.argument("SOURCE", &import_options::sources,
                "PNGs, sheets, a GIF, or the folder or JSON of an export")
      ->required();
  form.option("-o", &import_options::icon_file, "FILE.SHP", "The icon file to write")->required();
  form.option("--palette", &import_options::palette, "ARCHIVE|GAME.PAL",
              "The archive or palette with the colours of the game")
      ->required();
  form.option("--like", &import_options::like, "OLD.SHP",
              "Keep identifier, boxes and order of this icon file");
  form.option("--grid", &import_options::grid, "COLSxROWS", "Cut each PNG into a grid of icons");
  form.writes(line);
}

int run_chosen(const parsed_line& line) {
  configure_console(line.is_quiet     ? talk::quiet
                    : line.is_verbose ? talk::verbose
                                      : talk::normal,
                    line.is_dry_run);
  int status = status_failed;
  const files::failure failed = files::failure_in([&] {
    try {
      status = line.chosen();
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

void add_commands(CLI::App& app, parsed_line& line) {
  for (const auto add_one : {add_list, add_extract, add_build, add_add, add_remove, add_rename,
                             add_pack, add_diff, add_compare, add_check, add_export, add_import}) {
    add_one(app, line);
  }
}

files::failure unknown_command(const CLI::App& app, const std::vector<std::string>& arguments) {
  std::vector<std::string> names;
  for (const CLI::App* command : app.get_subcommands(nullptr)) names.push_back(command->get_name());
  const std::string first = arguments.empty() ? "" : arguments.front();
  const bool is_known = std::find(names.begin(), names.end(), first) != names.end();
  if (is_known || first.empty() || first.starts_with('-')) return {};
  return {files::as_utf8(first), "is not a command." + files::did_you_mean(first, names)};
}

// Why CLI11 refuses the arguments. It does not say which option is meant.
files::failure reason_of(const CLI::App& app, const CLI::ParseError& error) {
  const auto commands = app.get_subcommands();
  const CLI::App& owner = commands.empty() ? app : *commands.front();
  const auto extra = owner.remaining();
  if (extra.empty() || !extra.front().starts_with('-')) {
    return {files::as_utf8(error.what()), "see --help"};
  }
  const std::string option = extra.front().substr(0, extra.front().find('='));
  std::vector<std::string> options;
  for (const CLI::Option* known : owner.get_options()) {
    for (const std::string& name : known->get_lnames()) options.push_back("--" + name);
    for (const std::string& name : known->get_snames()) options.push_back("-" + name);
  }
  return {files::as_utf8(option),
          "is not an option of " + owner.get_name() + "." + files::did_you_mean(option, options)};
}

}  // namespace

static std::vector<std::string> with_help_option(std::vector<std::string> arguments) {
  if (arguments.empty() || arguments.front() != "help") return arguments;
  std::rotate(arguments.begin(), arguments.begin() + 1, arguments.end());
  arguments.back() = "--help";
  return arguments;
}

int run_command(const std::vector<std::string>& words) {
  CLI::App app("List, extract, build, change, compare and check archives, and convert their icons.",
               "ostrane-dat");
  app.get_formatter()->label("REQUIRED", "(required)");
  app.get_formatter()->label("SUBCOMMAND", "COMMAND");
  app.get_formatter()->label("Positionals", "Arguments");
  parsed_line line;
  app.require_subcommand(1);
  app.set_version_flag("-V,--version", version_text());
  app.footer("ostrane-dat COMMAND --help describes a command.");
  add_commands(app, line);
  const std::vector<std::string> arguments = with_help_option(words);
  try {
    app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
  } catch (const CLI::ParseError& error) {
    const files::failure unknown = unknown_command(app, arguments);
    if (!unknown && error.get_exit_code() == 0) return app.exit(error);
    print_error(unknown ? unknown : reason_of(app, error));
    return status_failed;
  }
  return run_chosen(line);
}

}  // namespace ostrane::command
