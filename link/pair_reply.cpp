#include "link/pair_reply.h"

namespace gsm {

PairReply pairReply(const Transcript& transcript, Position start) {
  const std::string fields = transcript.slice(start, 10);
  return {before(",", fields), before("\r", behind(",", fields))};
}

}  // namespace gsm
