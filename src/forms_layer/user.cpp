#include "forms_layer/user.h"

#include <algorithm>

#include "forms_layer/events.h"
#include "forms_layer/screen.h"

namespace forms_layer::user {

namespace {

control* focused = nullptr;

void raise(const event& e) {
  if (e) e();
}

void move_focus(control* to) {
  if (to == focused) return;
  control* from = focused;
  focused = to;
  if (from != nullptr) raise(from->LostFocus);
}

// The text `after` an edit of `before`, without added characters beyond the limit. A text that was
// too long before is not cut.
std::string limited(const std::string& before, const std::string& after, std::size_t limit) {
  const std::size_t shorter = std::min(before.size(), after.size());
  std::size_t head = 0;
  while (head < shorter && before[head] == after[head]) ++head;
  std::size_t tail = 0;
  while (head + tail < shorter &&
         before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) {
    ++tail;
  }
  const std::size_t room = limit - std::min(limit, head + tail);
  return after.substr(0, std::min(head + room, after.size() - tail)) +
         after.substr(after.size() - tail);
}

bool opens_on(const context_menu* menu, std::int32_t index) {
  return menu != nullptr && menu->OpensOn && menu->OpensOn(index);
}

// The menu and its item are one event, so that the target of the menu does not change meanwhile.
void run_menu(context_menu* opened, std::int32_t index, screen_point at) {
  if (!opens_on(opened, index)) return;
  opened->Popup(index);
  const menu_item* picked = the_screen().pick_item(*opened, at);
  if (picked != nullptr && picked->Enabled()) raise(picked->Click);
}

void run_menu_item(context_menu* opened, std::int32_t index, const menu_item& item) {
  if (!opens_on(opened, index)) return;
  opened->Popup(index);
  const bool offers =
      std::find(opened->items.begin(), opened->items.end(), &item) != opened->items.end();
  if (offers && item.Enabled()) raise(item.Click);
}

bool takes_row(row_list& list, std::int32_t row) {
  return list.takes_input() && row >= 0 && row < list.ListCount();
}

void reload_lists(form& window) {
  for (control* c : window.controls()) c->reload();
}

}  // namespace

void clear_focus() { focused = nullptr; }

void focus(control* to) {
  run_event([to] { move_focus(to); });
}

void click(captioned& pressed) {
  run_event([&pressed] {
    if (!pressed.takes_input()) return;
    if (pressed.kind == control_kind::button) move_focus(&pressed);
    raise(pressed.Click);
  });
}

void shift_click(button& pressed) {
  if (!pressed.ShiftClick) return click(pressed);
  run_event([&pressed] {
    if (!pressed.takes_input()) return;
    move_focus(&pressed);
    raise(pressed.ShiftClick);
  });
}

void click(menu_item& picked) {
  run_event([&picked] {
    if (picked.Enabled() && picked.owner.Enabled() && picked.owner.Visible()) raise(picked.Click);
  });
}

void cancel(form& window) {
  for (control* c : window.controls()) {
    if (c->designed.cancel) return click(static_cast<captioned&>(*c));
  }
}

void double_click(picture_array& array, std::int32_t index) {
  run_event([&array, index] {
    if (array(index).takes_input() && array.DblClick) array.DblClick(index);
  });
}

void select_row(row_list& list, std::int32_t row) {
  run_event([&list, row] {
    if (!takes_row(list, row)) return;
    move_focus(&list);
    list.SelectedRows = {};
    list.ListIndex = row;
    raise(list.Click);
  });
}

void select_rows(row_list& list, const std::vector<std::int32_t>& rows) {
  run_event([&list, rows] {
    if (!list.designed.multi_select || rows.empty() || !takes_row(list, rows.front())) return;
    if (takes_row(list, rows.back())) list.SelectedRows = rows;
  });
}

void drag_rows(row_list& list, std::int32_t row) {
  run_event([&list, row] {
    if (!takes_row(list, row) || !list.Drag) return;
    const std::vector<std::int32_t>& all = list.SelectedRows();
    const bool is_selected = std::find(all.begin(), all.end(), row) != all.end();
    list.Drag(is_selected ? all : std::vector<std::int32_t>{row});
  });
}

void double_click(row_list& list, std::int32_t row) {
  run_event([&list, row] {
    if (takes_row(list, row) && row == list.ListIndex()) raise(list.DblClick);
  });
}

void open_menu(row_list& list, std::int32_t row, screen_point at) {
  run_event([&list, row, at] {
    if (takes_row(list, row)) run_menu(list.ContextMenu, row, at);
  });
}

void open_menu(picture_array& array, std::int32_t index, screen_point at) {
  run_event([&array, index, at] {
    if (array(index).takes_input()) run_menu(array.ContextMenu, index, at);
  });
}

void pick(picture_array& array, std::int32_t index, const menu_item& item) {
  run_event([&array, index, &item] {
    if (array(index).takes_input()) run_menu_item(array.ContextMenu, index, item);
  });
}

void press(form& window, const key& pressed) {
  run_event([&window, &pressed] {
    if (window.Visible() && window.Enabled()) raise(pressed.Pressed);
  });
}

void drop(form& window, const std::filesystem::path& dropped) {
  run_event([&window, dropped] {
    if (window.Visible() && window.Enabled() && window.Drop) window.Drop(dropped);
  });
}

void type(text_box& field, const std::string& text) {
  run_event([&field, text] {
    if (!field.takes_input() || field.designed.locked) return;
    move_focus(&field);
    const auto limit = static_cast<std::size_t>(field.designed.max_length);
    field.Text = limit > 0 ? limited(field.Text(), text, limit) : text;
  });
}

void choose(drive_list& drives, std::int32_t row) {
  run_event([&drives, row] {
    if (!takes_row(drives, row)) return;
    move_focus(&drives);
    drives.Drive = drives.List(row);
  });
}

void open_folder(dir_list& folders, std::int32_t row) {
  run_event([&folders, row] {
    if (!takes_row(folders, row)) return;
    move_focus(&folders);
    if (row == folders.open_row()) {
      reload_lists(folders.owner_form());
    } else {
      folders.Path = folders.path_of(row);
    }
  });
}

void enter_folder(dir_list& folders, std::int32_t row) {
  run_event([&folders, row] {
    const bool is_open = takes_row(folders, row) && row == folders.open_row();
    if (!is_open || !folders.Confirm || !folders.Confirm()) open_folder(folders, row);
  });
}

void reload(form& window) {
  run_event([&window] {
    if (window.Visible() && window.Enabled()) reload_lists(window);
  });
}

void resize(form& window, std::int32_t client_width, std::int32_t client_height) {
  run_event([&window, client_width, client_height] {
    const bool same =
        window.client_width() == client_width && window.client_height() == client_height;
    window.set_client_size(client_width, client_height);
    if (!same) raise(window.Resize);
  });
}

void close(form& window) {
  run_event([&window] {
    if (window.designed.control_box && window.Enabled()) raise(window.Unload);
  });
}

void tick(timer& ticked) {
  run_event(
      [&ticked] {
        if (ticked.Enabled()) raise(ticked.Timer);
      },
      &ticked);
}

}  // namespace forms_layer::user
