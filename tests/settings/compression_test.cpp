#include <gtest/gtest.h>

#include "tests/settings/data_test.h"

namespace gsm {
namespace {

class Compression : public DataTest {
 protected:
  void SetUp() override {
    DataTest::SetUp();
    openWindow();
  }
};

TEST_F(Compression, ReadsOneAfterTheOther) {
  leaveInTranscript("\r\n2\r\n");
  click(form().Command2);
  EXPECT_EQ(pages(), Texts{"Frame2"});
  EXPECT_EQ(modes(), kChecking);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(form().Combo3.List.peek(), (Texts{"0 No Compression", "2 V42bis Compression"}));
  EXPECT_EQ(form().Combo4.List.peek(),
            (Texts{"0 Default", "2 Auto Reliable Mode", "4 LAMP Mode", "5 MNP Mode"}));
  EXPECT_EQ(sent(), Texts{"AT%C?\r"});
  settle();
  EXPECT_EQ(modes(), "Compression  , Error Correction ");
  EXPECT_EQ(sent(), Texts{"AT\\N?\r"});
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(Compression, EachReadWaitsASecond) {
  inPanel([this] { form1().MSComm1.SThreshold = 0; });
  run(0);
  const double begin = now();
  click(form().Command2);
  settle();
  const auto writes = sentWithTimes();
  ASSERT_EQ(writes.size(), 2U);
  EXPECT_NEAR(toSeconds(writes[1].at - writes[0].at), 1, 0.01);
  EXPECT_NEAR(now() - begin, 2, 0.02);
}

TEST_F(Compression, PressedAgainFillsTheListsAnewAndLosesTheChoices) {
  press(form().Command2);
  pick(form().Combo3, 1);
  pick(form().Combo4, 3);
  EXPECT_EQ(form().Combo4.Text.peek(), "5 MNP Mode");
  press(form().Command2);
  EXPECT_EQ(form().Combo3.Text.peek(), "");
  EXPECT_EQ(form().Combo4.Text.peek(), "");
  EXPECT_EQ(form().Combo3.ListCount(), 2);
  EXPECT_EQ(form().Combo4.ListCount(), 4);
}

TEST_F(Compression, TheListsTakeNoTyping) {
  EXPECT_FALSE(form().Combo3.isEditable());
  EXPECT_FALSE(form().Combo4.isEditable());
}

struct ModesRow {
  std::string name;
  std::string compression;
  std::string correction;
  std::string shown;
};

class CompressionReply : public Compression, public ::testing::WithParamInterface<ModesRow> {};

TEST_P(CompressionReply, IsShownInWords) {
  reply("AT%C?", GetParam().compression);
  reply("AT\\N?", GetParam().correction);
  press(form().Command2);
  EXPECT_EQ(modes(), GetParam().shown);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Is, CompressionReply,
    ::testing::Values(ModesRow{"CompressionZero", information("0"), information("0"),
                               "Compression Default , Error Correction 0 Default"},
                      ModesRow{"CompressionTwo", information("2"), information("5"),
                               "Compression V42bis Compression , Error Correction 5 MNP Mode"},
                      ModesRow{"CompressionBoth", information("2,0"), information("2"),
                               "Compression Default , Error Correction 2 Auto Reliable Mode"},
                      ModesRow{"CompressionOne", information("1"), information("4"),
                               "Compression  , Error Correction 4 LAMP Mode"},
                      ModesRow{"CompressionWithItsName", information("%C: 2"),
                               information("\\N: 0"),
                               "Compression V42bis Compression , Error Correction 0 Default"},
                      ModesRow{"CorrectionZeroAndFive", information("2"), information("5,0"),
                               "Compression V42bis Compression , Error Correction 0 Default"},
                      ModesRow{"CorrectionTwoAndFour", information("0"), information("42"),
                               "Compression Default , Error Correction 2 Auto Reliable Mode"},
                      ModesRow{"CorrectionFourAndFive", information("0"), information("54"),
                               "Compression Default , Error Correction 4 LAMP Mode"},
                      ModesRow{"CorrectionThree", information("0"), information("3"),
                               "Compression Default , Error Correction "},
                      ModesRow{"BothRefused", kError, kError, "Compression  , Error Correction "},
                      ModesRow{"ErrorWithANumber", "\r\n+CME ERROR: 4\r\n", "\r\n+CME ERROR: 4\r\n",
                               "Compression  , Error Correction 4 LAMP Mode"},
                      ModesRow{"CompressionAlone", information("2"), "",
                               "Compression V42bis Compression , Error Correction "},
                      ModesRow{"CorrectionAlone", "", information("2"),
                               "Compression  , Error Correction 2 Auto Reliable Mode"}),
    RowName());

TEST_F(Compression, AReadWithoutAPortKeepsTheCheck) {
  closePort();
  press(form().Command2);
  EXPECT_EQ(modes(), kChecking);
  EXPECT_EQ(pages(), Texts{"Frame2"});
  EXPECT_EQ(form().Combo4.ListCount(), 4);
  expectAtRest();
}

TEST_F(Compression, APortThatClosesBetweenTheReadsKeepsTheCheck) {
  reply("AT%C?", information("2"));
  click(form().Command2);
  inPanel([this] { form1().MSComm1.PortOpen = false; }, 1);
  settle();
  EXPECT_EQ(modes(), kChecking);
  EXPECT_EQ(sent(), Texts{"AT%C?\r"});
  expectAtRest();
}

struct ModeChoiceRow {
  std::string name;
  ComboBox Form14::*choice;
  CommandButton Form14::*button;
  int index;
  std::string sent;
  std::string success;
};

class CompressionChange : public Compression, public ::testing::WithParamInterface<ModeChoiceRow> {
 protected:
  void SetUp() override {
    Compression::SetUp();
    press(form().Command2);
    sent();
    form().Label4.Caption = "before";
    leaveInTranscript("\r\nOK\r\nERROR\r\n");
  }
  void expectOutcome(const std::string& answer, const std::string& shown) {
    const ModeChoiceRow& row = GetParam();
    pick(form().*row.choice, row.index);
    reply(row.sent, answer);
    click(form().*row.button);
    EXPECT_EQ(transcript(), "");
    EXPECT_EQ(modes(), "before");
    settle();
    EXPECT_EQ(modes(), shown);
    EXPECT_EQ(transcript(), "");
    EXPECT_EQ(sent(), Texts{row.sent + "\r"});
    EXPECT_EQ((form().*row.choice).ListIndex.peek(), row.index);
    expectAtRest();
  }
};

TEST_P(CompressionChange, IsSentAndReportedAsTaken) { expectOutcome(kOk, GetParam().success); }
TEST_P(CompressionChange, IsReportedAsRefused) { expectOutcome(kError, "Changes UnsuccessFul"); }
TEST_P(CompressionChange, IsReportedAsTakenWithBothWords) {
  expectOutcome("\r\nERROR\r\n\r\nOK\r\n", GetParam().success);
}
TEST_P(CompressionChange, KeepsTheStatusWithNeitherWord) {
  expectOutcome("\r\nBUSY\r\n", "before");
}

TEST_P(CompressionChange, WaitsASecond) {
  inPanel([this] { form1().MSComm1.SThreshold = 0; });
  pick(form().*GetParam().choice, GetParam().index);
  click(form().*GetParam().button);
  run(0.99);
  EXPECT_GT(waiting(), 0);
  run(0.02);
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(modes(), "before");
}

TEST_P(CompressionChange, WithoutAChoiceDoesNothing) {
  press(form().*GetParam().button);
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(modes(), "before");
  EXPECT_EQ(transcript(), "\r\nOK\r\nERROR\r\n");
  expectAtRest();
}

TEST_P(CompressionChange, WithoutAPortEndsSilently) {
  pick(form().*GetParam().choice, GetParam().index);
  closePort();
  press(form().*GetParam().button);
  EXPECT_EQ(modes(), "before");
  expectAtRest();
}

ModeChoiceRow compressionRow(const std::string& name, int index, const std::string& sent) {
  return {name, &Form14::Combo3, &Form14::Command7, index, sent, "Changes SuccessFul-Compression"};
}
ModeChoiceRow correctionRow(const std::string& name, int index, const std::string& sent) {
  return {
      name, &Form14::Combo4, &Form14::Command8, index, sent, "Changes SuccessFul-Error Correction"};
}

// The last two corrections have no digit, and the modem's "OK" to the bare command is a success.
INSTANTIATE_TEST_SUITE_P(Of, CompressionChange,
                         ::testing::Values(compressionRow("NoCompression", 0, "AT%C0"),
                                           compressionRow("V42bis", 1, "AT%C2"),
                                           correctionRow("Default", 0, "AT\\N0"),
                                           correctionRow("AutoReliable", 1, "AT\\N2"),
                                           correctionRow("Lamp", 2, "AT\\N"),
                                           correctionRow("Mnp", 3, "AT\\N")),
                         RowName());

}  // namespace
}  // namespace gsm
