#pragma once

#include "forms/shared_design.h"

namespace ostrane {

// The dialog to open an archive. Lengths are twips.
struct form2 : forms_layer::form {
  form2()
      : form({.name = "Form2",
              .caption = "Vek -Select Ostrane.dat library",
              .client_width = 4680,
              .client_height = 4185}) {}

  forms_layer::drive_list Drive1{*this,
                                 {.name = "Drive1",
                                  .at = {120, 120, 2175, 315},
                                  .tab_index = 0,
                                  .tool_tip = "Click to change drive.",
                                  .back_color = pale_cyan}};
  forms_layer::dir_list Dir1{*this,
                             {.name = "Dir1",
                              .at = {120, 480, 2175, 3015},
                              .tab_index = 1,
                              .tool_tip = "Doublewclick to change directory.",
                              .back_color = pale_green}};
  forms_layer::file_list File1{
      *this,
      {.name = "File1",
       .at = {2400, 120, 2175, 3405},
       .tab_index = 2,
       .tool_tip = "If you can see the file Ostrane.dat here, you have found the right directory.",
       .back_color = forms_layer::system_menu,
       .enabled = false,
       .pattern = "ostrane.dat"}};
  forms_layer::button Command1{*this,
                               {.name = "Command1",
                                .at = {120, 3600, 2175, 495},
                                .tab_index = 3,
                                .text = "Read Ostrane.dat",
                                .tool_tip = "Click to read the ostrane.dat file."}};
  forms_layer::button Command2{
      *this,
      {.name = "Command2",
       .at = {2400, 3600, 2175, 495},
       .tab_index = 4,
       .text = "Cancel",
       .tool_tip = "No - I'm not curieous, I wouldn't want to know what's inside.",
       .cancel = true}};
};

extern form2 Form2;

}  // namespace ostrane
