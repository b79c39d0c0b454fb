#pragma once

#include <utility>

namespace forms_layer {

// Identifies to the screen what has changed. Properties that it reads together share an id.
enum class property_id {
  caption,
  text,
  rect,
  visible,
  enabled,
  back_color,
  tool_tip,
  items,
  selection,
  range,
  interval,
  pixels,
  menu,
  focus,
};

// A property of a control. An assignment calls the owner's `on_assigned`, which acts on it (a
// picture box resizes its bitmap) and notifies the screen. It is read as `Text()`.
template <typename Value, property_id What, typename Owner>
class property {
 public:
  property(Owner& owner, Value initial) : owner_(owner), value_(std::move(initial)) {}
  property(const property&) = delete;
  ~property() = default;

  property& operator=(Value value) {
    const bool differs = !(value_ == value);
    value_ = std::move(value);
    owner_.on_assigned(What, differs);
    return *this;
  }
  property& operator=(const property&) = delete;

  const Value& operator()() const { return value_; }

  friend bool operator==(const property& a, const Value& b) { return a.value_ == b; }

 private:
  Owner& owner_;
  Value value_;
};

// A property whose owner validates new values. An assignment calls the owner's `Set`, which stores
// the value in `value_`, or throws if it is invalid.
template <typename Value, typename Owner, void (Owner::*Set)(const Value&)>
class checked_property {
 public:
  checked_property(Owner& owner, Value initial) : owner_(owner), value_(std::move(initial)) {}
  checked_property(const checked_property&) = delete;
  checked_property& operator=(const checked_property&) = delete;
  ~checked_property() = default;

  checked_property& operator=(const Value& value) {
    (owner_.*Set)(value);
    return *this;
  }

  const Value& operator()() const { return value_; }
  friend bool operator==(const checked_property& a, const Value& b) { return a.value_ == b; }

 private:
  friend Owner;
  Owner& owner_;
  Value value_;
};

}  // namespace forms_layer
