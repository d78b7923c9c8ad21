#pragma once

#include "link/text.h"

namespace gsm {

struct Panel;

/// Shows the modem's IMEI from the reply to "AT+CGSN"; `echo` is where the echoed command stands in
/// the transcript. `invalidArgument` when the number would begin before the transcript.
void takeImei(const Panel& panel, Position echo);

}  // namespace gsm
