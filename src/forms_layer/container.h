#pragma once

#include <vector>

namespace forms_layer {

class control;
class form;

// The parent of controls: a form or a frame.
class container {
 public:
  container() = default;
  container(const container&) = delete;
  container& operator=(const container&) = delete;
  virtual ~container() = default;

  // In the order of construction, which is the z-order from back to front.
  const std::vector<control*>& controls() const { return controls_; }

  virtual form& containing_form() = 0;

  // This frame; null for a form.
  virtual control* as_control() { return nullptr; }

 private:
  friend class control;
  std::vector<control*> controls_;
};

}  // namespace forms_layer
