// A fuzz target: the input's bytes decide what user, modem and machine do to a whole panel.

#include <cstddef>
#include <cstdint>
#include <iostream>
#include <span>

#include "fuzz/player/panel_player.h"
#include "tests/support/temporary_folder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const gsm::TemporaryFolder folder;
  gsm::WrittenDecisions decisions({data, size});
  gsm::PanelPlayer player(folder.path(), decisions);
  while (!decisions.usedUp() && player.problem().empty()) player.step(decisions);
  if (player.problem().empty()) player.rest();
  if (!player.problem().empty()) {
    std::cerr << player.problem() << std::endl;
    __builtin_trap();
  }
  return 0;
}
