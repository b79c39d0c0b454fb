#pragma once

#include "forms/look.h"

namespace ostrane {

// The window in which long jobs and the icon report speak to the user. Lengths are twips.
struct form3 : platform::form {
  form3() : form({.name = "Form3", .client_width = 7425, .client_height = 4785}) {}

  platform::label message{*this,
                          {.name = "message",
                           .left = 120,
                           .top = 120,
                           .width = 7215,
                           .height = 3135,
                           .tab_index = 0,
                           .font = {.name = "Courier New", .points = 9.75, .bold = true}}};
  platform::progress_bar ProgressBar1{*this,
                                      {.name = "ProgressBar1",
                                       .left = 105,
                                       .top = 3675,
                                       .width = 7155,
                                       .height = 330,
                                       .tab_index = 1}};
  platform::progress_bar ProgressBar2{*this,
                                      {.name = "ProgressBar2",
                                       .left = 105,
                                       .top = 4410,
                                       .width = 7155,
                                       .height = 330,
                                       .tab_index = 2}};
  platform::label Label1{*this,
                         {.name = "Label1",
                          .left = 105,
                          .top = 4095,
                          .width = 7155,
                          .height = 330,
                          .tab_index = 3,
                          .text = "Total File Progress"}};
  platform::label Label2{*this,
                         {.name = "Label2",
                          .left = 105,
                          .top = 3360,
                          .width = 6735,
                          .height = 330,
                          .tab_index = 4,
                          .text = "Current File Progress"}};
};

extern form3 Form3;

}  // namespace ostrane
