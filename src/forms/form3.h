#pragma once

#include "forms/shared_design.h"

namespace ostrane {

// The window for the progress of long jobs and for the icon report. Lengths are twips.
struct form3 : forms_layer::form {
  form3() : form({.name = "Form3", .client_width = 7425, .client_height = 4785}) {}

  forms_layer::label message{*this,
                             {.name = "message",
                              .at = {120, 120, 7215, 3135},
                              .tab_index = 0,
                              .font = {.name = "Courier New", .points = 9.75, .bold = true},
                              .cancel = true}};
  forms_layer::progress_bar ProgressBar1{*this,
                                         {.name = "ProgressBar1",
                                          .at = {105, 3675, 7155, 330},
                                          .tab_index = 1,
                                          .spoken_name = "Current File Progress"}};
  forms_layer::progress_bar ProgressBar2{*this,
                                         {.name = "ProgressBar2",
                                          .at = {105, 4410, 7155, 330},
                                          .tab_index = 2,
                                          .spoken_name = "Total File Progress"}};
  forms_layer::label Label1{*this,
                            {.name = "Label1",
                             .at = {105, 4095, 7155, 330},
                             .tab_index = 3,
                             .text = "Total File Progress"}};
  forms_layer::label Label2{*this,
                            {.name = "Label2",
                             .at = {105, 3360, 6735, 330},
                             .tab_index = 4,
                             .text = "Current File Progress"}};
};

extern form3 Form3;

}  // namespace ostrane
