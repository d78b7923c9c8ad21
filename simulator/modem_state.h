#pragma once

#include "simulator/barring.h"
#include "simulator/calls.h"
#include "simulator/cell_dumps.h"
#include "simulator/forwarding.h"
#include "simulator/locks.h"
#include "simulator/messages.h"
#include "simulator/modem_options.h"
#include "simulator/module_features.h"
#include "simulator/network.h"
#include "simulator/notices.h"
#include "simulator/phone_book.h"
#include "simulator/settings.h"
#include "simulator/sim_card.h"
#include "simulator/surroundings.h"
#include "simulator/text_prompt.h"
#include "simulator/transmitter.h"

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
