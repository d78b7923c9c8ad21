// Who calls whom in the simulated week.

#include <algorithm>

#include "phonebook/form3.h"
#include "phonebook/form5.h"
#include "tests/together/simulated_week.h"

namespace gsm {
namespace {

bool isDialable(const std::string& number) {
  return !number.empty() &&
         number.find_first_not_of("0123456789", number[0] == '+' ? 1 : 0) == std::string::npos;
}

// What the simulated network makes of a call, by the number's last digit.
std::string outcomeOf(const std::string& number) {
  switch (number.back()) {
    case '7': return "Busy.Plz Disconnect";
    case '8':
      return "NO ANSWER.Plz Disconnect";  // the watch writes last, and not as the dispatcher
    case '9': return "No Carrier.Plz Disconnect";
    default: return "Connected SuccessFully-" + number;
  }
}

bool isTaken(const std::string& number) { return outcomeOf(number).starts_with("Connected"); }

}  // namespace

// The other side ends all calls without a word to the host, and the user hangs up until the panel
// has noticed: without a clearing the poll would read its first reply for ever. A prompt that only
// a waiting call has brought up has no poll, and takes its own "HangUp".
void SimulatedWeek::comeToRest() {
  while (tell("giveup silent").empty() || tell("hangup silent").empty()) {}
  settle();
  if (polls()) hangUp();
  if (promptUp()) hangUp();
  EXPECT_FALSE(promptUp()) << "with no call up";
  EXPECT_FALSE(polls());
  EXPECT_EQ(waiting(), 0);
}

// While the phone rings, a ring may take the reply away that the way to the call window waits for.
void SimulatedWeek::hangUp() {
  if (promptUp() && (!polls() || !calls().Visible.peek() || perhaps(2))) {
    click(prompt().Command2);
    settle();
    EXPECT_FALSE(promptUp());
  } else {
    needCalls();
    click(calls().Command4);
    settle();
    EXPECT_EQ(callStatus(), "DisConnected ");
    model_.hangUp();
  }
  const bool polled = polls();
  run(12);
  settle();
  if (!polled) return;
  EXPECT_FALSE(promptUp()) << "the poll takes it down";
  EXPECT_FALSE(polls());
}

std::string SimulatedWeek::someCaller() {
  if (perhaps(4)) return "hidden";
  if (!model_.entries().empty() && !perhaps(4)) {
    const std::string& number = oneOf(model_.entries())[1];
    if (isDialable(number) && number.size() <= 20) return number;
  }
  return (perhaps(2) ? "0" : "+") + digits(9);
}

void SimulatedWeek::callSomebody() {
  comeToRest();
  needCalls();
  if (perhaps(2)) {
    pickEntryAtRandom();
  } else {
    click(calls().Command7);
    model_.hangUp();  // empties the box as well
    for (std::size_t keys = below(5); keys > 0; --keys) {
      const int key = static_cast<int>(below(10));
      click(calls().Image[key]);
      settle();
      model_.press(static_cast<char>('0' + key));
    }
  }
  const std::string number = model_.window()->dialBox;
  click(calls().Command1);
  if (number.empty()) {
    settle();
    expectBox("Please Enter Correct Number To Dial");
    return;
  }
  settle();
  if (!isDialable(number)) return;
  lastDialled_ = number;
  finishWatch(number);
}

void SimulatedWeek::redial() {
  comeToRest();
  needCalls();
  const std::string before = callStatus();
  click(calls().Command8);
  settle();
  if (lastDialled_.empty()) {
    EXPECT_EQ(callStatus(), before) << "the modem has no last number";
    return;
  }
  model_.redial(lastDialled_);
  finishWatch(lastDialled_);
}

void SimulatedWeek::finishWatch(const std::string& number) {
  EXPECT_EQ(callStatus(), outcomeOf(number));
  if (!isTaken(number)) return;
  if (perhaps(3)) letSomebodyWait();
  if (!perhaps(4)) finishCall();
}

void SimulatedWeek::finishCall() {
  if (perhaps(2)) {
    hangUp();
    return;
  }
  // The line of a caller who waits brings the prompt up again, or stops the routing.
  const bool isHeard = transcript().find("+CCWA:") == std::string::npos;
  const bool silently = perhaps(2);
  tell(silently ? "hangup silent" : "hangup");
  run(8);
  if (silently || !isHeard) return;
  EXPECT_EQ(callStatus(), "No Carrier.Plz Disconnect");
  EXPECT_FALSE(promptUp());
}

// During the call. The line stays in the transcript, so the prompt does too.
void SimulatedWeek::letSomebodyWait() {
  const std::string caller = someCaller();
  const bool isClean = transcript().find(',') == std::string::npos;
  const bool wasUp = promptUp();
  const NetworkTruth network = truth();
  const bool isLetThrough = network.waiting != 0 && !network.sendsCallersOn();
  ASSERT_EQ(tell("wait " + caller).empty(), isLetThrough);
  run(6);
  if (!isLetThrough) return;
  if (!isClean) return;
  if (caller == "hidden") {
    EXPECT_EQ(promptUp(), wasUp) << "a line without a number has no quotes";
    return;
  }
  const auto name = model_.nameOfCaller(caller);
  EXPECT_TRUE(promptUp());
  EXPECT_EQ(prompt().Label1.Caption.peek(),
            name ? "Call Waiting- " + *name : "Call Waiting-  " + caller);
}

// A comma that is still there from before, as the poll leaves some behind, hides the caller.
void SimulatedWeek::letSomebodyCall() {
  if (perhaps(2)) {
    comeToRest();
    hangUp();
  }
  followLoading();
  if (model_.entries().empty()) needCalls();  // or the ring itself would begin a download
  const bool isDetermined = !polls() && waiting() == 0 && !promptUp();
  const bool isHeard = transcript().find(',') == std::string::npos;
  const std::string before = transcript();
  const std::string caller = someCaller();
  if (!tell("ring " + caller).empty()) return;  // a call is up, or the network sends it on
  // The picture of advice may come up on top of the wait and last until the second ring, whose wait
  // is then the one that counts.
  run(8 + static_cast<double>(below(10)));
  if (isDetermined && isHeard) {
    const std::string number = caller == "hidden" ? "" : caller;
    const auto name = number.empty() ? std::nullopt : model_.nameOfCaller(number);
    EXPECT_TRUE(promptUp()) << "caller " << caller << " behind '" << before << "', now '"
                            << transcript() << "'";
    EXPECT_TRUE(polls());
    EXPECT_EQ(this->caller(), name ? "Call Received From  " + *name : "Call Received-  " + number);
  } else if (isDetermined) {
    EXPECT_FALSE(promptUp());
    EXPECT_FALSE(polls());
  }
  followLoading();
  if (!promptUp() || perhaps(2)) {
    letCallerGiveUp();
  } else if (perhaps(3)) {
    hangUp();
  } else {
    click(prompt().Command1);
    run(5);
    EXPECT_TRUE(promptUp()) << "so that the call can be ended";
    finishCall();
  }
  followLoading();
}

void SimulatedWeek::letCallerGiveUp() {
  const bool silently = perhaps(2);
  EXPECT_EQ(tell(silently ? "giveup silent" : "giveup"), "");
  run(10);
}

}  // namespace gsm
