#include "simulator/host/file_messages.h"

#include "simulator/messages/message_text.h"

namespace gsm::pty {

simulator::MessageEntries FileMessages::load() const {
  const auto text = file_.read();
  if (!text) return simulator::factoryMessages();
  auto reading = simulator::readMessages(*text);
  file_.complain(reading.complaints);
  return std::move(reading.entries);
}

}  // namespace gsm::pty
