#pragma once

#include <string>
#include <vector>

#include "app/headless_panel.h"
#include "panel/form1.h"
#include "tests/support/property_watch.h"

namespace gsm {

/// Notes each routing that came to its end with text left in the transcript: it moves the caret
/// there. The watch puts the caret back, so that each is noted.
class RoutingWatch {
 public:
  struct Routing {
    double at;               // seconds from the start
    int depth;               // of the handler stack: the oldest of several calls has the lowest
    std::string transcript;  // as it was left
  };

  explicit RoutingWatch(HeadlessPanel& world)
      : world_(world), watch_(world.panel.form1.Text1, [this](PropertyId id) { noticed(id); }) {}

  std::vector<int> depths() const {
    std::vector<int> all;
    for (const Routing& routing : routings) all.push_back(routing.depth);
    return all;
  }

  std::vector<Routing> routings;

 private:
  void noticed(PropertyId id) {
    Transcript& text = world_.panel.form1.Text1;
    if (id != PropertyId::SelStart || text.SelStart.peek() == 0) return;
    routings.push_back(
        {toSeconds(world_.machine.time.now()), world_.handlers().depth(), text.Text.peek()});
    text.SelStart.store(0);
  }

  HeadlessPanel& world_;
  PropertyWatch watch_;
};

}  // namespace gsm
