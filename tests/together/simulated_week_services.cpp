// What the user asks of the network in the simulated week.

#include <array>

#include "panel/form1.h"
#include "services/form12.h"
#include "simulator/network/service_classes.h"
#include "tests/together/simulated_week.h"

namespace gsm {
namespace {

enum Page { kForwarding = 1, kBarring = 2, kWaiting = 3, kUserGroup = 4 };

constexpr std::array kReasons = {&Form12::Option1, &Form12::Option2, &Form12::Option3,
                                 &Form12::Option4, &Form12::Option5, &Form12::Option6};
constexpr std::array kStates = {&Form12::Label11, &Form12::Label12, &Form12::Label13,
                                &Form12::Label14, &Form12::Label15, &Form12::Label16};
constexpr std::array kFacilities = {&Form12::Option17, &Form12::Option18, &Form12::Option19,
                                    &Form12::Option20, &Form12::Option21};
constexpr std::array kGroup = {&Form12::Combo1, &Form12::Combo2, &Form12::Combo3};

struct ClassOption {
  OptionButton Form12::*option;
  int classes;
};
constexpr std::array kForwardClasses = {
    ClassOption{&Form12::Option12, 1}, ClassOption{&Form12::Option13, 2},
    ClassOption{&Form12::Option14, 4}, ClassOption{&Form12::Option15, 8},
    ClassOption{&Form12::Option16, 7}};
constexpr std::array kBarClasses = {
    ClassOption{&Form12::Option24, 1}, ClassOption{&Form12::Option25, 2},
    ClassOption{&Form12::Option26, 4}, ClassOption{&Form12::Option27, 8},
    ClassOption{&Form12::Option28, 7}};

}  // namespace

NetworkTruth SimulatedWeek::truth() { return NetworkTruth::read(tell("services")); }

void SimulatedWeek::turnServices(int page) {
  if (!services().Visible.peek()) {
    showPanel();
    click(form1().Command4);
    settle();
    ASSERT_TRUE(services().Visible.peek());
    EXPECT_FALSE(form1().Visible.peek());
    compareForwarding();
  }
  world().time().after(Duration::zero(), [this, page] { services().TabStrip1.userTab(page); });
  settle();
  EXPECT_TRUE(services().Frame13.Visible.peek()) << "what is forwarded stands below every page";
  EXPECT_EQ(services().Frame1.Visible.peek(), page == kForwarding);
  EXPECT_EQ(services().Frame9.Visible.peek(), page == kBarring);
  EXPECT_EQ(services().Frame12.Visible.peek(), page == kUserGroup);
  EXPECT_FALSE(services().Frame5.Visible.peek());
  if (page == kBarring) return;  // the page of the waiting may stay beside it
  EXPECT_EQ(services().Frame10.Visible.peek(), page == kWaiting);
}

void SimulatedWeek::compareForwarding() {
  if (!inPeace_) return;
  EXPECT_EQ(services().Label2.Caption.peek(), "");
  const NetworkTruth network = truth();
  for (std::size_t reason = 0; reason < kStates.size(); ++reason) {
    EXPECT_EQ((services().*kStates[reason]).Caption.peek(),
              network.forwardingTold(static_cast<int>(reason)));
  }
}

void SimulatedWeek::forwardCalls() {
  comeToRest();
  turnServices(kForwarding);
  compareForwarding();
  const int reason = static_cast<int>(below(kReasons.size()));
  const ClassOption& serviceClass = kForwardClasses[below(kForwardClasses.size())];
  const bool registers = perhaps(2);
  const std::string number = perhaps(10) ? "12a" : (perhaps(2) ? "0" : "+33") + digits(8);
  click(services().*kReasons[static_cast<std::size_t>(reason)]);
  click(registers ? services().Option7 : services().Option8);
  if (!perhaps(8)) click(services().*serviceClass.option);
  if (!perhaps(8)) type(services().Text1, number);
  const bool hasClass = (services().*serviceClass.option).Value.peek();
  const bool hasNumber = !services().Text1.Text.peek().empty();
  click(services().Command1);
  settle();
  if (registers && !(hasNumber && hasClass)) {
    expectBox(hasNumber ? "Select Class Correctly" : "Enter Valid Number ");
    return;
  }
  EXPECT_EQ(services().Text1.Text.peek(), "");
  const bool isTaken = !registers || number != "12a";
  if (isTaken) {
    EXPECT_TRUE(
        truth().forwards(reason, registers ? serviceClass.classes : 15, registers ? number : ""));
  }
  if (inPeace_) {
    EXPECT_EQ(services().Label2.Caption.peek(),
              isTaken ? "Changes SuccessFul" : "Changes UnSuccessFul");
  }
  letCallersThrough();
  click(services().Command2);
  settle();
  compareForwarding();
}

// Without this, most of the calls of the week would go elsewhere.
void SimulatedWeek::letCallersThrough() {
  if (!truth().sendsCallersOn() || perhaps(6)) return;
  click(services().Option5);
  click(services().Option8);
  click(services().Command1);
  settle();
  EXPECT_TRUE(truth().forwards(4, 15, ""));
}

// Only the first facility is ever sent. The operator lifts what would keep the user from calling.
void SimulatedWeek::barCalls() {
  comeToRest();
  turnServices(kBarring);
  const NetworkTruth before = truth();
  if (inPeace_) {
    EXPECT_EQ(services().Label3.Caption.peek(), before.barringTold());
    EXPECT_TRUE(services().Command4.Enabled.peek());
  }
  click(services().Command4);
  const std::size_t facility = perhaps(2) ? 0 : below(kFacilities.size());
  const ClassOption& serviceClass = kBarClasses[below(kBarClasses.size())];
  const bool bars = perhaps(2);
  const bool isRight = !perhaps(4);
  const bool isEmpty = perhaps(10);
  click(services().*kFacilities[facility]);
  click(bars ? services().Option23 : services().Option22);
  click(services().*serviceClass.option);
  type(services().Text2, isEmpty ? "" : isRight ? "0000" : "1" + digits(5));
  EXPECT_EQ(services().Text2.Text.peek().size(), isEmpty ? 0U : 4U);
  click(services().Command3);
  settle();
  EXPECT_EQ(services().Text2.Text.peek(), "");
  if (isEmpty) {
    expectBox("Please Enter A Valid Password");
    return;
  }
  const bool isAsked = facility == 0;
  const bool isTaken = isAsked && isRight && before.passwordTries > 0;
  auto expected = before.barred;
  int& classes = expected["AO"];
  if (isTaken) classes = bars ? classes | serviceClass.classes : classes & ~serviceClass.classes;
  EXPECT_EQ(truth().barred, expected);
  if (inPeace_) {
    EXPECT_EQ(services().Label5.Caption.peek(), !isAsked  ? "Please Wait"
                                                : isTaken ? "Changes SuccessFully"
                                                          : "Error! Changes UnsuccessFul");
  }
  if (truth().passwordTries == 0) tell("bar unlock");
  tell("bar AO " + std::to_string(classes & simulator::kMessageClass));
}

void SimulatedWeek::switchWaiting() {
  comeToRest();
  turnServices(kWaiting);
  const bool wasOn = truth().waiting != 0;
  if (inPeace_) {
    EXPECT_EQ(services().Label6.Caption.peek(), wasOn ? "Current Status:Call Waiting Enabled"
                                                      : "Current Status:Call Waiting Disabled");
  }
  EXPECT_FALSE(services().Frame11.Visible.peek());
  click(services().Command5);
  const bool on = !perhaps(3);
  click(on ? services().Option29 : services().Option30);
  click(services().Command6);
  settle();
  EXPECT_EQ(truth().waiting, on ? 1 : 0);
  if (inPeace_) {
    EXPECT_EQ(services().Label6.Caption.peek(), "Changes SuccessFul");
  }
}

// The window knows no code for index 2, so it asks for none and the old one stays.
void SimulatedWeek::joinUserGroup() {
  comeToRest();
  turnServices(kUserGroup);
  auto group = truth().userGroup;
  if (inPeace_) {
    EXPECT_EQ(services().Label7.Caption.peek(), truth().userGroupTold());
  }
  for (std::size_t field = 0; field < kGroup.size(); ++field) {
    ComboBox& combo = services().*kGroup[field];
    const int item = static_cast<int>(below(combo.List.peek().size()));
    world().time().after(Duration::zero(), [&combo, item] { combo.userSelect(item); });
    run(0);
    if (field != 1 || item != 2) group[field] = item;
  }
  click(services().Command7);
  settle();
  EXPECT_EQ(truth().userGroup, group);
  if (inPeace_) {
    EXPECT_EQ(services().Label7.Caption.peek(), "Changes SuccessFul");
  }
}

}  // namespace gsm
