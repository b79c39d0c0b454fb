#pragma once

#include "forms/shared_design.h"

namespace ostrane {

// The dialog to build an archive from the files of a folder. Lengths are twips.
struct form5 : forms_layer::form {
  form5()
      : form({.name = "Form5",
              .caption = "Make New Ostrane.dat",
              .client_width = 5145,
              .client_height = 5340}) {}

  forms_layer::drive_list Drive1{
      *this,
      {.name = "Drive1", .at = {105, 105, 2430, 315}, .tab_index = 0, .back_color = pale_cyan}};
  forms_layer::dir_list Dir1{
      *this,
      {.name = "Dir1", .at = {105, 630, 2430, 3240}, .tab_index = 1, .back_color = pale_green}};
  forms_layer::file_list File1{*this,
                               {.name = "File1",
                                .at = {2625, 105, 2430, 3795},
                                .tab_index = 2,
                                .back_color = forms_layer::system_light}};
  forms_layer::text_box Text1{*this,
                              {.name = "Text1",
                               .at = {105, 4305, 4950, 330},
                               .tab_index = 3,
                               .back_color = forms_layer::system_light,
                               .spoken_name = "Current Folder"}};
  forms_layer::label Label1{*this,
                            {.name = "Label1",
                             .at = {105, 3990, 4740, 225},
                             .tab_index = 4,
                             .text = "Current Folder",
                             .font = bold_large}};
  forms_layer::button Command1{*this,
                               {.name = "Command1",
                                .at = {105, 4725, 2430, 540},
                                .tab_index = 5,
                                .text = "Make Ostrane.dat",
                                .font = bold_large}};
  forms_layer::button Command2{*this,
                               {.name = "Command2",
                                .at = {2625, 4725, 2430, 540},
                                .tab_index = 6,
                                .text = "Cancel",
                                .font = bold_large,
                                .cancel = true}};
};

extern form5 Form5;

}  // namespace ostrane
