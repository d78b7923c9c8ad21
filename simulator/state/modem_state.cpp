#include "simulator/state/modem_state.h"

#include <utility>

#include "simulator/line/line_speed.h"

namespace gsm::simulator {

namespace {

FaultChain chainOf(const ModemOptions& options) {
  FaultChain chain(options.seed);
  for (const FaultPointer& fault : options.faults) chain.add(fault);
  return chain;
}

}  // namespace

ModemState::ModemState(Timeline& timeline, ProfileStore& store, Surroundings around,
                       const ModemOptions& options)
    : surroundings(std::move(around)),
      settings(store),
      sim(options.sim),
      phoneBook(options.phoneBook, options.nameRoom,
                [this](std::string_view text) {
                  return !surroundings.keepPhoneBook || surroundings.keepPhoneBook(text);
                }),
      silent(options.silent),
      transmitter(
          timeline,
          [this](std::string_view chunk) {
            if (plugged && surroundings.toHost) surroundings.toHost(chunk);
          },
          options.cutter, chainOf(options)),
      notices(settings, transmitter, silent),
      network(timeline, settings, notices, options.sim == SimStatus::kReady),
      calls(timeline, settings, notices),
      messages(timeline, settings, notices, surroundings.clock, options.messages,
               [this](std::string_view text) {
                 return !surroundings.keepMessages || surroundings.keepMessages(text);
               }),
      prompt(settings, transmitter, silent),
      delays(timeline),
      cellDumps(timeline, network, notices) {
  if (options.speed) settings.assumeSpeed(*options.speed);
  speed_ = settings.profile.speed;
  applyFraming();
  if (speed_ != kAutobaud) transmitter.setSpeed(speed_);
}

void ModemState::applyFraming() {
  transmitter.setFraming(kFramings.at(static_cast<std::size_t>(settings.profile.framing)));
}

void ModemState::changeSpeed(int speed) {
  settings.profile.speed = speed;
  if (speed == speed_) return;
  speed_ = speed;
  if (speed != kAutobaud) transmitter.setSpeed(speed);
  if (surroundings.speedChanged) surroundings.speedChanged(speed);
}

}  // namespace gsm::simulator
