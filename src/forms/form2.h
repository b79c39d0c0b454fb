#pragma once

#include "forms/shared_design.h"

namespace ostrane {

// Finds the archive to read. Lengths are twips.
struct form2 : platform::form {
  form2()
      : form({.name = "Form2",
              .caption = "Vek -Select Ostrane.dat library",
              .client_width = 4680,
              .client_height = 4185}) {}

  platform::drive_list Drive1{*this,
                              {.name = "Drive1",
                               .at = {120, 120, 2175, 315},
                               .tab_index = 0,
                               .tool_tip = "Click to change drive.",
                               .back_color = pale_cyan}};
  platform::dir_list Dir1{*this,
                          {.name = "Dir1",
                           .at = {120, 480, 2175, 3015},
                           .tab_index = 1,
                           .tool_tip = "Doublewclick to change directory.",
                           .back_color = pale_green}};
  platform::file_list File1{
      *this,
      {.name = "File1",
       .at = {2400, 120, 2175, 3405},
       .tab_index = 2,
       .tool_tip = "If you can see the file Ostrane.dat here, you have found the right directory.",
       .back_color = platform::system_menu,
       .enabled = false,
       .pattern = "ostrane.dat"}};
  platform::button Command1{*this,
                            {.name = "Command1",
                             .at = {120, 3600, 2175, 495},
                             .tab_index = 3,
                             .text = "Read Ostrane.dat",
                             .tool_tip = "Click to read the ostrane.dat file."}};
  platform::button Command2{
      *this,
      {.name = "Command2",
       .at = {2400, 3600, 2175, 495},
       .tab_index = 4,
       .text = "Cancel",
       .tool_tip = "No - I'm not curieous, I wouldn't want to know what's inside."}};
};

extern form2 Form2;

}  // namespace ostrane
