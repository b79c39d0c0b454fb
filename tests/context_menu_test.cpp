#include "failing_calls.h"
#include "icon_fixture.h"
#include "pictures/icon_exporter.h"
#include "test_screen.h"

namespace ostrane {
namespace {

struct context_menu_test : icon_test {
  // Shows the icons 4 to 6 of nine. Those of F2.SHP are drawable, refused and blank.
  static void show_second_series() {
    reset_drives();
    restart();
    make_folder("D:\\out");
    start_tool(root / "c" / "program", make_icon_exporter());
    user::type(Form1.Text5, "3");
    user::type(Form1.Text4, "7");
    std::vector<shp_icon> second = plain_icons(9, 1, 1);
    second[4] = refused_icon(1, 1);
    second[5] = blank_icon(1, 1);
    show({plain_icons(9, 1, 1), second});
    user::click(Form1.Command6);
    new_messages();
  }

  // Opens a menu, picks an item and types a file name. Returns "+" or "-" for each enabled or
  // disabled item, the proposed name, the names of the files, and the messages.
  static std::string pick(const std::function<void()>& open, std::size_t item, const char* typed,
                          std::size_t kind) {
    std::string seen;
    test_screen answers;
    answers.pick = [&](const forms_layer::context_menu& opened) {
      for (const auto* offered : opened.items) seen += offered->Enabled() ? "+" : "-";
      return opened.items.at(item);
    };
    answers.save = [&](const forms_layer::save_question& question) {
      seen += " " + question.stem + question.kinds.at(kind).ending;
      const fs::path path = *typed == '\0' ? fs::path() : root / "d" / "out" / typed;
      return forms_layer::save_answer{path, kind};
    };
    answers.copied = [&](const forms_layer::picture_box& box) {
      seen += " copied " + std::to_string(forms_layer::blue_of(box.pixel(0, 0)));
    };
    open();
    for (const auto& [name, bytes] : files_in("D:\\out")) seen += " " + name;
    for (const std::string& message : new_messages()) seen += " <" + message + ">";
    return seen;
  }
};

void on_slot(std::int32_t slot) { user::open_menu(Form1.s16_image, slot); }
void on_first() { on_slot(1); }
void on_second() { on_slot(2); }
void on_row() { user::open_menu(Form1.List1, 1); }
void on_end_record() { user::open_menu(Form1.List1, 4); }
void in_other_colours() {
  tool_state.colour_table[4] = forms_layer::rgb('R', 'G', 'B');
  on_second();
}
void show_odd_icons() { click_row("F2.SHP"), user::click(Form1.Command6), new_messages(); }
void on_refused() { show_odd_icons(), on_slot(1); }
void on_blank() { show_odd_icons(), on_slot(3); }
void under_text() { click_row("N.TXT"), on_slot(1); }
void on_swatch() { click_row("GAME.PAL"), on_slot(1); }
// Other names of the archive.
void link_names() {
  for (const char* name : {"a-0005.png", "all.json", "text"}) {
    fs::create_hard_link(disk_path("C:\\ostrane.dat"), root / "d" / "out" / name);
  }
}
void on_first_beside_links() { link_names(), on_first(); }
void on_row_beside_links() { link_names(), on_row(); }
void after_change() { change_archive(), on_slot(1); }
void on_row_after_change() { change_archive(), on_row(); }
void on_row_during_changes() {
  write("D:\\out\\text", "old");
  failing_calls watched;
  watched.before("read_some", change_archive);
  on_row();
}
void without_archive() { open_archive("D:\\"), new_messages(), on_slot(1); }

TEST_F(context_menu_test, ExportsPicturesAndExtractsEntries) {
  if (make_icon_exporter() == nullptr) GTEST_SKIP() << "built without libpng and giflib";
  const std::string changed =
      " <C:\\ostrane.dat has changed since it was read. Read it again. The ";
  const auto refused = [](const std::string& name) {
    return " a-0005.png all.json text <D:\\out\\" + name +
           " cannot be written: it is the open archive. The series was not saved.>";
  };
  const struct {
    void (*open)();
    std::size_t item;
    const char* typed;
    std::size_t kind;
    std::string seen;
    std::string held = {};  // bytes in one of the files
  } cases[] = {
      {on_second, 0, "", 0, "+++ copied 4"},
      {on_second, 1, "", 0, "+++ F1-0005.png"},
      {on_second, 1, "p.PNG", 0, "+++ F1-0005.png p.PNG", "\x89PNG"},
      {in_other_colours, 1, "p.png", 0, "+++ F1-0005.png p.png", "RGB"},
      {on_second, 2, "all.png", 0, "+++ F1-sheet.png all.json all.png", "\"duration\":70"},
      {on_second, 2, "all.PNG", 0, "+++ F1-sheet.png all.PNG all.json", "\"image\":\"all.PNG\""},
      {on_first, 2, "a-0001.png", 0, "+++ F1-sheet.png a-0004.png a-0005.png a-0006.png a.json",
       "{\"number\":4,"},
      {on_first, 2, "b.png", 1, "+++ F1-0004.png b-0004.png b-0005.png b-0006.png b.json",
       "\"b-0004.png\""},
      {on_first, 2, "m.GIF", 2, "+++ F1.gif m.GIF", std::string("\x21\xF9\x04\x08\x07\0", 6)},
      {on_first, 1, "m.gif", 0,
       "+++ F1-0004.png <The name of the file must end in \".png\". The picture was not saved.>"},
      {on_first, 2, "s.bmp", 0,
       "+++ F1-sheet.png <The name of the file must end in \".png\" or \".gif\". The series was "
       "not "
       "saved.>"},
      {on_refused, 2, "r.gif", 2,
       "+++ F2.gif r.gif <The series was saved, with these exceptions:\n>F2.SHP<: icon 5 was "
       "skipped: its box ends outside its picture>"},
      {on_blank, 0, "", 0, ""},
      {on_row, 0, "text", 0, "+ N.TXT text", "text"},
      {on_end_record, 0, "", 0, ""},
      {under_text, 0, "", 0, ""},
      {on_swatch, 0, "", 0, ""},
      {after_change, 1, "p.png", 0, "+++ F1-0004.png" + changed + "picture was not saved.>"},
      {on_row_after_change, 0, "text", 0, "+ N.TXT" + changed + "entry was not extracted.>"},
      {on_row_during_changes, 0, "text", 0,
       "+ N.TXT text <The archive was written to during the extraction. Start the extraction "
       "again. The "
       "entry was not extracted.>",
       "old"},
      {on_first_beside_links, 2, "a-0001.png", 0, "+++ F1-sheet.png" + refused("a-0005.png")},
      {on_first_beside_links, 2, "all.png", 0, "+++ F1-sheet.png" + refused("all.json")},
      {on_row_beside_links, 0, "text", 0,
       "+ N.TXT a-0005.png all.json text <This entry was not extracted:\n>N.TXT<: its file cannot "
       "be written: it is the open archive>"},
      {without_archive, 0, "", 0, "+-- copied 3"},
  };
  for (const auto& c : cases) {
    show_second_series();
    EXPECT_EQ(pick(c.open, c.item, c.typed, c.kind), c.seen);
    std::string all;
    for (const auto& [name, bytes] : files_in("D:\\out")) all += bytes;
    EXPECT_NE(all.find(c.held), std::string::npos) << c.typed;
  }
}

}  // namespace
}  // namespace ostrane
