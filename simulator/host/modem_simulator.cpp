#include <csignal>
#include <exception>
#include <functional>
#include <iostream>
#include <memory>
#include <random>
#include <span>
#include <string>
#include <string_view>

#include "simulator/host/file_messages.h"
#include "simulator/host/file_phone_book.h"
#include "simulator/host/file_profile_store.h"
#include "simulator/host/pty_server.h"
#include "simulator/host/stop_signals.h"
#include "simulator/simulator_options.h"

namespace {

using gsm::simulator::SimulatorOptions;

constexpr int kBadUsage = 2;

std::string speedText(int speed) {
  return speed == gsm::simulator::kAutobaud ? "autobaud" : std::to_string(speed) + " baud";
}

std::unique_ptr<gsm::simulator::ProfileStore> storeFor(const SimulatorOptions& options) {
  if (!options.profile) return std::make_unique<gsm::simulator::MemoryProfileStore>();
  return std::make_unique<gsm::pty::FileProfileStore>(*options.profile);
}

// Loads the phone book into the options, and returns what keeps it. Throws std::runtime_error when
// its file can't be read.
std::function<bool(std::string_view)> phoneBookFor(SimulatorOptions& options) {
  if (!options.phoneBook) return {};
  const gsm::pty::FilePhoneBook book(*options.phoneBook);
  options.modem.phoneBook = book.load(options.modem.nameRoom);
  return [book](std::string_view text) { return book.save(text); };
}

// The same for the messages.
std::function<bool(std::string_view)> messagesFor(SimulatorOptions& options) {
  if (!options.messages) return {};
  const gsm::pty::FileMessages messages(*options.messages);
  options.modem.messages = messages.load();
  return [messages](std::string_view text) { return messages.save(text); };
}

int serve(SimulatorOptions options) {
  if (!options.seeded) options.modem.seed = std::random_device{}();
  const auto store = storeFor(options);
  const auto keepPhoneBook = phoneBookFor(options);
  const auto keepMessages = messagesFor(options);
  const gsm::pty::StopSignals stop;
  gsm::pty::PtyServer server(*store, {.modem = options.modem,
                                      .link = options.link,
                                      .timeFactor = options.timeFactor,
                                      .consoleInput = 0,
                                      .stopDescriptor = stop.descriptor(),
                                      .keepPhoneBook = keepPhoneBook,
                                      .keepMessages = keepMessages});
  std::cout << "modem on " << server.device();
  if (options.link) std::cout << " (linked as " << *options.link << ")";
  std::cout << ", " << speedText(server.speed()) << ", seed " << options.modem.seed << std::endl;
  server.run();
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  const std::span<const char* const> given(arguments, static_cast<std::size_t>(count));
  const auto parsed = gsm::simulator::parseOptions(given.subspan(given.empty() ? 0 : 1));
  if (const auto* complaint = std::get_if<std::string>(&parsed)) {
    std::cerr << "modem-simulator: " << *complaint << "\n";
    return kBadUsage;
  }
  const auto& options = std::get<SimulatorOptions>(parsed);
  if (options.help) {
    std::cout << gsm::simulator::optionsHelp();
    return 0;
  }
  try {
    return serve(options);
  } catch (const std::exception& failure) {
    std::cerr << "modem-simulator: " << failure.what() << "\n";
    return 1;
  }
}
