#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "forms_layer/picture_box.h"

namespace forms_layer {

// Picture boxes under one name. Element 0 is the one of the design and the pattern of the others.
class picture_array {
 public:
  picture_array(container& parent, const design& as_designed) : parent_(parent) {
    add(as_designed);
  }

  // Element `index`, which must have been loaded.
  picture_box& operator()(std::int32_t index) {
    return *elements_.at(static_cast<std::size_t>(index));
  }

  // Makes the next element, hidden until shown, designed as element 0 is.
  void Load(std::int32_t index) {
    if (index != loaded()) return;
    design as_element_0 = elements_.front()->designed;
    as_element_0.visible = false;
    add(as_element_0);
  }

  // How many elements there are, element 0 included.
  std::int32_t loaded() const { return static_cast<std::int32_t>(elements_.size()); }

  // Raised with the index of the element.
  std::function<void(std::int32_t)> DblClick;

 private:
  void add(const design& as_designed) {
    elements_.push_back(std::make_unique<picture_box>(parent_, as_designed, loaded()));
    elements_.back()->array = this;
  }

  container& parent_;
  std::vector<std::unique_ptr<picture_box>> elements_;
};

}  // namespace forms_layer
