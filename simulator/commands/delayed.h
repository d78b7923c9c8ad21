#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "simulator/commands/sim_trouble.h"
#include "simulator/state/modem_state.h"

// Commands that take their time.
namespace gsm::simulator {

// Does `work` after `delay`; what it returns is the command's answer.
inline Reply delayed(ModemState& state, std::chrono::milliseconds delay,
                     std::function<Reply()> work) {
  return {.result = Reply::Result::kNone,
          .later = [&state, delay, work = std::move(work)](FinishCommand finish) {
            state.delays.after(delay, [work, finish = std::move(finish)] { finish(work()); });
          }};
}

// How long a network takes for a question about its services.
inline constexpr std::chrono::milliseconds kServiceDelay(1500);

// Does `work` once the network has thought about it. Without a card or without service the modem
// knows at once that nobody will answer.
inline Reply askNetwork(ModemState& state, std::function<Reply()> work) {
  if (const auto trouble = simTrouble(state.sim.status())) return error(*trouble);
  if (!state.network.hasService()) return error(EquipmentError::kNoService);
  return delayed(state, kServiceDelay, std::move(work));
}

// Asks the host for a text and does `work` with it. A text that is given up is no failure.
inline Reply askForText(ModemState& state, std::function<Reply(const std::string& text)> work) {
  return {.result = Reply::Result::kNone,
          .later = [&state, work = std::move(work)](FinishCommand finish) {
            state.prompt.open(
                [work, finish = std::move(finish)](const std::optional<std::string>& text) {
                  Reply reply = text ? work(*text) : ok();
                  const BeginCommand later = std::exchange(reply.later, nullptr);
                  later ? later(finish) : finish(std::move(reply));
                });
          }};
}

}  // namespace gsm::simulator
