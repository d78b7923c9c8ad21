#pragma once

#include <string>
#include <utility>
#include <vector>

#include "simulator/line/timeline.h"
#include "simulator/network/call_list.h"
#include "simulator/network/dialer.h"
#include "simulator/profile/settings.h"

namespace gsm::simulator {

// The modem's calls: those that the host makes and takes, and what the other side does to them. At
// most one is made, one rings or waits, one is talked on and one is held.
class Calls {
 public:
  Calls(Timeline& timeline, const Settings& settings, Notices& notices)
      : timeline_(timeline),
        settings_(settings),
        notices_(notices),
        calls_(notices),
        dialer_(timeline, calls_, notices) {}

  const std::vector<Call>& all() const { return calls_.all(); }
  bool has(CallState state) const { return calls_.find(state) != nullptr; }

  // The classes of calls for which a caller waits during a call; he is turned away as busy in the
  // others. A sum of bits, of which 1 is voice.
  int waitingClasses = 1;
  bool waitingEnabled() const { return (waitingClasses & 1) != 0; }

  // Calls a number, as Dialer::dial says. Only without a call.
  void dial(const std::string& number, FinishCommand finish) {
    dialer_.dial(number, std::move(finish));
  }
  bool isDialing() const { return dialer_.isDialing(); }
  const std::string& lastNumber() const { return dialer_.lastNumber(); }

  // Takes the call that rings or waits; one that is talked on is held. False when there is none.
  bool take();

  // Ends all calls, the one that rings too, and returns their ids for `announceEnds`.
  std::vector<int> hangUp();
  void announceEnds(const std::vector<int>& ids);

  // A caller, with an empty number for one who hides it. It rings when there is no call, at once
  // and every five seconds, and is taken by itself after as many rings as S0 says. During a call it
  // waits. False, with nothing done, at any other time.
  bool ring(const std::string& number);
  bool wait(const std::string& number);

  // The caller who rings or waits gives up; silently means that the host isn't told. False without
  // such a caller.
  bool giveUp(bool silently);

  // The side that is being called answers, or doesn't. False when none is being called.
  bool endDialing(Reply::Result result);

  // The other side ends the call that is talked on, made or held, in this order. A call that is
  // being made ends with NO CARRIER in any case, since its command wants a result. False without
  // one.
  bool endRemotely(bool silently);

  // The network or the SIM is gone, and all the calls with it.
  void lose();

 private:
  enum class Telling { kNothing, kRelease, kResultAndRelease };

  void end(const Call& call, Telling telling);
  void announceRing();
  void announceWaiting(const std::string& number);
  void ringWaiting();

  GuardedTimeline timeline_;  // of what rings
  const Settings& settings_;
  Notices& notices_;
  CallList calls_;
  Dialer dialer_;
  int rings_ = 0;
};

}  // namespace gsm::simulator
