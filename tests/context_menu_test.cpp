#include "pictures/icon_exporter.h"
#include "test_screen.h"

using namespace ostrane;

struct context_menu_test : icon_test {
  // Shows the icons 4 to 6 of nine. Those of F2.SHP are drawable, blank and refused. The rows are
  // GAME.PAL, N.TXT, F1.SHP, F2.SHP, F3.SHP and the end.
  static void show_second_series() {
    reset_drives();
    restart();
    make_folder("D:\\out");
    start_tool(root / "c" / "program", make_icon_exporter());
    user::type(Form1.Text5, "3");
    user::type(Form1.Text4, "7");
    std::vector<shp_icon> second = plain_icons(6, 1, 1);
    second[4] = blank_icon(1, 1);
    second[5] = refused_icon(1, 1);
    show({plain_icons(9, 1, 1), second, plain_icons(1, 1, 1)});
    user::click(Form1.Command6);
    new_messages();
  }

  static void show_odd_icons() { click_row("F2.SHP"), user::click(Form1.Command6), new_messages(); }
  static void use_other_colours() { tool_state.colour_table[4] = forms_layer::rgb('R', 'G', 'B'); }
  // Other names of the archive.
  static void link_names() {
    for (const char* name : {"a-0005.png", "all.json", "text"})
      fs::create_hard_link(disk_path("C:\\ostrane.dat"), root / "d" / "out" / name);
  }
  static void select_several() { user::select_rows(Form1.List1, {1, 4, 5}); }
  static void select_others() { user::select_rows(Form1.List1, {3, 4}); }
  static void select_only_one_entry() { user::select_rows(Form1.List1, {1, 5}); }
  static void select_beside_text() { write("D:\\out\\N.TXT", "old"), select_several(); }
  static void select_beside_png() { write("D:\\out\\F3-0001.png", "old"), select_several(); }
  static void close_archive() { open_archive("D:\\"), new_messages(); }
};

void on_row() { user::open_menu(Form1.List1, 1); }
void on_end_record() { user::open_menu(Form1.List1, 5); }
void press_ctrl_e() { user::press(Form1, Form1.keys[8]); }
void drag_selected() { user::drag_rows(Form1.List1, 1); }
void drag_other() { user::drag_rows(Form1.List1, 3); }
void on_row_during_changes() {
  write("D:\\out\\text", "old");
  failing_calls watched;
  watched.before("read_some", change_archive);
  on_row();
}
void on_first() { user::open_menu(Form1.s16_image, 1); }
void on_second() { user::open_menu(Form1.s16_image, 2); }
void on_third() { user::open_menu(Form1.s16_image, 3); }

// No file is replaced by several entries.
TEST_F(context_menu_test, ExportsPicturesAndExtractsEntries) {
  if (make_icon_exporter() == nullptr) GTEST_SKIP() << "built without libpng and giflib";
  EXPECT_EQ(Form1.keys[8].name, "Ctrl+E");
  const std::string changed =
      " <C:\\ostrane.dat has changed since it was read. Read it again. The ";
  const std::string no_icons =
      "The pictures were exported, with these exceptions:\n>N.TXT<: it is no icon file";
  const std::string ends_in = " <The name of the file must end in \".png";
  const auto refused = [](const std::string& name) {
    return " a-0005.png all.json text <D:\\out\\" + name +
           " cannot be written: it is the open archive. The series was not saved.>";
  };
  const struct {
    std::function<void()> prepare;
    void (*open)();
    std::size_t item;   // of the menu
    const char* typed;  // the name of the file
    std::size_t kind;   // of the file
    // "+" or "-" for each enabled or disabled item, the proposed name, the files, and the messages.
    std::string seen;
    std::string held = {};  // bytes in one of the files
  } cases[] = {
      {nothing, on_second, 0, "", 0, "+++ copied 4"},
      {nothing, on_second, 1, "", 0, "+++ F1-0005.png"},
      {nothing, on_second, 1, "p.PNG", 0, "+++ F1-0005.png p.PNG", "\x89PNG"},
      {use_other_colours, on_second, 1, "p.png", 0, "+++ F1-0005.png p.png", "RGB"},
      {nothing, on_second, 2, "all.png", 0, "+++ F1-sheet.png all.json all.png", "\"duration\":70"},
      {nothing, on_second, 2, "all.PNG", 0, "+++ F1-sheet.png all.PNG all.json",
       "\"image\":\"all.PNG\""},
      {nothing, on_first, 2, "a-0001.png", 0,
       "+++ F1-sheet.png a-0004.png a-0005.png a-0006.png a.json", "{\"number\":4,"},
      {nothing, on_first, 2, "b.png", 1, "+++ F1-0004.png b-0004.png b-0005.png b-0006.png b.json",
       "\"b-0004.png\""},
      {nothing, on_first, 2, "m.GIF", 2, "+++ F1.gif m.GIF",
       std::string("\x21\xF9\x04\x08\x07\0", 6)},
      {nothing, on_first, 1, "m.gif", 0,
       "+++ F1-0004.png" + ends_in + "\". The picture was not saved.>"},
      {nothing, on_first, 2, "s.bmp", 0,
       "+++ F1-sheet.png" + ends_in + "\" or \".gif\". The series was not saved.>"},
      {show_odd_icons, on_first, 2, "r.gif", 2,
       "+++ F2.gif r.gif <The series was saved, with these exceptions:\n>F2.SHP<: icon 6 was "
       "skipped: its box ends outside its picture>"},
      {show_odd_icons, on_third, 0, "", 0, ""},
      {nothing, on_row, 0, "text", 0, "+ N.TXT text", "text"},
      {nothing, on_end_record, 0, "", 0, ""},
      {[] { click_row("N.TXT"); }, on_first, 0, "", 0, ""},
      {[] { click_row("GAME.PAL"); }, on_first, 0, "", 0, ""},
      {change_archive, on_first, 1, "p.png", 0,
       "+++ F1-0004.png" + changed + "picture was not saved.>"},
      {change_archive, on_row, 0, "text", 0, "+ N.TXT" + changed + "entry was not extracted.>"},
      {nothing, on_row_during_changes, 0, "text", 0,
       "+ N.TXT text <The archive was written to during the extraction. Start the extraction "
       "again. The entry was not extracted.>",
       "old"},
      {link_names, on_first, 2, "a-0001.png", 0, "+++ F1-sheet.png" + refused("a-0005.png")},
      {link_names, on_first, 2, "all.png", 0, "+++ F1-sheet.png" + refused("all.json")},
      {link_names, on_row, 0, "text", 0,
       "+ N.TXT a-0005.png all.json text <This entry was not extracted:\n>N.TXT<: its file cannot "
       "be written: it is the open archive>"},
      {close_archive, on_first, 0, "", 0, "+-- copied 3"},
      {select_several, on_row, 0, "", 0, "++ F3.SHP N.TXT", "text"},
      {select_several, on_end_record, 0, "", 0, "++ F3.SHP N.TXT"},
      {select_others, on_row, 0, "", 0, "+ N.TXT"},
      {select_only_one_entry, on_row, 0, "", 0, "+ N.TXT"},
      {select_several, press_ctrl_e, 0, "", 0, " F3.SHP N.TXT"},
      {select_several, drag_selected, 0, "", 0, " F3.SHP N.TXT"},
      {select_several, drag_other, 0, "", 0, " F2.SHP"},
      {select_beside_text, on_row, 0, "", 0,
       "++ F3.SHP N.TXT <These entries were not extracted:\n>N.TXT<: its file cannot be made: it "
       "is there already>",
       "old"},
      {select_several, on_row, 1, "", 0, "++ F3-0001.png F3.json <" + no_icons + ">"},
      {select_beside_png, on_row, 1, "", 0,
       "++ F3-0001.png <No pictures were exported:\n>N.TXT<: it is no icon file"
       "\n>F3.SHP<: D:\\out\\F3-0001.png cannot be written: it is there already.>",
       "old"},
  };
  for (const auto& c : cases) {
    show_second_series();
    c.prepare();
    test_screen answers;
    answers.item = c.item;
    answers.kind = c.kind;
    answers.folder = answers.dropped_in = root / "d" / "out";
    if (*c.typed != '\0') answers.file = root / "d" / "out" / c.typed;
    const std::int32_t shown = Form1.List1.ListIndex();
    c.open();
    EXPECT_EQ(Form1.List1.ListIndex(), shown);
    for (const auto& [name, bytes] : files_in("D:\\out")) answers.seen += " " + name;
    for (const std::string& message : new_messages()) answers.seen += " <" + message + ">";
    EXPECT_EQ(answers.seen, c.seen);
    std::string all;
    for (const auto& [name, bytes] : files_in("D:\\out")) all += bytes;
    EXPECT_NE(all.find(c.held), std::string::npos) << c.typed;
  }
}
