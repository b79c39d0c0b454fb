// make_seeds FOLDER
// Writes small inputs for the fuzz targets, a folder for each of them, named after it.
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "archive_writer.h"
#include "shp_writer.h"
#include "worlds.h"

namespace {

namespace fs = std::filesystem;
using namespace ostrane;
using samples::sample_file;
using samples::shp_icon;

void write_seed(const fs::path& folder, const std::string& name, const std::string& bytes) {
  fs::create_directories(folder);
  std::ofstream file(folder / name, std::ios::binary | std::ios::trunc);
  file << bytes;
  file.close();
  if (!file) throw std::runtime_error((folder / name).string() + " cannot be written");
}

samples::picture striped(int columns, int rows) {
  samples::picture drawn(columns, rows);
  for (int y = 0; y < rows; ++y) {
    for (int x = y % 3; x < columns; ++x) {
      if (x % 5 != 0) drawn.set(x, y, static_cast<std::uint8_t>(x / 4 + y));
    }
  }
  return drawn;
}

// A good icon, a blank one, a refused one, and one whose data leaves its box on all sides.
std::string odd_icons() {
  std::vector<shp_icon> icons(4, samples::make_icon(striped(6, 4)));
  icons[1].head.col_start = icons[1].head.no_of_cols + 1;
  icons[2].head.row_end = icons[2].head.no_of_rows + 1;
  icons[3].head.col_start = icons[3].head.row_start = -2;
  return samples::shp_file(icons);
}

std::string large_icon() {
  shp_icon icon = samples::make_icon(striped(3, 3));
  icon.head.no_of_rows = 2000;
  icon.head.row_end = 2000;
  return samples::shp_file(std::vector<shp_icon>{icon});
}

// So many icons that they fill more than one series.
std::string many_icons() {
  return samples::shp_file(std::vector<samples::picture>(24, striped(120, 1)));
}

std::vector<sample_file> icon_files() {
  return {{"WORLD.SHP", samples::shp_file(std::vector{samples::barren_world(12)})},
          {"ODD.SHP", odd_icons()},
          {"LARGE.SHP", large_icon()},
          {"MANY.SHP", many_icons()},
          {"STRIPES.SHP", samples::shp_file(std::vector{striped(40, 3), striped(3, 9)})}};
}

std::vector<sample_file> other_files() {
  std::string colours;
  for (int i = 0; i < 64; ++i) colours += static_cast<char>(4 * i);
  return {{"000DATUP.000", "crest = 21\r\n"},
          {"GAME.PAL", colours},
          {"GUIDE.TXT", std::string("What is\r\nin here\0", 17)},
          {"CHIME.WAV", "RIFF"}};
}

void make_archive_seeds(const fs::path& folder) {
  write_seed(folder, "empty", samples::archive_file({}));
  write_seed(folder, "others", samples::archive_file(other_files()));
  std::vector<sample_file> all = other_files();
  for (const sample_file& file : icon_files()) {
    write_seed(folder, file.name, samples::archive_file({file, {"NOTE.TXT", "a note"}}));
    all.push_back(file);
  }
  write_seed(folder, "all", samples::archive_file(all));
}

void make_extract_seeds(const fs::path& folder) {
  write_seed(folder, "good", samples::archive_file(other_files()));
  write_seed(folder, "odd",
             samples::archive_file({{"..\\OUT.TXT", "1"},
                                    {"../OUT.TXT", "22"},
                                    {"C:OUT.TXT", "333"},
                                    {"SELF.DAT", "4444"},
                                    {"NUL.TXT", "5"},
                                    {"..", "6"},
                                    {"", "7"},
                                    {"A B.TXT", "88"},
                                    {"a b.txt", "9"},
                                    {"\x80\xE4.TXT", "\x80"}}));
  std::string backwards = samples::archive_file(other_files());
  backwards[4 + 17] = '\0';
  write_seed(folder, "backwards", backwards);
}

// The parts of these inputs are separated by byte 1E.
void make_text_seeds(const fs::path& folder) {
  write_seed(folder / "lists", "agree",
             "GUIDE;A guide\r\nGEMS;Stones\r\n\x1E"
             "GEMS.SHP\r\nGUIDE.TXT\r\n\x1EGEMS.SHP\x1EGUIDE.TXT");
  write_seed(folder / "lists", "differ",
             "gems ; stones;cut\nno name\r;\n\x1EZ.TXT\nGEMS.SHP\rGEMS.SHP\n\n\x1E"
             "A.TXT\x1EGEMS.SHP\x1EH.TXT\x1E");
  write_seed(folder / "build", "good",
             "GEMS.SHP\x1E"
             "ICON\x1EGuide.txt\x1Etext");
  write_seed(folder / "build", "odd",
             "a b .txt\x1E"
             "1\x1E.hidden\x1E\x1E"
             "A much too long name.text\x1E"
             "22\x1EOstrane.dat\x1Eold\x1E"
             "\xC3\xA4.txt\x1E"
             "3\x1E\xC3\x84.TXT\x1E"
             "4\x1E\xE4.txt\x1E"
             "5\x1E"
             "c\\d\x1E"
             "6");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: make_seeds FOLDER\n";
    return 2;
  }
  try {
    const fs::path folder = argv[1];
    for (const sample_file& file : icon_files()) write_seed(folder / "icon", file.name, file.bytes);
    make_archive_seeds(folder / "archive");
    make_extract_seeds(folder / "extract");
    make_text_seeds(folder);
  } catch (const std::exception& failure) {
    std::cerr << "make_seeds: " << failure.what() << '\n';
    return 1;
  }
  return 0;
}
