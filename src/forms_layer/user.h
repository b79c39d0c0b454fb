#pragma once

#include <cstdint>
#include <string>

#include "forms_layer/controls.h"

// What a user does to the forms. The screen and the tests call these; each becomes one event, and
// none does anything to a control that takes no input at the moment the event comes.
namespace forms_layer::user {

// A click with the mouse, or what the keyboard has for it.
void click(button& pressed);
void click(label& pressed);
void click(menu_item& picked);

// Escape: a click on the control of the form that is designed to cancel, if there is one.
void cancel(form& window);

// Element `index` must have been loaded.
void double_click(picture_array& array, std::int32_t index);

// A press on a row, the selected one too, or its selection by keyboard.
void select_row(list_box& list, std::int32_t row);
// The second press of a double click; the first one is a `select_row` of its own.
void double_click(list_box& list, std::int32_t row);

// What the field holds after the user edited it. What the user added beyond the limit is cut; a
// locked field stays.
void type(text_box& field, const std::string& text);

// The focus goes to a control, or with null to none; the one that had it gets LostFocus.
void focus(control* to);
// Nothing has the focus, as in a new process.
void forget_focus();

// A number that no row has does nothing.
void choose(drive_list& drives, std::int32_t row);
void open_folder(dir_list& folders, std::int32_t row);
void select_file(file_list& files, std::int32_t row);

// The drives, folders and files in the lists of a form are read anew. To open the folder that is
// open already does that too.
void reload(form& window);

// The window got a new client size in twips.
void resize(form& window, std::int32_t client_width, std::int32_t client_height);
// Windows without a control box and disabled ones stay.
void close(form& window);

// `Interval` milliseconds have passed.
void tick(timer& ticked);

}  // namespace forms_layer::user
