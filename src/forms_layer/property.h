#pragma once

#include <utility>

namespace forms_layer {

// What about a control has changed; the screen mirrors the control by it.
enum class property_id {
  caption,
  text,
  place,
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

// A property of a control. Writing it takes effect at once and tells its owner, which answers (a
// picture box takes its new size) and passes it on to the screen. It is read by a pair of
// brackets: `Text()`.
template <typename Value, property_id What, typename Owner>
class property {
 public:
  property(Owner& owner, Value start) : owner_(owner), value_(std::move(start)) {}
  property(const property&) = delete;
  ~property() = default;

  property& operator=(Value value) {
    const bool differs = !(value_ == value);
    value_ = std::move(value);
    owner_.written(What, differs);
    return *this;
  }
  property& operator=(const property&) = delete;

  const Value& operator()() const { return value_; }

  friend bool operator==(const property& a, const Value& b) { return a.value_ == b; }

 private:
  Owner& owner_;
  Value value_;
};

// A property whose new value must first be found good: its owner takes the value in `set` and may
// throw, and then the old value stands.
template <typename Value, typename Owner, void (Owner::*Set)(const Value&)>
class guarded_property {
 public:
  guarded_property(Owner& owner, Value start) : owner_(owner), value_(std::move(start)) {}
  guarded_property(const guarded_property&) = delete;
  guarded_property& operator=(const guarded_property&) = delete;
  ~guarded_property() = default;

  guarded_property& operator=(const Value& value) {
    (owner_.*Set)(value);
    return *this;
  }

  const Value& operator()() const { return value_; }
  friend bool operator==(const guarded_property& a, const Value& b) { return a.value_ == b; }

 private:
  friend Owner;
  Owner& owner_;
  Value value_;
};

}  // namespace forms_layer
