#include "app/headless_panel.h"

#include <utility>

#include "app/windows.h"

namespace gsm {

HeadlessPanel::HeadlessPanel(std::filesystem::path folder, LocalTime now,
                             DatabaseEngine* otherDatabase, std::ostream* record)
    : machine(std::move(folder), now, otherDatabase, record),
      modem(machine.time, machine.line),
      windows_(std::make_unique<Windows>(machine.platform())),
      panel(windows_->panel) {
  machine.line.setModem(&modem);
}

void HeadlessPanel::start() { gsm::start(panel); }

// Handlers that still wait refer to windows.
HeadlessPanel::~HeadlessPanel() { machine.time.abandon(); }

}  // namespace gsm
