#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "simulator/line/transmitter.h"
#include "simulator/profile/settings.h"

namespace gsm::simulator {

// The modem while it takes a text from the host instead of commands. The text is what the host
// writes up to Ctrl-Z, byte for byte but for a backspace, which takes the byte before it back.
// Escape gives the whole of it up. While one is open every other byte is text, commands too.
class TextPrompt {
 public:
  // Takes the text; nothing when Escape gave it up.
  using Taker = std::function<void(std::optional<std::string> text)>;

  TextPrompt(const Settings& settings, Transmitter& transmitter, const bool& silent)
      : settings_(settings), transmitter_(transmitter), silent_(silent) {}

  // Calls `opened` whenever the host may begin with its text.
  void whenOpen(std::function<void()> opened) { opened_ = std::move(opened); }

  // Sends the prompt and, once it has left, is open until `taker` has got the text.
  void open(Taker taker);

  bool isOpen() const { return open_; }

  // Takes bytes of the text, up to the end of a line or of the text, with which it closes. Returns
  // how many of `bytes` it took. Only while open.
  std::size_t take(std::string_view bytes);

 private:
  void sendPrompt(std::function<void()> sent);
  void edit(char byte);
  void close(std::optional<std::string> text);

  const Settings& settings_;
  Transmitter& transmitter_;
  const bool& silent_;
  std::function<void()> opened_;
  Taker taker_;
  std::string text_;
  bool open_ = false;
};

}  // namespace gsm::simulator
