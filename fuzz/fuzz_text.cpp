// A fuzz target: text that comes from files and from people, whatever its bytes. The first one says
// who reads the others.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "fuzz/text_readers.h"

namespace gsm {
namespace {

struct Reader {
  char letter;
  void (*read)(std::string_view bytes);
};

constexpr std::array kReaders = {
    Reader{'b', readPhoneBookText}, Reader{'c', readComFile},    Reader{'k', readConsole},
    Reader{'m', readModelFile},     Reader{'p', readProfile},    Reader{'r', readRequests},
    Reader{'s', readMessagesText},  Reader{'u', readCharacters},
};

}  // namespace
}  // namespace gsm

// An input that nobody reads isn't worth keeping.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const auto reader =
      std::find_if(gsm::kReaders.begin(), gsm::kReaders.end(),
                   [bytes](const gsm::Reader& each) { return bytes.starts_with(each.letter); });
  if (reader == gsm::kReaders.end()) return -1;
  reader->read(bytes.substr(1));
  return 0;
}
