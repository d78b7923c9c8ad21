#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace gsm::pty {

// Puts lines together from the pieces in which they are read.
class LineSplitter {
 public:
  // A longer line is cut here, and its rest forms a line of its own.
  static constexpr std::size_t kLongest = 4096;

  // The lines that `piece` completes, without their line feeds.
  std::vector<std::string> take(std::string_view piece);

  // The line that the end of the input leaves without a line feed.
  std::string takeRest();

 private:
  std::string line_;
};

}  // namespace gsm::pty
