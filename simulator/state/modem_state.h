#pragma once

#include "simulator/card/locks.h"
#include "simulator/card/phone_book.h"
#include "simulator/card/sim_card.h"
#include "simulator/dialogue/notices.h"
#include "simulator/dialogue/text_prompt.h"
#include "simulator/line/transmitter.h"
#include "simulator/messages/messages.h"
#include "simulator/network/barring.h"
#include "simulator/network/calls.h"
#include "simulator/network/cell_dumps.h"
#include "simulator/network/forwarding.h"
#include "simulator/network/network.h"
#include "simulator/profile/settings.h"
#include "simulator/state/modem_options.h"
#include "simulator/state/module_features.h"
#include "simulator/state/surroundings.h"

namespace gsm::simulator {

// Everything that the commands and the console act upon. The members stand in the order in which
// they build on one another.
struct ModemState {
  ModemState(Timeline& timeline, ProfileStore& store, Surroundings around,
             const ModemOptions& options);
  ModemState(const ModemState&) = delete;
  ModemState& operator=(const ModemState&) = delete;

  // Makes `speed`, or kAutobaud, the speed of the line, in step with the profile in force.
  void changeSpeed(int speed);

  // Gives the line the framing of the profile in force, in both directions.
  void applyFraming();

  // The speed at which the modem listens, which lags behind the profile's while a reply goes out.
  int speed() const { return speed_; }

  // Notes the host's speed, at which a modem with autobaud answers.
  void heardAt(int speed) { transmitter.setSpeed(speed); }

  Surroundings surroundings;
  Settings settings;
  SimCard sim;
  PhoneBook phoneBook;
  bool silent;
  bool off = false;  // for want of power, and so silent, too
  bool plugged = true;
  Transmitter transmitter;
  Notices notices;
  Network network;
  Calls calls;
  Messages messages;
  Forwarding forwarding;
  Barring barring;
  Locks locks;
  TextPrompt prompt;
  GuardedTimeline delays;  // of commands that take their time
  CellDumps cellDumps;
  ModuleFeatures module;

 private:
  int speed_;
};

}  // namespace gsm::simulator
