#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "forms_layer/menu.h"
#include "forms_layer/picture_box.h"

namespace forms_layer {

// An array of picture boxes with one name. Element 0 exists from the start.
class picture_array {
 public:
  picture_array(container& parent, const design& as_designed) : parent_(parent) {
    add(as_designed);
  }

  // Throws std::out_of_range if the element is not loaded.
  picture_box& operator()(std::int32_t index) {
    return *elements_.at(static_cast<std::size_t>(index));
  }

  // Adds element `index`: hidden, otherwise as element 0 was designed. Does nothing unless
  // `index` is that of the next element.
  void Load(std::int32_t index) {
    if (index != loaded()) return;
    design as_element_0 = elements_.front()->designed;
    as_element_0.visible = false;
    add(as_element_0);
  }

  // Number of elements, element 0 included.
  std::int32_t loaded() const { return static_cast<std::int32_t>(elements_.size()); }

  // Raised with the index of the element.
  std::function<void(std::int32_t)> DblClick;
  context_menu* ContextMenu = nullptr;  // of its elements

 private:
  void add(const design& as_designed) {
    elements_.push_back(std::make_unique<picture_box>(parent_, as_designed, loaded()));
    elements_.back()->array = this;
  }

  container& parent_;
  std::vector<std::unique_ptr<picture_box>> elements_;
};

}  // namespace forms_layer
