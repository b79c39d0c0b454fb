#include "handlers/wiring.h"

#include "archive/extract_all.h"
#include "archive/make_archive.h"
#include "archive/new_folder.h"
#include "forms/forms.h"
#include "forms_layer/application.h"
#include "handlers/entry_details.h"
#include "handlers/entry_menu.h"
#include "handlers/entry_selection.h"
#include "handlers/keys.h"
#include "handlers/main_window.h"
#include "handlers/open_path.h"
#include "handlers/picture_menu.h"
#include "handlers/several_entries.h"
#include "handlers/sync_to_drive.h"
#include "handlers/window_switching.h"
#include "icons/icon_report.h"
#include "icons/motion.h"
#include "icons/series.h"
#include "lists/reports.h"
#include "progress/progress.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

void wire_form1() {
  Form1.Load = load_form1;
  Form1.Unload = forms_layer::end_process;
  Form1.Resize = lay_out_main_window;
  Form1.mnu_exit.Click = forms_layer::end_process;
  Form1.mnu_open.Click = open_form2;
  Form1.mnu_ext.Click = open_form4;
  Form1.mnu_make.Click = open_form5;
  Form1.mnu_save.Click = save_file_list;
  Form1.mnu_read_filelist.Click = open_form6;
  Form1.Text4.LostFocus = correct_interval;
  Form1.Text5.LostFocus = accept_max_icons;
  Form1.List1.Click = show_clicked_entry;
  Form1.List1.DblClick = show_double_clicked_entry;
  Form1.Command3.Click = show_previous_icon;
  Form1.Command4.Click = show_next_icon;
  Form1.Command5.Click = [] { motion_is_looping() ? end_motion() : start_motion(); };
  Form1.Command5.ShiftClick = [] { motion_is_looping() ? end_motion() : loop_motion(); };
  Form1.List1.Find = rows_with;
  Form1.List1.RowToolTip = entry_tool_tip;
  Form1.List1.Drag = drag_entries;
  Form1.TakesDrop = is_archive_path;
  Form1.Drop = open_path;
  Form1.Command6.Click = show_next_series;
  Form1.Timer1.Timer = step_motion;
  Form1.s16_image.DblClick = show_icon_report;
}

void wire_context_menus() {
  Form1.s16_image.ContextMenu = &Form1.mnu_picture;
  Form1.mnu_picture.OpensOn = shows_icon;
  Form1.mnu_picture.Popup = prepare_picture_menu;
  Form1.mnu_copy_picture.Click = copy_picture;
  Form1.mnu_save_picture.Click = save_picture;
  Form1.mnu_save_series.Click = save_series;
  Form1.List1.ContextMenu = &Form1.mnu_entry;
  Form1.mnu_entry.OpensOn = has_entry_menu;
  Form1.mnu_entry.Popup = prepare_entry_menu;
  Form1.mnu_extract_entry.Click = extract_one_entry;
  Form1.mnu_extract_entries.Click = extract_several_entries;
  Form1.mnu_export_entries.Click = export_several_entries;
}

void wire_form2() {
  Form2.Drive1.Change = [] { sync_to_drive(Form2.Drive1, Form2.Dir1); };
  Form2.Dir1.Change = [] { Form2.File1.Path = Form2.Dir1.Path(); };
  Form2.Dir1.Confirm = confirm_listed_archive;
  Form2.Command1.Click = confirm_form2;
  Form2.Command2.Click = [] { cancel_overlay(Form2); };
}

void wire_form3() { Form3.message.Click = close_report; }

// Change of `Dir1` of `Form4` and `Form5`. Assigning Path reads the folder.
template <typename Form>
void sync_to_folder(Form& dialog) {
  dialog.File1.Path = dialog.Dir1.Path();
  dialog.Text1.Text = dialog.Dir1.Path();
}

void wire_form4() {
  Form4.Drive1.Change = [] { sync_to_drive(Form4.Drive1, Form4.Dir1, &Form4.File1); };
  Form4.Dir1.Change = [] { sync_to_folder(Form4); };
  Form4.Command1.Click = make_new_folder;
  Form4.Command2.Click = extract_all_entries;
  Form4.Command3.Click = [] { cancel_replacement(Form4); };
}

void wire_form5() {
  Form5.Drive1.Change = [] { sync_to_drive(Form5.Drive1, Form5.Dir1, &Form5.File1); };
  Form5.Dir1.Change = [] { sync_to_folder(Form5); };
  Form5.Command1.Click = make_archive;
  Form5.Command2.Click = [] { cancel_replacement(Form5); };
}

void wire_form6() {
  Form6.Drive1.Change = [] { sync_to_drive(Form6.Drive1, Form6.Dir1); };
  Form6.Dir1.Change = [] { Form6.File1.Path = Form6.Dir1.Path(); };
  Form6.File1.Click = [] { Form6.Text1.Text = Form6.File1.FileName(); };
  Form6.Command1.Click = compare_with_shiplist;
  Form6.Command2.Click = [] { cancel_overlay(Form6); };
}

}  // namespace

void wire_forms() {
  wire_form1();
  wire_context_menus();
  wire_form2();
  wire_form3();
  wire_form4();
  wire_form5();
  wire_form6();
  wire_keys();
}

}  // namespace ostrane
