#include "simulator/dialogue/command.h"

#include <gtest/gtest.h>

#include <random>

namespace gsm::simulator {
namespace {

// The commands in one text: name, form as ! ? = or =?, and the values in brackets.
std::string outline(std::string_view body) {
  std::string text;
  for (const Command& command : parseCommands(body)) {
    if (!text.empty()) text += " ";
    text += command.name;
    constexpr const char* kForms[] = {"!", "?", "=", "=?"};
    text += kForms[static_cast<int>(command.form)];
    for (std::size_t i = 0; i < command.arguments.size(); ++i) {
      text += "[" + std::string(command.arguments.text(i)) + "]";
    }
  }
  return text;
}

TEST(ParseCommands, FindsTheFourForms) {
  EXPECT_EQ(outline("+CSQ"), "+CSQ!");
  EXPECT_EQ(outline("+CREG?"), "+CREG?");
  EXPECT_EQ(outline("+CREG=1"), "+CREG=[1]");
  EXPECT_EQ(outline("+CREG=?"), "+CREG=?");
}

TEST(ParseCommands, FindsNothingInNothing) { EXPECT_EQ(outline(""), ""); }

TEST(ParseCommands, SplitsBasicCommandsByLetterAndDigits) {
  EXPECT_EQ(outline("E1V1Q0&C1%C2\\N0Z"), "E![1] V![1] Q![0] &C![1] %C![2] \\N![0] Z!");
  EXPECT_EQ(outline("%C?"), "%C?");
}

TEST(ParseCommands, PutsTheDigitsOfARegisterInItsName) {
  EXPECT_EQ(outline("S0?"), "S0?");
  EXPECT_EQ(outline("S0=2E1"), "S0=[2] E![1]");
  EXPECT_EQ(outline("S0="), "S0=");
}

TEST(ParseCommands, JoinsExtendedCommandsBySemicolons) {
  EXPECT_EQ(outline("E0+CMGF=0;+CMGR=1;"), "E![0] +CMGF=[0] +CMGR=[1]");
}

TEST(ParseCommands, LeavesSemicolonsAndCommasInQuotesAlone) {
  EXPECT_EQ(outline("+CPBW=,\"1;2,3\",129;+CSQ"), "+CPBW=[][1;2,3][129] +CSQ!");
}

TEST(ParseCommands, IgnoresCaseAndBlanksOutsideQuotes) {
  EXPECT_EQ(outline("e1 + cmgr = 5"), "E![1] +CMGR=[5]");
  EXPECT_EQ(outline("+cscs=\"a b\""), "+CSCS=[a b]");
}

TEST(ParseCommands, GivesDialTheWholeRest) {
  EXPECT_EQ(outline("D0146290800;"), "D![0146290800;]");
}

TEST(ParseCommands, GivesABadlyFormedCommandANameThatNoneHas) {
  EXPECT_EQ(outline("+CREG?x"), "+CREG?X!");
  EXPECT_EQ(outline("&C=1"), "&C! =[1]");
  EXPECT_EQ(outline(";"), "!");
}

TEST(ParseCommands, ComesToAnEndOnEveryText) {
  std::mt19937_64 generator(7);
  for (int run = 0; run < 5000; ++run) {
    std::string body;
    for (std::size_t size = generator() % 40; body.size() < size;) {
      body += "+&%\\SDEI=?;,\" 019az\x01\xFF"[generator() % 22];
    }
    EXPECT_LE(parseCommands(body).size(), body.size());
  }
}

TEST(Arguments, TellMissingEmptyQuotedAndPlainValuesApart) {
  const Arguments arguments("1,,\"2\",x");
  EXPECT_EQ(arguments.size(), 4u);
  EXPECT_EQ(arguments.number(0), 1);
  EXPECT_FALSE(arguments.has(1));
  EXPECT_EQ(arguments.number(2), std::nullopt);
  EXPECT_EQ(arguments.text(2), "2");
  EXPECT_EQ(arguments.number(3), std::nullopt);
  EXPECT_FALSE(arguments.has(4));
  EXPECT_EQ(arguments.number(4), std::nullopt);
}

}  // namespace
}  // namespace gsm::simulator
