#include <gtest/gtest.h>

#include <algorithm>

#include "tests/security/security_test.h"

namespace gsm {
namespace {

class SecurityPages : public SecurityTest {
 protected:
  void SetUp() override {
    SecurityTest::SetUp();
    openWindow();
  }
  Texts texts() {
    Texts all;
    for (const TextBox* box : boxesOfAll()) all.push_back(box->Text.peek());
    return all;
  }
  std::vector<TextBox*> boxesOfAll() {
    return {&form().Text1, &form().Text2, &form().Text3, &form().Text4, &form().Text5,
            &form().Text6, &form().Text7, &form().Text8, &form().Text9};
  }
  void fillAll() {
    inPanel([this] {
      for (TextBox* box : boxesOfAll()) box->Text = "12345678";
    });
    run(0);
  }
  /// The boxes that are filled, by name.
  Texts filled() {
    Texts names;
    for (const TextBox* box : boxesOfAll()) {
      if (!box->Text.peek().empty()) names.push_back(box->name());
    }
    return names;
  }
  /// The option that is set on the page of `frame`.
  std::string chosenIn(const Frame& frame) {
    for (const Control* control : form().controls()) {
      const auto* option = dynamic_cast<const OptionButton*>(control);
      if (option != nullptr && option->container() == &frame && option->Value.peek()) {
        return option->name();
      }
    }
    return {};
  }
};

struct TurnRow {
  std::string name;
  Tab tab;
  Frame Form9::*frame;
  Texts shown;       // on its page, when everything was on view
  Texts othersGone;  // from the other pages then
  Texts emptied;
};

class SecurityTurn : public SecurityPages, public ::testing::WithParamInterface<TurnRow> {};

TEST_P(SecurityTurn, ShowsItsPageAlone) {
  turnTo(GetParam().tab == phone ? simPin : phone);
  turnTo(GetParam().tab);
  for (Frame* frame : {&form().Frame2, &form().Frame3, &form().Frame4}) {
    EXPECT_EQ(frame->Visible.peek(), frame == &(form().*GetParam().frame)) << frame->name();
  }
  EXPECT_EQ(sent(), Texts{});
}

TEST_P(SecurityTurn, HidesWhatChangesItsLock) {
  setAll(true);
  Texts before[] = {shownIn(form().Frame2), shownIn(form().Frame3), shownIn(form().Frame4)};
  turnTo(GetParam().tab);
  EXPECT_EQ(shownIn(form().*GetParam().frame), GetParam().shown);
  Texts gone;
  const Frame* const frames[] = {&form().Frame2, &form().Frame3, &form().Frame4};
  for (std::size_t i = 0; i < 3; ++i) {
    if (frames[i] == &(form().*GetParam().frame)) continue;
    const Texts after = shownIn(*frames[i]);
    for (const std::string& name : before[i]) {
      if (std::find(after.begin(), after.end(), name) == after.end()) gone.push_back(name);
    }
  }
  EXPECT_EQ(gone, GetParam().othersGone);
}

TEST_P(SecurityTurn, ShowsNothingElse) {
  setAll(false);
  turnTo(GetParam().tab);
  EXPECT_EQ(shownIn(form().Frame2), GetParam().tab == phone ? Texts{"Label2"} : Texts{});
  EXPECT_EQ(shownIn(form().Frame3), Texts{});
  EXPECT_EQ(shownIn(form().Frame4), Texts{});
}

TEST_P(SecurityTurn, EmptiesItsBoxesAndTheTranscript) {
  fillAll();
  leaveInTranscript("old");
  turnTo(GetParam().tab);
  Texts left;
  for (const TextBox* box : boxesOfAll()) {
    const Texts& emptied = GetParam().emptied;
    if (std::find(emptied.begin(), emptied.end(), box->name()) == emptied.end()) {
      left.push_back(box->name());
    }
  }
  EXPECT_EQ(filled(), left);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(waiting(), 0);
}

TEST_P(SecurityTurn, ToTheSelectedTabDoesItOnceMore) {
  turnTo(GetParam().tab);
  setAll(true);
  fillAll();
  turnTo(GetParam().tab);
  EXPECT_EQ(shownIn(form().*GetParam().frame), GetParam().shown);
  EXPECT_EQ(filled().size(), 6U);
}

// The last tab hides two labels of the first page, and none of its own passwords' labels.
INSTANTIATE_TEST_SUITE_P(To, SecurityTurn,
                         ::testing::Values(TurnRow{"Phone",
                                                   phone,
                                                   &Form9::Frame2,
                                                   {"Label2", "Command2"},
                                                   {},
                                                   {"Text1", "Text2", "Text3"}},
                                           TurnRow{"SimPin",
                                                   simPin,
                                                   &Form9::Frame3,
                                                   {"Label6", "Command4"},
                                                   {},
                                                   {"Text4", "Text5", "Text6"}},
                                           TurnRow{"Network",
                                                   network,
                                                   &Form9::Frame4,
                                                   {"Label10", "Command7", "Label12", "Label13"},
                                                   {"Label2", "Label3"},
                                                   {"Text7", "Text8", "Text9"}}),
                         RowName());

TEST_F(SecurityPages, TheNetworksTabTakesTwoLabelsOfThePhonesAndOneComesBack) {
  click(form().Command2);
  turnTo(network);
  turnTo(phone);
  EXPECT_TRUE(form().Label2.Visible.peek());
  EXPECT_FALSE(form().Label3.Visible.peek());
  click(form().Command2);
  EXPECT_TRUE(form().Label3.Visible.peek());
}

TEST_F(SecurityPages, TheLabelsOfTheNetworksPasswordsStayOnceShown) {
  turnTo(network);
  click(form().Command7);
  EXPECT_FALSE(form().Label12.Visible.peek());
  click(form().Option9);
  turnTo(phone);
  turnTo(network);
  EXPECT_EQ(shownIn(form().Frame4), (Texts{"Label10", "Command7", "Label12", "Label13"}));
}

TEST_F(SecurityPages, WithAClosedPortTurnsAllTheSame) {
  closePort();
  turnTo(simPin);
  EXPECT_TRUE(form().Frame3.Visible.peek());
  expectAtRest();
}

struct PrepareRow {
  std::string name;
  Tab tab;
  CommandButton Form9::*button;
  Frame Form9::*frame;
  Label Form9::*status;
  Texts shown;
  Texts emptied;
  std::string off;  // the words and the option of the state 0
  std::string offOption;
  std::string on;
  std::string onOption;
};

class Prepare : public SecurityPages, public ::testing::WithParamInterface<PrepareRow> {
 protected:
  void SetUp() override {
    SecurityPages::SetUp();
    turnTo(GetParam().tab);
  }
  void setStatus(const std::string& words) {
    inPanel([this, words] { (form().*GetParam().status).Caption = words; });
    run(0);
  }
  void prepare() { click(form().*GetParam().button); }
};

TEST_P(Prepare, ShowsWhatChangesTheLock) {
  prepare();
  EXPECT_EQ(shownIn(form().*GetParam().frame), GetParam().shown);
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(waiting(), 0);
}

TEST_P(Prepare, TouchesNoOtherPage) {
  const Frame* const frames[] = {&form().Frame2, &form().Frame3, &form().Frame4};
  Texts before;
  for (const Frame* frame : frames) before.push_back(std::to_string(shownIn(*frame).size()));
  prepare();
  for (std::size_t i = 0; i < 3; ++i) {
    if (frames[i] == &(form().*GetParam().frame)) continue;
    EXPECT_EQ(std::to_string(shownIn(*frames[i]).size()), before[i]);
  }
}

TEST_P(Prepare, EmptiesOnlyWhatItsRowSays) {
  fillAll();
  prepare();
  EXPECT_EQ(filled().size(), 9 - GetParam().emptied.size());
  for (const std::string& name : GetParam().emptied) {
    EXPECT_EQ(std::get<std::string>(form().control(name)->property("Text")->value()), "");
  }
}

TEST_P(Prepare, SelectsTheStateThatTheLockIsIn) {
  setStatus(GetParam().off);
  prepare();
  EXPECT_EQ(chosenIn(form().*GetParam().frame), GetParam().offOption);
  setStatus(GetParam().on);
  prepare();
  EXPECT_EQ(chosenIn(form().*GetParam().frame), GetParam().onOption);
  setStatus(GetParam().off);
  prepare();
  EXPECT_EQ(chosenIn(form().*GetParam().frame), GetParam().offOption);
}

TEST_P(Prepare, SelectsNothingByAnyOtherWords) {
  for (const std::string& words : {std::string(), std::string("Changes SuccessFul-LOCKED"),
                                   GetParam().on + " ", std::string("current status:sim locked")}) {
    setStatus(words);
    prepare();
    EXPECT_EQ(chosenIn(form().*GetParam().frame), "") << words;
  }
  setStatus(GetParam().on);
  prepare();
  setStatus("Changes SuccessFul-UNLOCKED");
  prepare();
  EXPECT_EQ(chosenIn(form().*GetParam().frame), GetParam().onOption);
}

INSTANTIATE_TEST_SUITE_P(Of, Prepare,
                         ::testing::Values(PrepareRow{"Phone",
                                                      phone,
                                                      &Form9::Command2,
                                                      &Form9::Frame2,
                                                      &Form9::Label2,
                                                      {"Label2", "Command2", "Option1", "Option2",
                                                       "Label3", "Text1", "Command1", "Option3"},
                                                      {},
                                                      kPhoneUnlocked,
                                                      "Option2",
                                                      kPhoneLocked,
                                                      "Option1"},
                                           PrepareRow{"SimPin",
                                                      simPin,
                                                      &Form9::Command4,
                                                      &Form9::Frame3,
                                                      &Form9::Label6,
                                                      {"Label6", "Command4", "Option4", "Option5",
                                                       "Label7", "Text4", "Command5", "Option6"},
                                                      {"Text4"},
                                                      kPinDeactivated,
                                                      "Option5",
                                                      kPinActivated,
                                                      "Option4"},
                                           PrepareRow{"Network",
                                                      network,
                                                      &Form9::Command7,
                                                      &Form9::Frame4,
                                                      &Form9::Label10,
                                                      {"Label10", "Command7", "Option7", "Option8",
                                                       "Label11", "Text7", "Command8", "Option9"},
                                                      {"Text7"},
                                                      kNetworkUnlocked,
                                                      "Option8",
                                                      kNetworkLocked,
                                                      "Option7"}),
                         RowName());

TEST_F(SecurityPages, PreparingALockedPhoneEmptiesItsBoxByTheWay) {
  form().Label2.Caption = kPhoneLocked;
  fillAll();
  click(form().Command2);
  EXPECT_EQ(filled(),
            (Texts{"Text2", "Text3", "Text4", "Text5", "Text6", "Text7", "Text8", "Text9"}));
}

struct OptionRow {
  std::string name;
  Tab tab;
  OptionButton Form9::*option;
  Texts shown;  // that wasn't before
  Texts emptied;
};

class OptionClick : public SecurityPages, public ::testing::WithParamInterface<OptionRow> {
 protected:
  Texts shownInAll() {
    Texts all;
    for (const Frame* frame : {&form().Frame2, &form().Frame3, &form().Frame4}) {
      for (const std::string& name : shownIn(*frame)) all.push_back(name);
    }
    return all;
  }
};

TEST_P(OptionClick, ShowsWhatBelongsToItAndHidesNothing) {
  turnTo(GetParam().tab);
  setAll(false);
  OptionButton& option = form().*GetParam().option;
  inPanel([&option] { option.Visible = true; });
  run(0);
  click(option);
  Texts expected = GetParam().shown;
  expected.push_back(option.name());
  Texts shown = shownInAll();
  std::sort(shown.begin(), shown.end());
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(shown, expected);
  setAll(true);
  const Texts all = shownInAll();
  click(option);
  EXPECT_EQ(shownInAll(), all);
}

TEST_P(OptionClick, EmptiesItsBoxesOnly) {
  turnTo(GetParam().tab);
  setAll(true);
  fillAll();
  click(form().*GetParam().option);
  Texts left;
  for (const TextBox* box : boxesOfAll()) {
    const Texts& emptied = GetParam().emptied;
    if (std::find(emptied.begin(), emptied.end(), box->name()) == emptied.end()) {
      left.push_back(box->name());
    }
  }
  EXPECT_EQ(filled(), left);
}

INSTANTIATE_TEST_SUITE_P(
    Of, OptionClick,
    ::testing::Values(
        OptionRow{"LockPhone", phone, &Form9::Option1, {"Label3", "Text1"}, {"Text1"}},
        OptionRow{"UnlockPhone", phone, &Form9::Option2, {}, {}},
        OptionRow{"PhonesPassword",
                  phone,
                  &Form9::Option3,
                  {"Label4", "Label5", "Text2", "Text3", "Command3"},
                  {"Text2", "Text3"}},
        OptionRow{"ActivatePin", simPin, &Form9::Option4, {}, {}},
        OptionRow{"DeactivatePin", simPin, &Form9::Option5, {}, {}},
        OptionRow{"PinsPassword",
                  simPin,
                  &Form9::Option6,
                  {"Label8", "Label9", "Text5", "Text6", "Command6"},
                  {"Text5", "Text6"}},
        OptionRow{"LockNetwork", network, &Form9::Option7, {}, {}},
        OptionRow{"UnlockNetwork", network, &Form9::Option8, {}, {}},
        OptionRow{"NetworksPassword",
                  network,
                  &Form9::Option9,
                  {"Label12", "Label13", "Text8", "Text9", "Command9"},
                  {"Text8", "Text9"}}),
    RowName());

}  // namespace
}  // namespace gsm
