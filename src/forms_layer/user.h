#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "forms_layer/controls.h"
#include "forms_layer/screen.h"

// The actions of a user, which the screen and the tests call. Each is one event (see run_event).
// Those on a control do nothing if it does not take input when the event runs.
namespace forms_layer::user {

// A mouse click or its keyboard equivalent.
void click(captioned& pressed);
void shift_click(button& pressed);
void click(menu_item& picked);

// Escape: clicks the control of the form whose design says `cancel`, if there is one.
void cancel(form& window);

// Element `index` must be loaded.
void double_click(picture_array& array, std::int32_t index);

// A click on a row, even if it is selected, or its selection by keyboard.
void select_row(row_list& list, std::int32_t row);
// Selects these rows with Ctrl or Shift, ascending. None is shown.
void select_rows(row_list& list, const std::vector<std::int32_t>& rows);
// Drags the selected rows out of the window if `row` is one of them, else this row.
void drag_rows(row_list& list, std::int32_t row);
// The second click of a double click; call `select_row` for the first one.
void double_click(row_list& list, std::int32_t row);

// The right button or the menu key on a row or an element, which need not be selected: opens the
// menu at a point of the screen, and clicks the item that the user picks.
void open_menu(row_list& list, std::int32_t row, screen_point at = {});
void open_menu(picture_array& array, std::int32_t index, screen_point at = {});

// Opens the menu of an element, and picks an item at once. Ignored if it is disabled.
void pick(picture_array& array, std::int32_t index, const menu_item& item);

// A key of the window.
void press(form& window, const key& pressed);

// Drops a file or a folder of the system on a window.
void drop(form& window, const std::filesystem::path& dropped);

// `text` is the whole content after the edit. What the user added beyond `max_length` is cut; a
// locked field ignores it.
void type(text_box& field, const std::string& text);

// Moves the focus to a control, or to none if null. The control that had it gets LostFocus.
void focus(control* to);
// Takes the focus from the control that has it, without LostFocus. For begin_process.
void clear_focus();

// A row that does not exist is ignored.
void choose(drive_list& drives, std::int32_t row);
void open_folder(dir_list& folders, std::int32_t row);
// Enter on a folder: opens it, or confirms the open one.
void enter_folder(dir_list& folders, std::int32_t row);

// Reloads the lists of drives, folders and files of a form, as `open_folder` of the open folder
// does.
void reload(form& window);

// Resizes the client area, in twips.
void resize(form& window, std::int32_t client_width, std::int32_t client_height);
// Ignored for windows that are disabled or have no control box.
void close(form& window);

// The timer has expired.
void tick(timer& ticked);

}  // namespace forms_layer::user
