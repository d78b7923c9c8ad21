#include <gtest/gtest.h>

#include "phonebook/form3.h"
#include "phonebook/form4.h"
#include "tests/phonebook/download_test.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

// Whatever bytes a name or a number is made of, they are taken as they are.
class LiteralText : public DownloadTest {
 protected:
  void reopenCalls() {
    inPanel([this] { calls().userClose(); });
    settle();
    openCalls();
  }
  void openAdd() {
    layEntries({{"1", "112", "HELP"}});
    layCounts("100", "1");
    openCalls();
    click(calls().Command2);
  }
  void add(const std::string& number, const std::string& name) {
    panel().form4.Text3.Text = number;
    panel().form4.Text4.Text = name;
    click(panel().form4.Command1);
    settle();
  }
  static std::string ringOf(const std::string& number) {
    return unsolicited("RING") + unsolicited("+CLIP: \"" + number + "\",129");
  }
};

// All bytes but the quote, which ends a name, in names of thirteen.
std::vector<std::string> namesOfAllBytes() {
  std::vector<std::string> names(1);
  for (int byte = 0; byte < 256; ++byte) {
    if (byte == '"') continue;
    if (names.back().size() == 13) names.emplace_back();
    names.back() += static_cast<char>(byte);
  }
  return names;
}

std::string numberOf(std::size_t location) { return std::to_string(1000000000 + location); }

TEST_F(LiteralText, EveryByteInADownloadedNameReachesTheListTheTableAndThePrompt) {
  const auto names = namesOfAllBytes();
  ASSERT_EQ(names.size(), 20U);
  answerCounts("20,100");
  BookRows entries;
  Texts listed;
  for (std::size_t i = 0; i < names.size(); ++i) {
    const std::string index = std::to_string(i + 1);
    answerEntry(static_cast<int>(i) + 1, numberOf(i), names[i]);
    entries.push_back({index, numberOf(i), names[i]});
    listed.push_back(index + "  " + numberOf(i) + std::string(10, ' ') + names[i]);
  }
  download();
  EXPECT_EQ(rows(), listed);
  EXPECT_EQ(storedEntries(), entries);
  reopenCalls();
  EXPECT_EQ(rows(), listed);
  EXPECT_EQ(sent(), Texts{});
  for (std::size_t i = 0; i < names.size(); ++i) {
    receive(ringOf(numberOf(i)));
    settle();
    EXPECT_EQ(caller(), "Call Received From  " + names[i]);
  }
}

// The letters of Windows-1252 that have a capital there, and the capitals.
const std::string kSmall =
    "abcdefghijklmnopqrstuvwxyz"
    "\xE0\xE1\xE2\xE3\xE4\xE5\xE6\xE7\xE8\xE9\xEA\xEB\xEC\xED\xEE\xEF\xF0\xF1\xF2\xF3\xF4\xF5\xF6"
    "\xF8\xF9\xFA\xFB\xFC\xFD\xFE\xFF\x9A\x9C\x9E";
const std::string kCapital =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
    "\xC0\xC1\xC2\xC3\xC4\xC5\xC6\xC7\xC8\xC9\xCA\xCB\xCC\xCD\xCE\xCF\xD0\xD1\xD2\xD3\xD4\xD5\xD6"
    "\xD8\xD9\xDA\xDB\xDC\xDD\xDE\x9F\x8A\x8C\x8E";

TEST_F(LiteralText, AnAddedNameStandsInCapitalsAccentedOnesToo) {
  ASSERT_EQ(kSmall.size(), kCapital.size());
  std::string all;
  std::string capitals;
  for (int byte = 1; byte < 256; ++byte) {
    const char character = static_cast<char>(byte);
    const auto letter = kSmall.find(character);
    all += character;
    capitals += letter == std::string::npos ? character : kCapital[letter];
  }
  openAdd();
  for (std::size_t from = 0; from < all.size(); from += 14) {
    const std::string name = all.substr(from, 14);
    const std::string shown = capitals.substr(from, 14);
    add("113", name);
    EXPECT_EQ(sent(), Texts{"AT+CPBW=" + used() + ",113,,\" " + name + "\"\r"});
    EXPECT_EQ(rows().back(), used() + "  113" + std::string(17, ' ') + shown);
    EXPECT_EQ(storedEntries().back(), (BookRow{used(), "113", shown}));
    click(calls().Command2);
  }
}

struct TextRow {
  std::string name;
  std::string text;
  std::string capitals;
};

class OddText : public LiteralText, public ::testing::WithParamInterface<TextRow> {};

TEST_P(OddText, AsAnAddedNameGoesOutAsTypedAndStandsInCapitals) {
  openAdd();
  add("113", GetParam().text);
  EXPECT_EQ(sent(), Texts{"AT+CPBW=2,113,,\" " + GetParam().text + "\"\r"});
  EXPECT_EQ(rows().back(), "2  113                 " + GetParam().capitals);
  EXPECT_EQ(storedEntries().back(), (BookRow{"2", "113", GetParam().capitals}));
  route(ringOf("113"));
  EXPECT_EQ(caller(), "Call Received From  " + GetParam().capitals);
}

TEST_P(OddText, AsAnAddedNumberGoesOutAsTyped) {
  openAdd();
  add(GetParam().text, "Al");
  EXPECT_EQ(sent(), Texts{"AT+CPBW=2," + GetParam().text + ",,\" Al\"\r"});
  EXPECT_EQ(rows().back(),
            "2  " + GetParam().text + std::string(20 - GetParam().text.size(), ' ') + "AL");
  EXPECT_EQ(storedEntries().back(), (BookRow{"2", GetParam().text, "AL"}));
  EXPECT_EQ(callStatus(), "New Entry  " + GetParam().text);
  EXPECT_EQ(boxes(), Texts{});
}

TEST_P(OddText, AsADialledNumberGoesOutAsItStands) {
  openAdd();
  calls().Text1.Text = GetParam().text;
  inPanel([this] { calls().Show(); });
  run(0);
  click(calls().Command1);
  run(3);
  EXPECT_EQ(sent(), Texts{"ATD" + GetParam().text + ";\r"});
  EXPECT_EQ(callStatus(), "Dialing...." + GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Rows, OddText,
                         ::testing::Values(TextRow{"WithMarkup", "<b>x</b>", "<B>X</B>"},
                                           TextRow{"WithAnEntity", "a&amp;b", "A&AMP;B"},
                                           TextRow{"WithAQuote", "a\"b\"", "A\"B\""},
                                           TextRow{"WithAnApostrophe", "o'hara", "O'HARA"},
                                           TextRow{"WithTwoApostrophes", "'';--", "'';--"},
                                           TextRow{"WithACommaAndASemicolon", "a,b;c", "A,B;C"},
                                           TextRow{"WithAPercentSign", "%1%s", "%1%S"},
                                           TextRow{"WithALineEnd", "a\r\nb", "A\r\nB"}),
                         RowName());

TEST_F(LiteralText, ADialledNumberIsShownWithoutTheBlanksAroundItButSentWithThem) {
  openAdd();
  calls().Text1.Text = "  12 3 ";
  inPanel([this] { calls().Show(); });
  run(0);
  click(calls().Command1);
  run(3);
  EXPECT_EQ(sent(), Texts{"ATD  12 3 ;\r"});
  EXPECT_EQ(callStatus(), "Dialing....12 3");
}

TEST_F(LiteralText, ADeletedIndexWithAnApostropheEndsAfterTheWindowsCounts) {
  layEntries({{"1", "111", "ONE"}, {"2'", "112", "TWO"}});
  layCounts("100", "2");
  openCalls();
  reply("AT+CPBW=2'", kOk);
  select(1);
  click(calls().Command3);
  settle();
  EXPECT_EQ(callStatus(), "Number Deleted");
  EXPECT_EQ(rows().size(), 1U);
  EXPECT_EQ(used(), "1");
  EXPECT_EQ(storedEntries().size(), 2U);
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "2"}}));
  EXPECT_EQ(dialBox(), "112");
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
}

struct CountRow {
  std::string name;
  std::string used;
  std::string total;
};

class OddCount : public LiteralText, public ::testing::WithParamInterface<CountRow> {};

TEST_P(OddCount, KeepsAnEntryFromBeingAdded) {
  openAdd();
  calls().Text2.Text = GetParam().used;
  calls().Text4.Text = GetParam().total;
  add("113", "Al");
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_EQ(storedEntries().size(), 1U);
  EXPECT_TRUE(panel().form4.Visible.peek());
  EXPECT_FALSE(ended());
}

INSTANTIATE_TEST_SUITE_P(Rows, OddCount,
                         ::testing::Values(CountRow{"WithAnApostrophe", "1'", "100"},
                                           CountRow{"OfAWord", "one", "100"},
                                           CountRow{"OfNoTotal", "1", ""},
                                           CountRow{"OfATotalInWords", "1", "all"},
                                           CountRow{"BeyondFifteenDigits", "1e15", "2e15"}),
                         RowName());

}  // namespace
}  // namespace gsm
