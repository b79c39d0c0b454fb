#pragma once

#include "forms/look.h"

namespace ostrane {

// Makes a new archive from the files of a folder. Lengths are twips.
struct form5 : platform::form {
  form5()
      : form({.name = "Form5",
              .caption = "Make New Ostrane.dat",
              .client_width = 5145,
              .client_height = 5340}) {}

  platform::drive_list Drive1{*this,
                              {.name = "Drive1",
                               .left = 105,
                               .top = 105,
                               .width = 2430,
                               .height = 315,
                               .tab_index = 0,
                               .back_color = pale_cyan}};
  platform::dir_list Dir1{*this,
                          {.name = "Dir1",
                           .left = 105,
                           .top = 630,
                           .width = 2430,
                           .height = 3240,
                           .tab_index = 1,
                           .back_color = pale_green}};
  platform::file_list File1{*this,
                            {.name = "File1",
                             .left = 2625,
                             .top = 105,
                             .width = 2430,
                             .height = 3795,
                             .tab_index = 2,
                             .back_color = platform::system_light}};
  platform::text_box Text1{*this,
                           {.name = "Text1",
                            .left = 105,
                            .top = 4305,
                            .width = 4950,
                            .height = 330,
                            .tab_index = 3,
                            .back_color = platform::system_light}};
  platform::label Label1{*this,
                         {.name = "Label1",
                          .left = 105,
                          .top = 3990,
                          .width = 4740,
                          .height = 225,
                          .tab_index = 4,
                          .text = "Current Folder",
                          .font = bold_large}};
  platform::button Command1{*this,
                            {.name = "Command1",
                             .left = 105,
                             .top = 4725,
                             .width = 2430,
                             .height = 540,
                             .tab_index = 5,
                             .text = "Make Ostrane.dat",
                             .font = bold_large}};
  platform::button Command2{*this,
                            {.name = "Command2",
                             .left = 2625,
                             .top = 4725,
                             .width = 2430,
                             .height = 540,
                             .tab_index = 6,
                             .text = "Cancel",
                             .font = bold_large}};
};

extern form5 Form5;

}  // namespace ostrane
