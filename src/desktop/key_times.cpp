#include "desktop/key_times.h"

#include <algorithm>

namespace desktop {

// A press first goes to the window. If Qt does not keep it, it goes on to a widget.
void key_times::note(const QObject& receiver, const QKeyEvent& press) {
  if (press.timestamp() == 0) return;
  if (!receiver.isWindowType()) return kept_.clear();
  kept_.push_back({press.key(), press.timestamp()});
}

void key_times::restore(QKeyEvent& press) {
  if (press.timestamp() != 0) return;
  const auto at = std::find_if(kept_.begin(), kept_.end(), [&press](const kept_press& kept) {
    return kept.key == press.key();
  });
  if (at == kept_.end()) return;
  press.setTimestamp(at->time);
  kept_.erase(kept_.begin(), at + 1);
}

}  // namespace desktop
