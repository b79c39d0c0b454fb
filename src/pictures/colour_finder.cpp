#include "pictures/colour_finder.h"

namespace ostrane {

namespace {

constexpr std::size_t max_remembered = 65536;

}  // namespace

colour_finder::colour_finder(const rgb_palette& palette)
    : palette_(palette), remembered_(max_remembered) {
  const auto add = [this](const rgb_palette& colours) {
    for (std::size_t i = 0; i < colours.size(); ++i) {
      exact_.emplace(colours[i], static_cast<std::uint8_t>(i));
    }
  };
  add(palette_);
  add(distinct_colours(palette_));
}

found_colour colour_finder::nearest(std::uint32_t colour) const {
  std::size_t best = 0;
  for (std::size_t i = 1; i < palette_.size(); ++i) {
    if (distance(palette_[i], colour) < distance(palette_[best], colour)) best = i;
  }
  return {.index = static_cast<std::uint8_t>(best), .is_exact = false};
}

found_colour colour_finder::search(std::uint32_t colour) {
  remembered_colour& known = remembered_[colour * spread >> 16U];
  known.colour = colour;
  const auto exact = exact_.find(colour);
  known.found = exact == exact_.end() ? nearest(colour) : found_colour{exact->second, true};
  return known.found;
}

}  // namespace ostrane
