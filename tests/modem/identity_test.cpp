#include <gtest/gtest.h>

#include <filesystem>

#include "modem/form2.h"
#include "panel/form1.h"
#include "tests/support/healthy_modem_test.h"
#include "tests/support/open_port_test.h"

namespace gsm {
namespace {

// The maker, model and revision that the modem reports.
class Identity : public OpenPortTest {
 protected:
  void SetUp() override {
    OpenPortTest::SetUp();
    inPanel([this] {
      Form2& form = panel().form2;
      form1().Label5.Caption = kBefore;
      for (Label* label : {&form.Label3, &form.Label4, &form.Label5, &form.Label6}) {
        label->Caption = kBefore;
      }
      for (Label* label : {&form.Label4, &form.Label5, &form.Label6}) label->Visible = false;
    });
    run(0);
  }

  void receiveAll(const std::string& bytes) {
    receive(bytes);
    settle();
  }

  std::string statusLine() { return form1().Label5.Caption.peek(); }
  std::string heading() { return panel().form2.Label4.Caption.peek(); }
  std::string maker() { return panel().form2.Label5.Caption.peek(); }
  std::string revision() { return panel().form2.Label6.Caption.peek(); }
  std::vector<bool> visible() {
    Form2& form = panel().form2;
    return {form.Label4.Visible.peek(), form.Label5.Visible.peek(), form.Label6.Visible.peek()};
  }
};

struct TextRow {
  std::string name;
  std::string received;
  std::string label;
};

class Manufacturer : public Identity, public ::testing::WithParamInterface<TextRow> {};

TEST_P(Manufacturer, IsCutOutEightAfterTheEcho) {
  receiveAll(GetParam().received);
  EXPECT_EQ(maker(), GetParam().label);
  EXPECT_EQ(heading(), "ManuFacturer And Model Details ");
  EXPECT_EQ(visible(), (std::vector<bool>{true, true, true}));
  EXPECT_EQ(revision(), kBefore);
  EXPECT_EQ(statusLine(), "");
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(file("Model.txt"), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    Replies, Manufacturer,
    ::testing::Values(
        TextRow{"OfTwoBlocksLosesItsLeadingBlank", std::string("ATI0\r") + kManufacturerReply,
                "WAVECOM MODEM\r\n\r\n MULTIBAND  900E  1800 \r\n\r\n"},
        TextRow{"WithoutALeadingBlankLosesALetter", "ATI0\r\r\nMODEM\r\n\r\nOK\r\n",
                "ODEM\r\n\r\n"},
        TextRow{"BehindATextIsLongerByThatText", "junkATI0\r\r\n MODEM\r\n\r\nOK\r\nrest",
                "MODEM\r\n\r\nOK\r\n"},
        TextRow{"BehindALongTextEndsWithTheTranscript",
                "a junk of twenty-five....ATI0\r\r\n MODEM\r\n\r\nOK\r\n", "MODEM\r\n\r\nOK\r\n"},
        TextRow{"OfOneCharacterIsItsLineEndButOne", "ATI0\r\r\n\r\nOK\r\n", "\n"},
        TextRow{"WithAnOkInItsTextEndsThere", "ATI0\r\r\n LOOKER\r\n\r\nOK\r\n", "LO"}),
    RowName());

class Revision : public Identity, public ::testing::WithParamInterface<TextRow> {};

TEST_P(Revision, IsCutOutSevenAfterTheEchoAndSaved) {
  receiveAll(GetParam().received);
  EXPECT_EQ(revision(), GetParam().label);
  EXPECT_EQ(visible(), (std::vector<bool>{false, false, true}));
  EXPECT_EQ(heading(), kBefore);
  EXPECT_EQ(maker(), kBefore);
  EXPECT_EQ(statusLine(), "");
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(file("Model.txt"), "as it was\r\nas it was\r\n" + GetParam().label + "\r\n");
  EXPECT_EQ(machine().files.freeFile(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Replies, Revision,
    ::testing::Values(TextRow{"OfOneLineKeepsHalfItsLineEnd",
                              "ATI3\r\r\n641b09gg.Q2403A 1320676 061804 14:38\r\n\r\nOK\r\n",
                              "641b09gg.Q2403A 1320676 061804 14:38\r\n\r"},
                      TextRow{"WithALeadingBlankKeepsIt", "ATI3\r\r\n 5.43\r\n\r\nOK\r\n",
                              " 5.43\r\n\r"},
                      TextRow{"BehindATextIsLongerByThatText",
                              "junkATI3\r\r\n5.43\r\n\r\nOK\r\nrest", "5.43\r\n\r\nOK\r"},
                      TextRow{"OfNothingIsEmpty", "ATI3\r\r\n\nOK\r\n", ""}),
    RowName());

struct ShortRow {
  std::string name;
  std::string received;
  bool toldManufacturer;  // the reader began before it failed
  bool toldRevision;
};

class ShortIdentity : public Identity, public ::testing::WithParamInterface<ShortRow> {};

TEST_P(ShortIdentity, EndsSilentlyAndLeavesTheTranscript) {
  receiveAll(GetParam().received);
  EXPECT_EQ(transcript(), GetParam().received);
  EXPECT_EQ(maker(), kBefore);
  EXPECT_EQ(revision(), kBefore);
  EXPECT_EQ(heading(),
            GetParam().toldManufacturer ? "ManuFacturer And Model Details " : std::string(kBefore));
  EXPECT_EQ(statusLine(),
            GetParam().toldManufacturer || GetParam().toldRevision ? "" : std::string(kBefore));
  EXPECT_EQ(file("Model.txt"), std::nullopt);
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
}

INSTANTIATE_TEST_SUITE_P(
    Replies, ShortIdentity,
    ::testing::Values(ShortRow{"OfAManufacturerThatIsOkAlone", "ATI0\r\r\nOK\r\n", true, false},
                      ShortRow{"OfARevisionThatIsOkAlone", "ATI3\r\r\nOK\r\n", false, true},
                      ShortRow{"WithAnOldOkInFront", "OK\r\nATI0\r\r\n MODEM\r\n", true, false},
                      ShortRow{"WithoutOkOfTheManufacturer", "ATI0\r\r\n MODEM\r\n", false, false},
                      ShortRow{"WithoutOkOfTheRevision", "ATI3\r\r\n5.43\r\n", false, false},
                      ShortRow{"WithAnErrorToTheManufacturer", "ATI0\r\r\nERROR\r\n", false, false},
                      ShortRow{"WithAnErrorToTheRevision", "ATI3\r\r\nERROR\r\n", false, false},
                      ShortRow{"WithoutEcho", "\r\n MODEM\r\n\r\nOK\r\n", false, false}),
    RowName());

TEST_F(Identity, WhoseFileCantBeWrittenIsShownAllTheSame) {
  std::filesystem::create_directory(folder() / "Model.txt");
  receiveAll("ATI3\r\r\n5.43\r\n\r\nOK\r\n");
  EXPECT_EQ(revision(), "5.43\r\n\r");
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
  EXPECT_EQ(machine().files.freeFile(), 1);
}

TEST_F(Identity, IsWrittenAnewEachTime) {
  receiveAll("ATI3\r\r\na rather long revision\r\n\r\nOK\r\n");
  receiveAll("ATI3\r\r\n5.43\r\n\r\nOK\r\n");
  EXPECT_EQ(file("Model.txt"), "as it was\r\nas it was\r\n5.43\r\n\r\r\n");
}

TEST_F(Identity, ComesInAsManyChunksAsItLikes) {
  receive("ATI0\r", 0);
  receive("\r\n WAVE", 0.02);
  receive("COM MODEM\r\n\r", 0.04);
  receive("\n MULTIBAND  900E  1800 \r\n\r\nO", 0.06);
  receive("K\r\n", 0.08);
  settle();
  EXPECT_EQ(maker(), "WAVECOM MODEM\r\n\r\n MULTIBAND  900E  1800 \r\n\r\n");
  EXPECT_EQ(transcript(), "");
}

TEST_F(Identity, ImeiIsCutOutTenAfterTheEcho) {
  leaveInTranscript(std::string("AT+CGSN\r") + kImeiReply);
  inPanel([this] { form1().ShowImei(1); });
  run(0);
  EXPECT_EQ(panel().form2.Label2.Caption.peek(), "IMEI: ");
  EXPECT_EQ(panel().form2.Label3.Caption.peek(), "012345678901234");
  EXPECT_EQ(transcript(), "");
}

TEST_F(Identity, ImeiOutOfReachIsReportedInABox) {
  leaveInTranscript("text");
  inPanel([this] { form1().ShowImei(-10); });
  run(0);
  EXPECT_EQ(boxes(), Texts{"Invalid procedure call or argument"});
  EXPECT_EQ(panel().form2.Label2.Caption.peek(), "IMEI: ");
  EXPECT_EQ(transcript(), "text");
  EXPECT_FALSE(ended());
}

class IdentityAtStart : public HealthyModemTest {};

TEST_F(IdentityAtStart, FillsTheWindowAndTheFile) {
  startHealthy();
  settle();
  Form2& form = panel().form2;
  EXPECT_EQ(form.Label2.Caption.peek(), "IMEI: ");
  EXPECT_EQ(form.Label3.Caption.peek(), "012345678901234");
  EXPECT_EQ(form.Label4.Caption.peek(), "ManuFacturer And Model Details ");
  EXPECT_EQ(form.Label5.Caption.peek(), "WAVECOM MODEM\r\n\r\n MULTIBAND  900E  1800 \r\n\r\n");
  EXPECT_EQ(form.Label6.Caption.peek(), "641b09gg.Q2403A 1320676 061804 14:38\r\n\r");
  EXPECT_EQ(file("Model.txt"),
            "012345678901234\r\n"
            "WAVECOM MODEM\r\n\r\n MULTIBAND  900E  1800 \r\n\r\n\r\n"
            "641b09gg.Q2403A 1320676 061804 14:38\r\n\r\r\n");
  EXPECT_FALSE(form.Visible.peek());
}

TEST_F(IdentityAtStart, NeverSavesThePort) {
  const std::string bytes = "9600,n,8,1 3 and more\r\n";
  startHealthy(unsolicited("+CPIN: READY"), bytes);
  settle();
  expectWorking();
  EXPECT_TRUE(file("Model.txt").has_value());
  EXPECT_EQ(file("COM.txt"), bytes);
  EXPECT_EQ(machine().files.freeFile(), 1);
  expectAtRest();
}

TEST_F(IdentityAtStart, KeepsTheFileOfTheLastModemWhenTheRevisionIsMissing) {
  startUnlocked();
  const auto saved = file("Model.txt");
  reply("ATI3", kError);
  reply("ATI0", information(" ANOTHER MODEM"));
  click(form1().Command9);
  settle();
  EXPECT_EQ(file("Model.txt"), saved);
  EXPECT_EQ(panel().form2.Label5.Caption.peek(), "ANOTHER MODEM\r\n\r\n");
  EXPECT_EQ(panel().form2.Label6.Caption.peek(), "641b09gg.Q2403A 1320676 061804 14:38\r\n\r");
  expectWorking();
}

}  // namespace
}  // namespace gsm
