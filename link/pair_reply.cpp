#include "link/pair_reply.h"

#include "link/conversation.h"

namespace gsm {

PairReply pairReply(const Conversation& modem, Position start) {
  const std::string fields = modem.slice(start, 10);
  return {before(",", fields), before("\r", behind(",", fields))};
}

}  // namespace gsm
