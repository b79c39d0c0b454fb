#pragma once

#include "forms/shared_design.h"

namespace ostrane {

// The main window: the entries on the left, their content on the right. Lengths are twips.
struct form1 : forms_layer::form {
  form1()
      : form({.name = "Form1",
              .client_width = 9330,
              .client_height = 6690,
              .control_box = true,
              .resizable = true,
              .opens = forms_layer::start_position::screen_centre}) {}

  forms_layer::list_box List1{
      *this,
      {.name = "List1",
       .at = {0, 735, 1695, 5715},
       .tab_index = 0,
       .tool_tip = "Doubleclick on a s16-file to display the pictures in it.",
       .back_color = pale_green,
       .multi_select = true,
       .spoken_name = "Entries"}};
  forms_layer::text_box Text1{*this,
                              {.name = "Text1",
                               .at = {945, 420, 750, 285},
                               .tab_index = 1,
                               .tool_tip = "Displays the number of files in your Ostrane.dat file.",
                               .back_color = forms_layer::system_menu,
                               .locked = true,
                               .spoken_name = "# of files:"}};
  forms_layer::label Label1{
      *this, {.name = "Label1", .at = {0, 420, 855, 255}, .tab_index = 2, .text = "# of files:"}};
  forms_layer::frame Frame1{
      *this, {.name = "Frame1", .at = {1800, 0, 7455, 6570}, .tab_index = 3, .text = "Icon View"}};
  forms_layer::picture_array s16_image{Frame1,
                                       {.name = "s16_image",
                                        .at = {240, 840, 100, 100},
                                        .tab_index = 4,
                                        .tool_tip = icon_tool_tip,
                                        .visible = false}};
  forms_layer::button Command3{
      Frame1,
      {.name = "Command3",
       .at = {1680, 240, 855, 255},
       .tab_index = 5,
       .text = "Prev icon",
       .tool_tip = "Click to get the previous picture in the selected s16-file"}};
  forms_layer::label Label2{Frame1,
                            {.name = "Label2",
                             .at = {120, 240, 1455, 375},
                             .tab_index = 6,
                             .text = "Tot # of Icon in s16"}};
  forms_layer::text_box Text2{
      Frame1,
      {.name = "Text2",
       .at = {120, 480, 1455, 285},
       .tab_index = 7,
       .tool_tip = "Displays the number of pictures in the selected s16-file",
       .back_color = forms_layer::system_menu,
       .locked = true,
       .centred = true,
       .spoken_name = "Tot # of Icon in s16"}};
  forms_layer::label Label3{Frame1,
                            {.name = "Label3",
                             .at = {2640, 240, 1575, 255},
                             .tab_index = 8,
                             .text = "Displayed picture #"}};
  forms_layer::text_box Text3{Frame1,
                              {.name = "Text3",
                               .at = {2640, 480, 1335, 285},
                               .tab_index = 9,
                               .tool_tip = "Displays the current picture-number in the s16-file.",
                               .back_color = forms_layer::system_menu,
                               .locked = true,
                               .centred = true,
                               .spoken_name = "Displayed picture #"}};
  forms_layer::text_box Text4{
      Frame1,
      {.name = "Text4",
       .at = {5040, 480, 615, 285},
       .tab_index = 10,
       .tool_tip = "Type in the interval between display of pictures. (* 1/100 seconds)",
       .back_color = forms_layer::system_window,
       .max_length = 2,
       .spoken_name = "1/100 sec"}};
  forms_layer::button Command4{
      Frame1,
      {.name = "Command4",
       .at = {1680, 480, 855, 255},
       .tab_index = 11,
       .text = "Next icon",
       .tool_tip = "Click to get the next picture in the selected s16-file"}};
  forms_layer::button Command5{Frame1,
                               {.name = "Command5",
                                .at = {4080, 240, 855, 495},
                                .tab_index = 12,
                                .text = "Start motion",
                                .tool_tip = "Click here to get these icons animated."}};
  forms_layer::label Label4{
      Frame1,
      {.name = "Label4", .at = {5040, 240, 855, 255}, .tab_index = 13, .text = "1/100 sec"}};
  forms_layer::button Command6{
      Frame1,
      {.name = "Command6",
       .at = {6120, 240, 1095, 495},
       .tab_index = 14,
       .text = "Next series",
       .tool_tip = "Click here to get the next series of icons displayed from the selected "
                   "s16-file."}};
  forms_layer::text_box Text5{
      *this,
      {.name = "Text5",
       .at = {960, 105, 735, 285},
       .tab_index = 15,
       .tool_tip = "Type the maximum number of icons you want displayed at one time.( If you want "
                   "too many, you might crash due to memory problems, 128MB RAM has a max of about "
                   "300)",
       .back_color = forms_layer::system_window,
       .max_length = 3,
       .spoken_name = "Max icons:"}};
  forms_layer::label Label5{
      *this, {.name = "Label5", .at = {0, 105, 855, 255}, .tab_index = 16, .text = "Max icons:"}};
  forms_layer::text_box Text6{Frame1,
                              {.name = "Text6",
                               .at = {120, 840, 7095, 5535},
                               .tab_index = 17,
                               .back_color = forms_layer::system_window,
                               .multi_line = true,
                               .spoken_name = "Text of the entry"}};

  forms_layer::timer Timer1{*this, "Timer1", 500, true};

  forms_layer::menu mnu_file{*this, "mnu_file", "File"};
  forms_layer::menu_item mnu_open{mnu_file, "mnu_open", "Open"};
  forms_layer::menu_item mnu_slash{mnu_file, "mnu_slash", ""};
  forms_layer::menu_item mnu_exit{mnu_file, "mnu_exit", "Exit"};
  forms_layer::menu mnu_imp{*this, "mnu_imp", "Import/export"};
  forms_layer::menu_item mnu_ext{mnu_imp, "mnu_ext", "Extract Ostrane.dat Files"};
  forms_layer::menu_item mnu_make{mnu_imp, "mnu_make", "Make Ostrane.dat"};
  forms_layer::menu mnu_rep{*this, "mnu_rep", "Reports"};
  forms_layer::menu_item mnu_save{mnu_rep, "mnu_save", "Save filelist as \"s16list.txt\""};
  forms_layer::menu_item mnu_skillin3{mnu_rep, "mnu_skillin3", ""};
  forms_layer::menu_item mnu_read_filelist{mnu_rep, "mnu_read_filelist",
                                           "Compare current Ostrane.dat with \"s16list.txt\""};

  forms_layer::context_menu mnu_picture{*this, "mnu_picture"};
  forms_layer::menu_item mnu_copy_picture{mnu_picture, "mnu_copy_picture", "Copy picture"};
  forms_layer::menu_item mnu_save_picture{mnu_picture, "mnu_save_picture", "Save picture\x85"};
  forms_layer::menu_item mnu_save_series{mnu_picture, "mnu_save_series", "Save series\x85"};
  forms_layer::context_menu mnu_entry{*this, "mnu_entry"};
  forms_layer::menu_item mnu_extract_entry{mnu_entry, "mnu_extract_entry",
                                           "Extract this entry\x85"};
  forms_layer::menu_item mnu_extract_entries{mnu_entry, "mnu_extract_entries", ""};
  forms_layer::menu_item mnu_export_entries{mnu_entry, "mnu_export_entries", ""};
};

extern form1 Form1;

}  // namespace ostrane
