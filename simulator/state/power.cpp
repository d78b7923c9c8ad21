#include "simulator/state/power.h"

namespace gsm::simulator {

void switchOff(ModemState& state) {
  state.cellDumps.stop();
  state.calls.announceEnds(state.calls.hangUp());
  state.network.lose();
  state.off = true;
  state.silent = true;
}

void switchOn(ModemState& state) {
  state.network.setRegistration(kNotRegistered);
  state.network.operatorForm = 0;
  state.network.packetNotices = 0;
  state.network.packetsWanted = true;
  state.off = false;
  state.silent = false;
  state.settings.reloadProfile();
  state.applyFraming();
  state.changeSpeed(state.settings.profile.speed);
  const bool hasCard = state.sim.status() != SimStatus::kAbsent;
  if (hasCard) {
    state.sim.remove();
    state.sim.insert();
  }
  state.notices.indicate(Indication::kSimPresence, hasCard ? "1" : "0");
  state.notices.indicate(Indication::kReadyForBasics, "3");
  if (state.sim.status() == SimStatus::kReady) state.network.search();
}

}  // namespace gsm::simulator
