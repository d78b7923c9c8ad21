#pragma once

#include "simulator/state/modem_state.h"

namespace gsm::simulator {

// The power goes: calls, network and repeated dumps with it. The host hears of the network's loss,
// and then nothing more until `switchOn`. What was to be sent before still is.
void switchOff(ModemState& state);

// The power comes back: the stored profile is in force, a card with a PIN wants it again, and what
// begins now is announced as the +WIND mask asks for.
void switchOn(ModemState& state);

}  // namespace gsm::simulator
