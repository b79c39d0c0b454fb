#pragma once

#include "forms/look.h"

namespace ostrane {

// Extracts all entries into a folder. Lengths are twips.
struct form4 : platform::form {
  form4()
      : form({.name = "Form4",
              .caption = "Extract Files from Ostrane.dat",
              .client_width = 7440,
              .client_height = 4845}) {}

  platform::drive_list Drive1{*this,
                              {.name = "Drive1",
                               .left = 210,
                               .top = 105,
                               .width = 2115,
                               .height = 315,
                               .tab_index = 0,
                               .back_color = pale_cyan}};
  platform::dir_list Dir1{*this,
                          {.name = "Dir1",
                           .left = 210,
                           .top = 525,
                           .width = 2115,
                           .height = 2565,
                           .tab_index = 1,
                           .back_color = pale_green}};
  platform::file_list File1{*this,
                            {.name = "File1",
                             .left = 2415,
                             .top = 105,
                             .width = 1800,
                             .height = 3015,
                             .tab_index = 2,
                             .back_color = platform::system_light}};
  platform::text_box Text1{*this,
                           {.name = "Text1",
                            .left = 210,
                            .top = 3675,
                            .width = 7050,
                            .height = 330,
                            .tab_index = 3,
                            .back_color = platform::system_light}};
  platform::button Command1{*this,
                            {.name = "Command1",
                             .left = 210,
                             .top = 4200,
                             .width = 2535,
                             .height = 540,
                             .tab_index = 4,
                             .text = "Make New Folder",
                             .font = bold_large}};
  platform::text_box Text2{*this,
                           {.name = "Text2",
                            .left = 3465,
                            .top = 4410,
                            .width = 3795,
                            .height = 330,
                            .tab_index = 5,
                            .back_color = platform::system_window}};
  platform::label Label1{*this,
                         {.name = "Label1",
                          .left = 210,
                          .top = 3360,
                          .width = 2220,
                          .height = 225,
                          .tab_index = 6,
                          .text = "Current Folder:",
                          .font = bold_large}};
  platform::label Label2{*this,
                         {.name = "Label2",
                          .left = 3465,
                          .top = 4095,
                          .width = 3795,
                          .height = 330,
                          .tab_index = 7,
                          .text = "New Folder Name:",
                          .font = large}};
  platform::button Command2{*this,
                            {.name = "Command2",
                             .left = 4305,
                             .top = 105,
                             .width = 3060,
                             .height = 855,
                             .tab_index = 8,
                             .text = "Extract All Ostrane.dat Files to \"Current Folder\"",
                             .font = bold_large}};
  platform::picture_box Picture1{*this,
                                 {.name = "Picture1",
                                  .left = 4305,
                                  .top = 1050,
                                  .width = 3060,
                                  .height = 1800,
                                  .tab_index = 9},
                                 0};
  platform::button Command3{*this,
                            {.name = "Command3",
                             .left = 4305,
                             .top = 2940,
                             .width = 2955,
                             .height = 645,
                             .tab_index = 10,
                             .text = "Cancel",
                             .font = bold_large}};
};

extern form4 Form4;

}  // namespace ostrane
