#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"

namespace gsm {

/// Bytes of a text that nobody may read: `size` of them from `first` on, which counts from 0.
struct Blot {
  std::size_t first;
  std::size_t size;

  bool operator==(const Blot&) const = default;
};

/// A command that carries a PIN, a PUK or a password.
struct SecretCommand {
  std::string_view name;  // up to where its fields begin, in capitals and without blanks
  int plainFields;        // so many fields stand in front of the secret; all behind them is secret
  char separator = ',';   // between two fields
  bool beginsLine = false;
};

/// All that there are.
std::span<const SecretCommand> secretCommands();

/// Reads one direction of a line byte by byte, so cuts between deliveries don't matter to it, and
/// knows the commands' secret fields by where they stand.
class SecretReader {
 public:
  /// Takes the next byte and returns whether it is of a secret.
  bool take(char byte);
  /// What comes next begins a line.
  void beginLine();

 private:
  std::string tail_;  // the end of the line so far, in capitals and without blanks
  const SecretCommand* command_ = nullptr;
  int plainFields_ = 0;  // of the command, still to pass
  bool fieldIsEmpty_ = true;
};

/// Finds what must be blotted out of a record of a line, in both directions. Secrets are known by
/// where they stand in a command or in its echo; and for a minute after one was sent, wherever its
/// characters turn up: in an echo that lost its beginning, in a reply, in a later command.
class SecretBlots {
 public:
  static constexpr Duration kMemory = std::chrono::minutes(1);

  /// `clock` must outlive it.
  explicit SecretBlots(const Clock& clock) : clock_(clock) {}

  /// A port has been opened: no line goes on.
  void beginLines();
  /// The blots of what was written to the port, in their order.
  std::vector<Blot> sent(std::string_view bytes);
  /// The blots of one delivery from the port. One that ends as a remembered secret begins loses
  /// that end too.
  std::vector<Blot> received(std::string_view bytes);

 private:
  struct Secret {
    std::string text;
    Instant until;
  };
  struct Direction {
    SecretReader reader;
    std::string before;  // the bytes in front of the next ones
  };
  using Mask = std::vector<bool>;

  void learn(std::string_view fields);
  void remember(std::string_view secret);
  void markRemembered(Direction& direction, std::string_view bytes, Mask& mask);

  const Clock& clock_;
  Direction sent_;
  Direction received_;
  std::string learning_;  // the secret fields of the command that is being sent
  std::vector<Secret> remembered_;
};

}  // namespace gsm
