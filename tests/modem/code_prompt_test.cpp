#include "tests/modem/code_prompt_test.h"

#include <gtest/gtest.h>

#include "panel/form1.h"

namespace gsm {
namespace {

// What the prompt sends, by what stands in it and what of it is on view.
class CodePrompt : public CodePromptTest {};

TEST_F(CodePrompt, MakesTheProgramsFolderTheCurrentOne) {
  startAtPrompt("SIM PIN");
  EXPECT_EQ(machine().files.path("Model.txt"), folder() / "Model.txt");
}

TEST_F(CodePrompt, LimitsWhatCanBeTyped) {
  startAtPrompt("SIM PUK");
  type(prompt().Text1, "12345");
  type(prompt().Text2, "123456789");
  EXPECT_EQ(prompt().Text1.Text.peek(), "1234");
  EXPECT_EQ(prompt().Text2.Text.peek(), "12345678");
}

TEST_F(CodePrompt, SendsThePinAndEmptiesItsBox) {
  startAtPrompt("SIM PIN");
  enterPin("1234");
  EXPECT_EQ(sent(), Texts{"AT+CPIN=1234\r"});
  EXPECT_EQ(prompt().Text1.Text.peek(), "1234");
  run(1.9);
  EXPECT_EQ(prompt().Text1.Text.peek(), "1234");
  run(0.2);
  EXPECT_EQ(prompt().Text1.Text.peek(), "");
  EXPECT_EQ(parts(), kPinForm);
  EXPECT_TRUE(prompt().Visible.peek());
  expectAtRest();
}

TEST_F(CodePrompt, SendsThePukWithTheNewPinAndEmptiesBothBoxes) {
  startAtPrompt("SIM PUK");
  enterPuk("12345678", "4321");
  EXPECT_EQ(sent(), Texts{"AT+CPIN=12345678,4321\r"});
  run(1.9);
  EXPECT_EQ(prompt().Text2.Text.peek(), "12345678");
  run(0.2);
  EXPECT_EQ(prompt().Text1.Text.peek(), "");
  EXPECT_EQ(prompt().Text2.Text.peek(), "");
  EXPECT_EQ(parts(), kPukForm);
  expectAtRest();
}

TEST_F(CodePrompt, TakesTheBlanksAroundAPinAway) {
  startAtPrompt("SIM PIN");
  enterPin(" 12 ");
  EXPECT_EQ(sent(), Texts{"AT+CPIN=12\r"});
}

TEST_F(CodePrompt, SendsAPinOfBlanksAsAnEmptyOne) {
  startAtPrompt("SIM PIN");
  enterPin("    ");
  EXPECT_EQ(sent(), Texts{"AT+CPIN=\r"});
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(CodePrompt, TakesTheBlanksAroundBothCodesAway) {
  startAtPrompt("SIM PUK");
  enterPuk(" 12345 ", " 12 ");
  EXPECT_EQ(sent(), Texts{"AT+CPIN=12345,12\r"});
}

TEST_F(CodePrompt, WithoutAPinSaysSoAndSendsNothing) {
  startAtPrompt("SIM PIN");
  click(prompt().Command1);
  expectBox("Enter Valid PIN Number", "GSM");
  settle();
  EXPECT_EQ(sent(), Texts{});
  EXPECT_TRUE(prompt().Visible.peek());
  EXPECT_EQ(parts(), kPinForm);
}

struct EmptyRow {
  std::string name;
  std::string puk;
  std::string pin;
};
class EmptyPukForm : public CodePrompt, public ::testing::WithParamInterface<EmptyRow> {};

TEST_P(EmptyPukForm, SaysSoAndSendsNothing) {
  startAtPrompt("SIM PUK");
  enterPuk(GetParam().puk, GetParam().pin);
  expectBox("Enter Valid PUK/PIN Number", "GSM");
  settle();
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(prompt().Text2.Text.peek(), GetParam().puk);
  EXPECT_EQ(prompt().Text1.Text.peek(), GetParam().pin);
  EXPECT_EQ(parts(), kPukForm);
  EXPECT_TRUE(prompt().Visible.peek());
}

INSTANTIATE_TEST_SUITE_P(Boxes, EmptyPukForm,
                         ::testing::Values(EmptyRow{"WithoutAPuk", "", "1234"},
                                           EmptyRow{"WithoutAPin", "12345678", ""},
                                           EmptyRow{"WithoutBoth", "", ""}),
                         RowName());

TEST_F(CodePrompt, ClearsTheTranscriptBeforeThePin) {
  startAtPrompt("SIM PIN");
  inPanel([this] { form1().Text1.Text = "junk"; });
  enterPin("1234");
  EXPECT_EQ(transcript(), "");
}

TEST_F(CodePrompt, LeavesTheTranscriptBeforeThePuk) {
  startAtPrompt("SIM PUK");
  inPanel([this] { form1().Text1.Text = "junk"; });
  enterPuk("12345678", "1234");
  EXPECT_EQ(transcript(), "junk");
}

TEST_F(CodePrompt, WithThePortClosedEndsSilently) {
  startAtPrompt("SIM PIN");
  closePort();
  enterPin("1234");
  settle();
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(prompt().Text1.Text.peek(), "1234");
  EXPECT_TRUE(prompt().Visible.peek());
  expectAtRest();
}

TEST_F(CodePrompt, ClosedByItsBoxIsGoneUntilTheNextStart) {
  startAtPrompt("SIM PIN");
  close(prompt());
  EXPECT_FALSE(prompt().isLoaded());
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_EQ(sent(), Texts{});
  expectLocked();
  click(form1().Command9);
  settle();
  EXPECT_TRUE(prompt().Visible.peek());
  EXPECT_EQ(parts(), kPinForm);
}

struct PartsRow {
  std::string name;
  std::vector<bool> parts;
  Texts sends;
};
class PromptParts : public CodePrompt, public ::testing::WithParamInterface<PartsRow> {};

TEST_P(PromptParts, DecideWhatIsSent) {
  startAtPrompt("SIM PUK");
  type(prompt().Text2, "12345678");
  type(prompt().Text1, "1234");
  inPanel([this] {
    prompt().Label1.Visible = GetParam().parts[0];
    prompt().Text1.Visible = GetParam().parts[1];
    prompt().Label2.Visible = GetParam().parts[2];
    prompt().Text2.Visible = GetParam().parts[3];
  });
  click(prompt().Command1);
  settle();
  EXPECT_EQ(sent(), GetParam().sends);
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_EQ(parts(), GetParam().parts);
}

// Two of the combinations send something, all others nothing.
std::vector<PartsRow> allCombinations() {
  std::vector<PartsRow> rows;
  for (unsigned bits = 0; bits < 16; ++bits) {
    PartsRow row;
    for (unsigned place = 0; place < 4; ++place) {
      const bool on = (bits >> (3 - place) & 1) != 0;
      row.parts.push_back(on);
      row.name += on ? "On" : "Off";
    }
    if (row.name == "OnOnOffOff") row.sends = {"AT+CPIN=1234\r"};
    if (row.name == "OnOnOnOn") row.sends = {"AT+CPIN=12345678,1234\r"};
    rows.push_back(row);
  }
  return rows;
}

INSTANTIATE_TEST_SUITE_P(Combinations, PromptParts, ::testing::ValuesIn(allCombinations()),
                         RowName());

// In which of the panel's modes a reply to a code is judged at all.
struct ModeRow {
  std::string name;
  bool pinFlag;
  bool pukFlag;
  Texts log;
};
class CodeMode : public CodePrompt, public ::testing::WithParamInterface<ModeRow> {};

TEST_P(CodeMode, DecidesHowARefusalIsTaken) {
  startAtPrompt("SIM PIN");
  answerCodes({kError});
  inPanel([this] {
    form1().Text2.Visible = GetParam().pinFlag;
    form1().Text3.Visible = GetParam().pukFlag;
  });
  enterPin("1234");
  settle();
  EXPECT_EQ(logAfterTheCheck(), GetParam().log);
  EXPECT_EQ(refusals(), GetParam().name == "OfThePin" ? "1" : "0");
  EXPECT_EQ(transcript(), GetParam().log.empty() ? "AT+CPIN=1234\r\r\nERROR\r\n" : "");
}

INSTANTIATE_TEST_SUITE_P(
    Modes, CodeMode,
    ::testing::Values(ModeRow{"OfThePin", true, false, {"Invalid PIN Entered"}},
                      ModeRow{"OfThePuk", false, true, {"Invalid PUK Entered "}},
                      ModeRow{"OfBothIgnoresIt", true, true, {}},
                      ModeRow{"OfNoneIgnoresIt", false, false, {}}),
    RowName());

TEST_F(CodePrompt, IgnoresAnAcceptanceInNoMode) {
  startAtPrompt("SIM PIN");
  answerCodes({kOk});
  inPanel([this] { form1().Text3.Visible = true; });
  enterPin("1234");
  settle();
  EXPECT_EQ(sent(), Texts{"AT+CPIN=1234\r"});
  EXPECT_TRUE(prompt().Visible.peek());
  expectLocked();
}

}  // namespace
}  // namespace gsm
