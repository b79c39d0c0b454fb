#pragma once

#include "forms/shared_design.h"

namespace ostrane {

// The dialog to compare the open archive with a shiplist. Lengths are twips.
struct form6 : forms_layer::form {
  form6()
      : form({.name = "Form6",
              .caption = "Ostrane.dat-tool - Compare with Shiplist.txt",
              .client_width = 4830,
              .client_height = 3780,
              .opens = forms_layer::start_position::screen_centre}) {}

  forms_layer::drive_list Drive1{
      *this,
      {.name = "Drive1", .at = {105, 315, 2430, 315}, .tab_index = 0, .back_color = pale_cyan}};
  forms_layer::dir_list Dir1{
      *this,
      {.name = "Dir1", .at = {105, 735, 2430, 2340}, .tab_index = 1, .back_color = pale_green}};
  forms_layer::file_list File1{
      *this,
      {.name = "File1", .at = {2625, 675, 2115, 2430}, .tab_index = 2, .back_color = pale_green}};
  forms_layer::button Command1{*this,
                               {.name = "Command1",
                                .at = {105, 3255, 2430, 435},
                                .tab_index = 3,
                                .text = "Read shiplist and compare"}};
  forms_layer::button Command2{*this,
                               {.name = "Command2",
                                .at = {2625, 3255, 2115, 435},
                                .tab_index = 4,
                                .text = "Cancel",
                                .cancel = true}};
  forms_layer::text_box Text1{*this,
                              {.name = "Text1",
                               .at = {2625, 315, 2115, 330},
                               .tab_index = 5,
                               .back_color = forms_layer::system_menu,
                               .enabled = false,
                               .spoken_name = "Shiplist"}};
  forms_layer::label Label1{*this,
                            {.name = "Label1",
                             .at = {105, 0, 4635, 330},
                             .tab_index = 6,
                             .text = "Compare current Ostrane.dat content with shiplist."}};
};

extern form6 Form6;

}  // namespace ostrane
