#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "panel/panel.h"

namespace gsm {

/// What a run-time failure does to a handler: it ends silently, or it ends the program.
enum class Trap { silent, none };

/// A handler of the user's, and what it must stand.
struct HandlerRow {
  std::string name;     // of the test
  std::string window;   // the design's name
  std::string control;  // what the user clicks, with the index of an array's member: "Image(5)"
  Trap trap;
  bool usesPort;              // its first deed is a write to the port
  std::vector<float> pauses;  // its waits in seconds, with a modem that says nothing
  std::function<void(Panel& panel)> prepare = {};  // what it needs to get as far as that
  bool endsByOk = false;                           // the program, when the modem says so

  friend void PrintTo(const HandlerRow& row, std::ostream* out) { *out << row.name; }
};

/// Every handler that a click reaches, but those that always end the program, start it anew, or
/// wait for a window of their own: "Exit", "REFRESH" and "Port Settings->".
const std::vector<HandlerRow>& handlers();

}  // namespace gsm
