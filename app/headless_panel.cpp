#include "app/headless_panel.h"

#include <utility>

namespace gsm {

HeadlessPanel::HeadlessPanel(std::filesystem::path folder, LocalTime now,
                             DatabaseEngine* otherDatabase)
    : machine(std::move(folder), now, otherDatabase),
      modem(machine.time, machine.line),
      panel(machine.platform()) {
  machine.line.setModem(&modem);
}

// Handlers that still wait refer to windows.
HeadlessPanel::~HeadlessPanel() { machine.time.abandon(); }

}  // namespace gsm
