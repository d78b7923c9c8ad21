#include "importer/jet_messages.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "platform/runtime_failure.h"

namespace gsm {

void JetMessageWriter::number(std::uint32_t value) {
  char bytes[sizeof value];
  std::memcpy(bytes, &value, sizeof value);  // both ends are on one machine
  pending_.append(bytes, sizeof value);
}

void JetMessageWriter::text(std::string_view bytes) {
  number(static_cast<std::uint32_t>(bytes.size()));
  pending_ += bytes;
  if (pending_.size() >= 65536) flush();
}

void JetMessageWriter::flush() {
  std::string_view rest = pending_;
  while (!rest.empty()) {
    const ssize_t count = write(descriptor_, rest.data(), rest.size());
    if (count > 0) {
      rest.remove_prefix(static_cast<std::size_t>(count));
    } else if (errno != EINTR) {
      throw failure::deviceError();
    }
  }
  pending_.clear();
}

std::optional<std::uint32_t> JetMessageReader::number() {
  std::uint32_t value = 0;
  if (rest_.size() < sizeof value) return std::nullopt;
  std::memcpy(&value, rest_.data(), sizeof value);
  rest_.remove_prefix(sizeof value);
  return value;
}

std::optional<std::string> JetMessageReader::text() {
  const auto size = number();
  if (!size || rest_.size() < *size) return std::nullopt;
  std::string bytes(rest_.substr(0, *size));
  rest_.remove_prefix(*size);
  return bytes;
}

}  // namespace gsm
