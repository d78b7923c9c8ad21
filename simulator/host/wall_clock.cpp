#include "simulator/host/wall_clock.h"

#include <array>
#include <cstdlib>

namespace gsm::pty {

std::string networkTime(std::time_t time) {
  constexpr long kQuarter = 15 * 60;
  std::tm parts{};
  ::localtime_r(&time, &parts);
  std::array<char, 32> text{};
  const std::size_t size = std::strftime(text.data(), text.size(), "%y/%m/%d,%H:%M:%S", &parts);
  const std::string quarters = std::to_string(std::labs(parts.tm_gmtoff) / kQuarter);
  return std::string(text.data(), size) + (parts.tm_gmtoff < 0 ? "-" : "+") +
         std::string(quarters.size() < 2 ? 1 : 0, '0') + quarters;
}

}  // namespace gsm::pty
