#pragma once

#include <string>

#include "link/text.h"

namespace gsm {

class Conversation;

/// A reply of two fields, as texts: "15,99" and a carriage return.
struct PairReply {
  std::string first;
  std::string second;
};

/// Reads the fields from position `start` of the transcript on, which may span 10 characters.
/// `invalidArgument` when the comma or the carriage return isn't among them.
PairReply pairReply(const Conversation& modem, Position start);

}  // namespace gsm
