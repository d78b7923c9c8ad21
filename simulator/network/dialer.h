#pragma once

#include <string>

#include "simulator/dialogue/reply.h"
#include "simulator/line/timeline.h"
#include "simulator/network/call_list.h"

namespace gsm::simulator {

// The call that the host is making, until the other side has answered or it is clear that it won't.
// What happens is up to the number's last character: 7 is busy, 8 rings without an answer, 9 can't
// be reached, and any other one answers.
class Dialer {
 public:
  Dialer(Timeline& timeline, CallList& calls, Notices& notices)
      : timeline_(timeline), calls_(calls), notices_(notices) {}

  // Calls `number`. `finish` gets OK, as an active call, or the result of the call that failed.
  // Not while dialing.
  void dial(const std::string& number, FinishCommand finish);

  bool isDialing() const { return finish_ != nullptr; }

  // Ends the waiting with `result` now: kOk when the other side answers. Only while dialing.
  void end(Reply::Result result);

  // The number dialed last; empty when none was.
  const std::string& lastNumber() const { return lastNumber_; }

 private:
  Call* call();
  void ringThere();

  GuardedTimeline timeline_;
  CallList& calls_;
  Notices& notices_;
  FinishCommand finish_;
  std::string lastNumber_;
};

}  // namespace gsm::simulator
