#include "simulator/host/line_splitter.h"

#include <utility>

namespace gsm::pty {

std::vector<std::string> LineSplitter::take(std::string_view piece) {
  std::vector<std::string> lines;
  for (const char c : piece) {
    if (c != '\n') line_ += c;
    if (c == '\n' || line_.size() == kLongest) lines.push_back(takeRest());
  }
  return lines;
}

std::string LineSplitter::takeRest() { return std::exchange(line_, {}); }

}  // namespace gsm::pty
