#include "command/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <functional>
#include <map>

#include "command/commands.h"
#include "command/console.h"
#include "files/code_page.h"
#include "files/failure.h"
#include "state/version.h"

namespace ostrane::command {

namespace {

struct all_options {
  bool is_quiet = false;
  list_options list;
  extract_options extract;
  build_options build;
  add_options add;
  remove_options remove;
  compare_options compare;
  check_options check;
  export_options exported;
  import_options imported;
  std::function<int()> chosen;
};

// Adds a command with its help and an example.
CLI::App* add_command(CLI::App& app, all_options& options, const char* name, const char* help,
                      const char* example, std::function<int()> job) {
  CLI::App* command = app.add_subcommand(name, help);
  command->footer(std::string("Example:\n  ostrane-dat ") + example);
  command->add_flag("-q,--quiet", options.is_quiet, "No notes and no progress");
  command->callback([&options, job = std::move(job)] { options.chosen = job; });
  return command;
}

void add_archive(CLI::App* command, std::string& archive) {
  command->add_option("ARCHIVE", archive, "The archive")->required();
}

constexpr const char* names_help =
    "Names of entries; case is ignored, * and ? stand for characters";

void add_list(CLI::App& app, all_options& all) {
  list_options& options = all.list;
  CLI::App* command = add_command(app, all, "list", "Prints the names of the entries",
                                  "list ostrane.dat --long", [&options] { return list(options); });
  add_archive(command, options.archive);
  command->add_flag("-l,--long", options.is_long, "Size, offset, kind, icons, description too");
  command->add_flag("--json", options.is_json, "The same as an array of objects");
  command
      ->add_option("--icon-names", options.icon_names,
                   "The file with the descriptions, instead of iconlist.csv beside the program")
      ->type_name("FILE");
}

void add_extract(CLI::App& app, all_options& all) {
  extract_options& options = all.extract;
  CLI::App* command =
      add_command(app, all, "extract", "Writes entries as files",
                  "extract ostrane.dat '*.SHP' -d work", [&options] { return extract(options); });
  add_archive(command, options.archive);
  command->add_option("NAME", options.names, names_help);
  command->add_option("-d", options.folder, "The folder to write to")->type_name("FOLDER");
}

void add_build(CLI::App& app, all_options& all) {
  build_options& options = all.build;
  CLI::App* command =
      add_command(app, all, "build", "Makes an archive of the files of a folder",
                  "build work -o ostrane.dat", [&options] { return build(options); });
  command->add_option("FOLDER", options.folder, "The folder")->required();
  command->add_option("-o", options.archive, "The archive, instead of OSTRANE.DAT in the folder")
      ->type_name("ARCHIVE");
}

void add_add(CLI::App& app, all_options& all) {
  add_options& options = all.add;
  CLI::App* command =
      add_command(app, all, "add", "Puts files into an archive, for entries of their names or new",
                  "add ostrane.dat GEMS.SHP", [&options] { return add(options); });
  add_archive(command, options.archive);
  command->add_option("FILE", options.files, "The files")->required();
}

void add_remove(CLI::App& app, all_options& all) {
  remove_options& options = all.remove;
  CLI::App* command =
      add_command(app, all, "remove", "Takes entries out of an archive",
                  "remove ostrane.dat CHIME.WAV", [&options] { return remove(options); });
  add_archive(command, options.archive);
  command->add_option("NAME", options.names, names_help)->required();
}

void add_compare(CLI::App& app, all_options& all) {
  compare_options& options = all.compare;
  CLI::App* command =
      add_command(app, all, "compare", "Tells which names only an archive or only a list has",
                  "compare ostrane.dat shplist.txt", [&options] { return compare(options); });
  add_archive(command, options.archive);
  command->add_option("SHIPLIST", options.shiplist, "The list, a name on each line")->required();
  command->add_option("-o", options.report, "The file for the report")->type_name("REPORT");
}

void add_check(CLI::App& app, all_options& all) {
  check_options& options = all.check;
  CLI::App* command =
      add_command(app, all, "check", "Tells the faults of archives, one on each line",
                  "check ostrane.dat", [&options] { return check(options); });
  command->add_option("ARCHIVE", options.archives, "The archives")->required();
}

void add_export(CLI::App& app, all_options& all) {
  export_options& options = all.exported;
  CLI::App* command = add_command(
      app, all, "export", "Writes icons as PNG or GIF, palettes as PNG and GPL, texts in UTF-8",
      "export ostrane.dat GEMS.SHP -d gems", [&options] { return export_entries(options); });
  add_archive(command, options.archive);
  command->add_option("NAME", options.names, names_help)->required();
  command->add_option("-d", options.folder, "The folder to write to")->type_name("FOLDER");
  const std::map<std::string, picture_form> forms = {
      {"png", picture_form::png}, {"sheet", picture_form::sheet}, {"gif", picture_form::gif}};
  command->add_option("--as", options.form, "A PNG for each icon, one of all icons, or a motion")
      ->transform(CLI::CheckedTransformer(forms))
      ->type_name("png|sheet|gif")
      ->option_text("png|sheet|gif");
  command
      ->add_option("--pace", options.pace,
                   "Hundredths of a second for each picture of a motion or sheet")
      ->check(CLI::Range(1, 65535))
      ->option_text("N");
  command->add_option("--scale", options.scale, "Repeats each pixel so often, both ways")
      ->check(CLI::Range(1, 64))
      ->option_text("N");
}

void add_import(CLI::App& app, all_options& all) {
  import_options& options = all.imported;
  CLI::App* command = add_command(app, all, "import", "Makes an icon file of PNGs",
                                  "import gems -o GEMS.SHP --palette ostrane.dat",
                                  [&options] { return import_pictures(options); });
  command->add_option("SOURCE", options.sources, "PNGs, or a folder or its JSON from export")
      ->required();
  command->add_option("-o", options.icon_file, "The icon file to write")
      ->required()
      ->type_name("FILE.SHP");
  command->add_option("--palette", options.palette, "The archive, or a palette of 1024 bytes")
      ->required()
      ->type_name("ARCHIVE|GAME.PAL");
  command
      ->add_option("--like", options.like, "Takes identifier, boxes and order from this icon file")
      ->type_name("OLD.SHP");
}

// Texts of src/data may contain names in the code page.
std::string utf8_text(const std::string& text) {
  return files::from_utf8_lossy(text).find('?') == std::string::npos ? text : files::to_utf8(text);
}

int run_chosen(const all_options& options) {
  set_quiet(options.is_quiet);
  int status = status_failed;
  const std::string failure = files::failure_of([&] {
    status = options.chosen();
    flush_output();
  });
  if (failure.empty()) return status;
  print_error("", utf8_text(failure));
  return status_failed;
}

}  // namespace

int run(std::vector<std::string> arguments) {
  CLI::App app("Lists, extracts, builds, checks and converts what an archive ostrane.dat holds.",
               "ostrane-dat");
  all_options options;
  app.require_subcommand(1);
  app.set_version_flag("--version", std::string("ostrane-dat ") + ostrane::version);
  app.footer("ostrane-dat COMMAND --help tells of one command.");
  for (const auto add_one : {add_list, add_extract, add_build, add_add, add_remove, add_compare,
                             add_check, add_export, add_import}) {
    add_one(app, options);
  }
  std::reverse(arguments.begin(), arguments.end());
  try {
    app.parse(std::move(arguments));
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) return app.exit(error);
    print_error("", std::string(error.what()) + " (--help tells more)");
    return status_failed;
  }
  return run_chosen(options);
}

}  // namespace ostrane::command
