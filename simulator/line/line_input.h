#pragma once

#include <cstddef>
#include <string>

namespace gsm::simulator {

// Puts a command line together from the bytes that come in.
class LineInput {
 public:
  // What a byte did to the line.
  enum class Step {
    kIgnored,  // a line feed after a line's end, which some hosts send and no modem minds
    kTaken,
    kLineEnded,
  };

  // The longest command line, without its carriage return. What is too much is lost, and the line
  // with it.
  static constexpr std::size_t kLongest = 560;

  Step take(char byte);

  // The line that has just ended: what stands after its first "AT", in whatever case. A line
  // without "AT" is no command line, and gets no answer.
  struct Line {
    bool isCommand = false;
    bool overlong = false;
    std::string body;
  };
  Line takeLine();

 private:
  std::string text_;
  bool overlong_ = false;
};

}  // namespace gsm::simulator
