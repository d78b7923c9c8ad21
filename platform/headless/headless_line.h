#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/headless/headless_ports.h"
#include "platform/headless/virtual_time.h"
#include "platform/serial_device.h"

namespace gsm {

/// What hears the line's bytes.
class LineModem {
 public:
  virtual ~LineModem() = default;

  /// The host has written `bytes` at `baud`.
  virtual void hear(std::string_view bytes, int baud) = 0;
};

/// A serial line on virtual time, with a modem plugged in at one of the ports.
class HeadlessLine : public SerialDevice {
 public:
  struct Write {
    Instant at;
    std::string text;
  };

  HeadlessLine(VirtualTime& time, const HeadlessPorts& ports) : time_(time), ports_(ports) {}

  // The program's side.
  void listen(Listener* listener) override { listener_ = listener; }
  void open(int number, const LineSettings& settings, Handshaking handshaking) override;
  void close() override;
  void configure(const LineSettings& settings, Handshaking) override { settings_ = settings; }
  void write(std::string_view bytes) override;

  bool isOpen() const { return openPort_.has_value(); }
  /// The speed of the host's side, in bits per second.
  int baud() const { return settings_.baud; }

  /// Plugs `modem` in at port `number`; nothing unplugs it.
  void plug(std::optional<int> number) { modemPort_ = number; }
  void setModem(LineModem* modem) { modem_ = modem; }

  /// One chunk from the modem reaches the host now. What comes to a port that the program doesn't
  /// hold open is lost.
  void arrive(std::string_view bytes);

  /// From now on `watcher` hears each chunk that reaches the program, before the program does; an
  /// empty one ends that.
  void watch(std::function<void(std::string_view)> watcher) { watcher_ = std::move(watcher); }
  /// How often the program has opened a port so far.
  int openings() const { return openings_; }

  /// What the program has written since the last call.
  std::vector<Write> takeWrites();

 private:
  void leave(std::size_t bytes, int opening);

  VirtualTime& time_;
  const HeadlessPorts& ports_;
  Listener* listener_ = nullptr;
  LineModem* modem_ = nullptr;
  std::function<void(std::string_view)> watcher_;
  std::optional<int> modemPort_;
  std::optional<int> openPort_;
  LineSettings settings_;
  int openings_ = 0;         // tells what was written to an earlier opening of the port apart
  std::size_t waiting_ = 0;  // bytes written and not yet sent
  Instant sentAt_{0};        // when the last of them will have left
  std::vector<Write> writes_;
};

}  // namespace gsm
