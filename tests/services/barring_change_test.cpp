#include <gtest/gtest.h>

#include "tests/services/services_test.h"

namespace gsm {
namespace {

class BarringChange : public ServicesTest {
 protected:
  void SetUp() override {
    ServicesTest::SetUp();
    openWindow();
    turnTo(barring);
    press(form().Command4);
    sent();
    form().Label5.Caption = "before";
    form().Text2.Text = "1234";
  }
  void expectStopped(const std::string& text) {
    press(form().Command3);
    expectBox(text, "");
    EXPECT_EQ(sent(), Texts{});
    EXPECT_EQ(caption(form().Label5), "before");
    EXPECT_EQ(form().Text2.Text.peek(), "1234");
    EXPECT_EQ(transcript(), "old");
  }
};

TEST_F(BarringChange, ItsPageComesInThePlaceOfTheStatus) {
  inPanel([this] {
    form().Frame5.Visible = false;
    form().Frame9.Visible = true;
    form().Frame1.Visible = true;
  });
  run(0);
  click(form().Command4);
  EXPECT_EQ(pages(), (Texts{"Frame13", "Frame5", "Frame11", "Command6"}));
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(BarringChange, WantsFacilityThenClassThenMode) {
  leaveInTranscript("old");
  expectStopped("Please Select The Facility");
  choose({&form().Option24, &form().Option22});
  expectStopped("Please Select The Facility");
  form().Option24.Value = false;
  choose({&form().Option21});
  expectStopped("Please Select The Class");
  form().Option22.Value = false;
  choose({&form().Option28});
  expectStopped("Please Select The Mode");
}

TEST_F(BarringChange, WantsAPasswordLastAndClearsTheTranscript) {
  choose({&form().Option17, &form().Option24, &form().Option23});
  form().Text2.Text = "";
  leaveInTranscript("old");
  press(form().Command3);
  expectBox("Please Enter A Valid Password", "GSM");
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(caption(form().Label5), "before");
  EXPECT_EQ(transcript(), "");
}

struct OptionRow {
  std::string name;
  OptionButton Form12::*option;
  std::string code;
};

class BarringClass : public BarringChange, public ::testing::WithParamInterface<OptionRow> {};

TEST_P(BarringClass, IsSentLast) {
  choose({&form().Option17, &form().Option23, &(form().*GetParam().option)});
  press(form().Command3);
  EXPECT_EQ(sent(), Texts{"AT+CLCK=\"AO\",1,1234," + GetParam().code + "\r"});
}

INSTANTIATE_TEST_SUITE_P(Of, BarringClass,
                         ::testing::Values(OptionRow{"Voice", &Form12::Option24, "1"},
                                           OptionRow{"Data", &Form12::Option25, "2"},
                                           OptionRow{"Fax", &Form12::Option26, "4"},
                                           OptionRow{"Messages", &Form12::Option27, "8"},
                                           OptionRow{"All", &Form12::Option28, "7"}),
                         RowName());

class BarringMode : public BarringChange, public ::testing::WithParamInterface<OptionRow> {};

TEST_P(BarringMode, IsSentBeforeThePassword) {
  choose({&form().Option17, &form().Option24, &(form().*GetParam().option)});
  press(form().Command3);
  EXPECT_EQ(sent(), Texts{"AT+CLCK=\"AO\"," + GetParam().code + ",1234,1\r"});
}

INSTANTIATE_TEST_SUITE_P(Of, BarringMode,
                         ::testing::Values(OptionRow{"Unlock", &Form12::Option22, "0"},
                                           OptionRow{"Lock", &Form12::Option23, "1"}),
                         RowName());

TEST_F(BarringChange, OneDigitIsPasswordEnough) {
  choose({&form().Option17, &form().Option24, &form().Option23});
  form().Text2.Text = "9";
  press(form().Command3);
  EXPECT_EQ(sent(), Texts{"AT+CLCK=\"AO\",1,9,1\r"});
}

class UnsentFacility : public BarringChange, public ::testing::WithParamInterface<OptionRow> {};

TEST_P(UnsentFacility, KeepsTheWaitAndEmptiesThePassword) {
  choose({&(form().*GetParam().option), &form().Option24, &form().Option23});
  leaveInTranscript("\r\nOK\r\n");
  click(form().Command3);
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(caption(form().Label5), "Please Wait");
  EXPECT_EQ(form().Text2.Text.peek(), "");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(Of, UnsentFacility,
                         ::testing::Values(OptionRow{"International", &Form12::Option18, ""},
                                           OptionRow{"Internet", &Form12::Option19, ""},
                                           OptionRow{"Incoming", &Form12::Option20, ""},
                                           OptionRow{"Roaming", &Form12::Option21, ""}),
                         RowName());

struct BarringOutcomeRow {
  std::string name;
  std::string reply;
  std::string shown;
};

class BarringOutcome : public BarringChange,
                       public ::testing::WithParamInterface<BarringOutcomeRow> {};

TEST_P(BarringOutcome, IsShownAfterFourSeconds) {
  choose({&form().Option17, &form().Option28, &form().Option22});
  reply("AT+CLCK=\"AO\",0,1234,7", GetParam().reply);
  leaveInTranscript("\r\nOK\r\nERROR\r\n");
  click(form().Command3);
  EXPECT_EQ(caption(form().Label5), "Please Wait");
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(form().Text2.Text.peek(), "1234");
  run(3.99);
  EXPECT_EQ(caption(form().Label5), "Please Wait");
  EXPECT_GT(waiting(), 0);
  run(0.02);
  EXPECT_EQ(caption(form().Label5), GetParam().shown);
  EXPECT_EQ(form().Text2.Text.peek(), "");
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(pages(), (Texts{"Frame13", "Frame5", "Frame11", "Command6"}));
  EXPECT_EQ(sent().size(), 1U);
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Is, BarringOutcome,
    ::testing::Values(BarringOutcomeRow{"Ok", kOk, "Changes SuccessFully"},
                      BarringOutcomeRow{"Error", kError, "Error! Changes UnsuccessFul"},
                      BarringOutcomeRow{"Both", "\r\nERROR\r\n\r\nOK\r\n", "Changes SuccessFully"},
                      BarringOutcomeRow{"Neither", "\r\nsomething else\r\n", "Please Wait"},
                      BarringOutcomeRow{"Silence", "", "Please Wait"}),
    RowName());

TEST_F(BarringChange, WithoutAPortEndsSilentlyAndKeepsThePassword) {
  choose({&form().Option17, &form().Option28, &form().Option22});
  closePort();
  press(form().Command3);
  EXPECT_EQ(caption(form().Label5), "Please Wait");
  EXPECT_EQ(form().Text2.Text.peek(), "1234");
  expectAtRest();
}

}  // namespace
}  // namespace gsm
