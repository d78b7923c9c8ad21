#include "simulator/modem.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "simulator/commands/command_table.h"
#include "simulator/console/console_table.h"
#include "simulator/line/line_speed.h"

namespace gsm::simulator {

namespace {

// The receive buffer; what comes in beyond it while a command is being done is lost.
constexpr std::size_t kReceiveBuffer = 4096;

// True when one of the whole command lines in `bytes` hangs up.
bool asksToHangUp(std::string_view bytes) {
  LineInput input;
  for (const char byte : bytes) {
    if (input.take(byte) != LineInput::Step::kLineEnded) continue;
    const LineInput::Line line = input.takeLine();
    if (!line.isCommand || line.overlong) continue;
    const std::vector<Command> commands = parseCommands(line.body);
    const auto hangsUp = [](const Command& command) {
      return command.name == "H" && command.arguments.number(0).value_or(0) == 0;
    };
    if (std::any_of(commands.begin(), commands.end(), hangsUp)) return true;
  }
  return false;
}

}  // namespace

Modem::Modem(Timeline& timeline, ProfileStore& store, Surroundings surroundings,
             const ModemOptions& options)
    : state_(timeline, store, std::move(surroundings), options),
      timeline_(timeline),
      latency_(options.latency) {
  state_.prompt.whenOpen([this] { work(); });
}

bool Modem::hears(int speed) const {
  if (state_.silent || !state_.plugged || !isLineSpeed(speed)) return false;
  return state_.speed() == kAutobaud || state_.speed() == speed;
}

void Modem::hostWrites(std::string_view bytes, int speed) {
  if (!hears(speed)) return;
  state_.heardAt(speed);
  while (!bytes.empty()) {
    const std::size_t room = std::min(kReceiveBuffer - waiting_.size(), bytes.size());
    if (room == 0) return;
    for (const char byte : bytes.substr(0, room)) {
      waiting_ += static_cast<char>(byte & state_.transmitter.mask());
    }
    bytes.remove_prefix(room);
    work();
    heedHangUp();
  }
}

// Takes what has been heard, up to the end of the next command line: one line is done at a time. A
// command may want a text, and what is heard then is no command.
void Modem::work() {
  while ((!busy_ || state_.prompt.isOpen()) && !waiting_.empty()) {
    if (state_.prompt.isOpen()) {
      waiting_.erase(0, state_.prompt.take(waiting_));
      continue;
    }
    std::size_t taken = 0;
    std::string echo;
    auto step = LineInput::Step::kIgnored;
    while (taken < waiting_.size() && step != LineInput::Step::kLineEnded) {
      const char byte = waiting_[taken++];
      step = input_.take(byte);
      if (step != LineInput::Step::kIgnored) echo += byte;
    }
    waiting_.erase(0, taken);
    if (state_.settings.profile.echo != 0) state_.transmitter.send(Source::kEcho, echo);
    if (step != LineInput::Step::kLineEnded) continue;
    const LineInput::Line line = input_.takeLine();
    if (!line.isCommand) continue;
    busy_ = true;
    const auto arrival =
        lineTime(taken, state_.transmitter.speed(), state_.transmitter.framing().bits);
    timeline_.after(arrival + latency_, [this, line] { answer(line); });
  }
}

void Modem::answer(const LineInput::Line& line) {
  Reply reply = line.overlong ? error() : executeLine(state_, line.body);
  const auto later = std::exchange(reply.later, nullptr);
  if (!later) return finish(std::move(reply));
  const std::string bytes = state_.silent ? "" : framed(reply, state_.settings.profile);
  if (!bytes.empty()) state_.transmitter.send(Source::kReply, bytes);
  later([this, earlier = std::move(reply.afterwards)](Reply rest) {
    rest.afterwards.insert(rest.afterwards.begin(), earlier.begin(), earlier.end());
    finish(std::move(rest));
  });
  heedHangUp();
}

void Modem::finish(Reply reply) {
  const std::string bytes = state_.silent ? "" : framed(reply, state_.settings.profile);
  state_.transmitter.send(Source::kReply, bytes, [this, actions = std::move(reply.afterwards)] {
    for (const auto& action : actions) action();
    busy_ = false;
    if (state_.off) forgetHeard();
    work();
  });
}

// Of a line that hasn't ended, too.
void Modem::forgetHeard() {
  waiting_.clear();
  input_ = {};
}

void Modem::heedHangUp() {
  if (state_.calls.isDialing() && asksToHangUp(waiting_)) {
    state_.calls.endDialing(Reply::Result::kNoCarrier);
  }
}

std::string Modem::console(std::string_view line) { return runConsoleLine(state_, line); }

}  // namespace gsm::simulator
