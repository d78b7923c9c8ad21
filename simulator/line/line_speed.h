#pragma once

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>

namespace gsm::simulator {

// The speed setting with which the modem takes its speed from the host's.
inline constexpr int kAutobaud = 0;

// The speeds of the modem's serial port, in bits per second.
inline constexpr std::array kLineSpeeds = {300,  600,   1200,  2400,  4800,
                                           9600, 19200, 38400, 57600, 115200};

constexpr bool isLineSpeed(int speed) {
  return std::find(kLineSpeeds.begin(), kLineSpeeds.end(), speed) != kLineSpeeds.end();
}

// The time that `bytes` bytes take at `speed` bits per second: a byte is ten bits on the line, with
// its start and its stop bit, unless AT+ICF has given it others.
constexpr std::chrono::nanoseconds lineTime(std::size_t bytes, int speed, int bits = 10) {
  using std::chrono::nanoseconds;
  const nanoseconds bitsInSeconds = std::chrono::seconds(bits);
  return bitsInSeconds * static_cast<nanoseconds::rep>(bytes) / speed;
}

}  // namespace gsm::simulator
