#include "handlers/entry_details.h"
#include "icon_fixture.h"
#include "pictures/icon_exporter.h"
#include "test_screen.h"

namespace ostrane {
namespace {

struct several_entries_test : icon_test {
  several_entries_test() {
    make_folder("D:\\out");
    start_tool(root / "c" / "program", make_icon_exporter());
    show({plain_icons(2, 1, 1), plain_icons(1, 1, 1)});  // GAME.PAL, N.TXT, F1.SHP, F2.SHP, end
    answers.save = [](const auto&) { return forms_layer::save_answer{}; };
  }

  // Opens the menu of a row and picks an item. Returns the captions.
  std::string pick(std::int32_t row, std::size_t item) {
    std::string captions;
    answers.pick = [&](const forms_layer::context_menu& opened) {
      for (const auto* offered : opened.items) captions += offered->Caption + "|";
      return opened.items.at(item);
    };
    user::open_menu(Form1.List1, row);
    return captions;
  }

  test_screen answers;
};

TEST_F(several_entries_test, TheMenuIsOfTheSelectedRows) {
  const std::string one = "Extract this entry\x85|";
  const std::string three = "Extract 3 entries\x85|Export 3 entries as pictures\x85|";
  const std::tuple<std::vector<std::int32_t>, std::int32_t, std::string> cases[] = {
      {{1, 2, 3}, 2, three}, {{1, 2, 3, 4}, 4, three}, {{1, 2, 3}, 0, one},
      {{1}, 1, one},         {{3, 4}, 3, one},         {{3, 9}, 3, one},
  };
  for (const auto& [rows, row, captions] : cases) {
    user::select_row(Form1.List1, 2);
    user::select_rows(Form1.List1, rows);
    EXPECT_EQ(pick(row, 0), captions) << rows.size();
    EXPECT_EQ(Form1.List1.ListIndex(), 2);
  }
  user::select_row(Form1.List1, 2);
  EXPECT_TRUE(Form1.List1.SelectedRows().empty());
  EXPECT_EQ(new_messages(), texts{});
}

// No file is replaced.
TEST_F(several_entries_test, WritesTheSelectedEntries) {
  if (make_icon_exporter() == nullptr) GTEST_SKIP() << "built without libpng and giflib";
  answers.folder = answers.dropped_in = root / "d" / "out";
  const auto extract = [this] { pick(1, 0); };
  const auto export_all = [this] { pick(1, 1); };
  const auto press = [] { user::press(Form1, Form1.keys[8]); };
  const auto drag = [] { user::drag_rows(Form1.List1, 1); };
  const auto drag_other = [] { user::drag_rows(Form1.List1, 3); };
  EXPECT_EQ(Form1.keys[8].name, "Ctrl+E");
  const std::string kept =
      "These entries were not extracted:\n>N.TXT<: its file cannot be made: it is there already";
  const std::string no_icons =
      "The pictures were exported, with these exceptions:\n>N.TXT<: it is no icon file";
  const std::tuple<std::function<void()>, std::string, texts, texts> cases[] = {
      {extract, "", {"F1.SHP", "N.TXT"}, {}},
      {press, "", {"F1.SHP", "N.TXT"}, {}},
      {drag, "", {"F1.SHP", "N.TXT"}, {}},
      {drag_other, "", {"F2.SHP"}, {}},
      {extract, "N.TXT", {"F1.SHP", "N.TXT"}, {kept}},
      {export_all, "", {"F1-0001.png", "F1-0002.png", "F1.json"}, {no_icons}},
      {export_all,
       "F1-0002.png",
       {"F1-0002.png"},
       {no_icons + "\n>F1.SHP<: D:\\out\\F1-0002.png cannot be written: it is there already."}},
  };
  for (const auto& [act, existing, written, messages] : cases) {
    fs::remove_all(disk_path("D:\\out"));
    make_folder("D:\\out");
    if (!existing.empty()) write("D:\\out\\" + existing, "old");
    user::select_rows(Form1.List1, {1, 2, 4});
    act();
    EXPECT_EQ(names_in("D:\\out"), written);
    EXPECT_EQ(new_messages(), messages);
    EXPECT_TRUE(existing.empty() || read("D:\\out\\" + existing) == "old");
  }
}

TEST_F(several_entries_test, FindsRowsByNameAndDescription) {
  write("C:\\program\\iconlist.csv", "n;A green Lake\r\n");
  start_tool(root / "c" / "program");
  open_archive();
  const std::pair<const char*, std::vector<std::int32_t>> cases[] = {
      {"shp", {2, 3}}, {"LAKE", {1}}, {"a", {0, 1}}, {"", {}}, {"txtA", {}}, {"zz", {}}};
  for (const auto& [text, rows] : cases) EXPECT_EQ(rows_with(text), rows) << text;
  EXPECT_EQ(entry_tool_tip(1), "N.TXT: 4 bytes at 1113, text");
  EXPECT_EQ(entry_tool_tip(2).substr(0, 7) + entry_tool_tip(2).substr(26), "F1.SHP:icons, 2 icons");
  EXPECT_EQ(entry_tool_tip(4) + entry_tool_tip(-1), "");
}

}  // namespace
}  // namespace ostrane
