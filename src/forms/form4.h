#pragma once

#include "forms/shared_design.h"

namespace ostrane {

// The dialog to extract all entries into a folder. Lengths are twips.
struct form4 : forms_layer::form {
  form4()
      : form({.name = "Form4",
              .caption = "Extract Files from Ostrane.dat",
              .client_width = 7440,
              .client_height = 4845}) {}

  forms_layer::drive_list Drive1{
      *this,
      {.name = "Drive1", .at = {210, 105, 2115, 315}, .tab_index = 0, .back_color = pale_cyan}};
  forms_layer::dir_list Dir1{
      *this,
      {.name = "Dir1", .at = {210, 525, 2115, 2565}, .tab_index = 1, .back_color = pale_green}};
  forms_layer::file_list File1{*this,
                               {.name = "File1",
                                .at = {2415, 105, 1800, 3015},
                                .tab_index = 2,
                                .back_color = forms_layer::system_light}};
  forms_layer::text_box Text1{*this,
                              {.name = "Text1",
                               .at = {210, 3675, 7050, 330},
                               .tab_index = 3,
                               .back_color = forms_layer::system_light,
                               .spoken_name = "Current Folder:"}};
  forms_layer::button Command1{*this,
                               {.name = "Command1",
                                .at = {210, 4200, 2535, 540},
                                .tab_index = 4,
                                .text = "Make New Folder",
                                .font = bold_large}};
  forms_layer::text_box Text2{*this,
                              {.name = "Text2",
                               .at = {3465, 4410, 3795, 330},
                               .tab_index = 5,
                               .back_color = forms_layer::system_window,
                               .spoken_name = "New Folder Name:"}};
  forms_layer::label Label1{*this,
                            {.name = "Label1",
                             .at = {210, 3360, 2220, 225},
                             .tab_index = 6,
                             .text = "Current Folder:",
                             .font = bold_large}};
  forms_layer::label Label2{*this,
                            {.name = "Label2",
                             .at = {3465, 4095, 3795, 330},
                             .tab_index = 7,
                             .text = "New Folder Name:",
                             .font = large}};
  forms_layer::button Command2{*this,
                               {.name = "Command2",
                                .at = {4305, 105, 3060, 855},
                                .tab_index = 8,
                                .text = "Extract All Ostrane.dat Files to \"Current Folder\"",
                                .font = bold_large}};
  forms_layer::picture_box Picture1{*this,
                                    {.name = "Picture1",
                                     .at = {4305, 1050, 3060, 1800},
                                     .tab_index = 9,
                                     .picture = "picture1.jpg"},
                                    0};
  forms_layer::button Command3{*this,
                               {.name = "Command3",
                                .at = {4305, 2940, 2955, 645},
                                .tab_index = 10,
                                .text = "Cancel",
                                .font = bold_large,
                                .cancel = true}};
};

extern form4 Form4;

}  // namespace ostrane
