#include "controls/text_box.h"

#include <cctype>

#include "tests/controls/window_fixture.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

class TextBoxTest : public WindowTest {
 protected:
  TextBox& box() { return window.Text1; }
  TextBox& lines() { return window.Text3; }
  TextBox& shortBox() { return window.Text2; }  // takes four characters
};

TEST_F(TextBoxTest, AnAssignedTextIsCutToTheLimit) {
  shortBox().Text = "1234567";
  EXPECT_EQ(shortBox().Text.get(), "1234");
  shortBox().Text = "12";
  EXPECT_EQ(shortBox().Text.get(), "12");
}

TEST_F(TextBoxTest, ALimitOfZeroIsNone) {
  const std::string text(100'000, 'x');
  box().Text = text;
  EXPECT_EQ(box().Text.get(), text);
}

TEST_F(TextBoxTest, ALimitThatCodeSetsCutsTheNextTextAlone) {
  box().Text = "123456";
  box().MaxLength = 3;
  EXPECT_EQ(box().Text.get(), "123456");
  box().Text = "abcdef";
  EXPECT_EQ(box().Text.get(), "abc");
}

TEST_F(TextBoxTest, TheUserTypesAtTheEnd) {
  EXPECT_TRUE(box().userType(" more"));
  EXPECT_EQ(box().Text.get(), "design more");
  EXPECT_EQ(box().SelStart.get(), 11);
}

TEST_F(TextBoxTest, AFullBoxTakesNoMoreKeys) {
  EXPECT_TRUE(shortBox().userType("123456"));
  EXPECT_EQ(shortBox().Text.get(), "1234");
  EXPECT_TRUE(shortBox().userType("\b\b9"));
  EXPECT_EQ(shortBox().Text.get(), "129");
}

TEST_F(TextBoxTest, TheBackspaceKeyTakesTheLastCharacterIfThereIsOne) {
  EXPECT_TRUE(shortBox().userType("ab\b\b\b\bc"));
  EXPECT_EQ(shortBox().Text.get(), "c");
}

TEST_F(TextBoxTest, ErasingEmptiesTheBox) {
  EXPECT_TRUE(box().userErase());
  EXPECT_EQ(box().Text.get(), "");
  EXPECT_EQ(box().SelStart.get(), 0);
}

TEST_F(TextBoxTest, AnEditOfTheViewIsCutAndKeepsTheCaretInsideTheText) {
  EXPECT_TRUE(shortBox().userEdit("123456", 2));
  EXPECT_EQ(shortBox().Text.get(), "1234");
  EXPECT_EQ(shortBox().SelStart.get(), 2);
}

struct EditRow {
  std::string name;
  std::string before;
  int limit;
  std::string edit;
  std::string text;
};

class TextBoxEdit : public TextBoxTest, public ::testing::WithParamInterface<EditRow> {};

TEST_P(TextBoxEdit, LosesWhatItPutsInBeyondTheLimitAlone) {
  TextBox& lines = window.Text3;
  lines.Text = GetParam().before;
  lines.MaxLength = GetParam().limit;
  EXPECT_TRUE(lines.userEdit(GetParam().edit, 0));
  EXPECT_EQ(lines.Text.get(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TextBoxEdit,
    ::testing::Values(EditRow{"NothingWithoutALimit", "1234", 0, "12x34", "12x34"},
                      EditRow{"NothingUpToTheLimit", "1234", 5, "12x34", "12x34"},
                      EditRow{"AKeyInTheMiddleOfAFullBox", "1234", 4, "12x34", "1234"},
                      EditRow{"AKeyBeforeAFullBox", "1234", 4, "x1234", "1234"},
                      EditRow{"AKeyBehindAFullBox", "1234", 4, "1234x", "1234"},
                      EditRow{"TheSameKeyAgain", "1111", 4, "11111", "1111"},
                      EditRow{"TheEndOfAPasteInTheMiddle", "1234", 6, "12abc34", "12ab34"},
                      EditRow{"TheEndOfAPasteOverASelection", "1234", 4, "1abc4", "1ab4"},
                      EditRow{"TheEndOfAWholeNewText", "1234", 4, "abcdef", "abcd"},
                      EditRow{"NothingStandingBeyondTheLimitWhenSomeGoes", "123456", 3, "12456",
                              "12456"},
                      EditRow{"AKeyIntoATextBeyondTheLimit", "123456", 3, "123x456", "123456"},
                      EditRow{"AKeyOverASelectionThatLeavesTooMuch", "123456", 3, "12x56", "1256"},
                      EditRow{"NothingOnceThereIsRoomAgain", "123456", 3, "x1", "x1"},
                      EditRow{"ALineEndThatFitsByHalf", "1234", 5, "1234\r\n", "1234"},
                      EditRow{"NoLineEndThatFits", "123", 5, "123\r\nx", "123\r\n"},
                      EditRow{"NoLineEndThatStoodThere", "1\r\n23", 5, "1x\r\n23", "1\r\n23"}),
    RowName());

TEST_F(TextBoxTest, TheKeyFilterSeesEachKeyAndMayDiscardIt) {
  shortBox().KeyPress = [this](int key) {
    note(std::to_string(key));
    return std::isdigit(key) != 0 || key == TextBox::kBackspace ? key : 0;
  };
  EXPECT_TRUE(shortBox().userType("1a2\b"));
  EXPECT_EQ(takeNotes(), Notes({"49", "97", "50", "8"}));
  EXPECT_EQ(shortBox().Text.get(), "1");
}

TEST_F(TextBoxTest, TheKeyFilterMayReplaceAKey) {
  shortBox().KeyPress = [](int key) { return std::toupper(key); };
  shortBox().userType("ab");
  EXPECT_EQ(shortBox().Text.get(), "AB");
}

TEST_F(TextBoxTest, TheKeyFilterSeesHighCharactersAsTheirCodes) {
  shortBox().KeyPress = [this](int key) {
    note(std::to_string(key));
    return key;
  };
  shortBox().userType("\x80\xFF");
  EXPECT_EQ(takeNotes(), Notes({"128", "255"}));
  EXPECT_EQ(shortBox().Text.get(), "\x80\xFF");
}

TEST_F(TextBoxTest, AnAssignmentPassesTheKeyFilterBy) {
  shortBox().KeyPress = [](int) { return 0; };
  shortBox().Text = "abc";
  EXPECT_EQ(shortBox().Text.get(), "abc");
}

TEST_F(TextBoxTest, ChangeRunsWithEachChangeByCodeOrUser) {
  shortBox().Change = [this] { note(shortBox().Text); };
  shortBox().Text = "a";
  shortBox().Text = "a";
  shortBox().userType("bc");
  shortBox().userType("\b");
  shortBox().userErase();
  EXPECT_EQ(takeNotes(), Notes({"a", "ab", "abc", "ab", ""}));
}

TEST_F(TextBoxTest, AKeyThatChangesNothingRunsNoChange) {
  noteEach(shortBox().Change, "change");
  shortBox().userType("\b");
  shortBox().Text = "1234";
  takeNotes();
  shortBox().userType("5");
  EXPECT_EQ(takeNotes(), Notes());
}

TEST_F(TextBoxTest, TypingStopsWhereAHandlerTakesTheBoxAway) {
  box().Text = "";
  box().Change = [this] {
    if (box().Text == "ab") box().Visible = false;
  };
  box().userType("abcd");
  EXPECT_EQ(box().Text.get(), "ab");
}

TEST_F(TextBoxTest, TypingWhoseLastKeyTakesTheBoxAwayWasDone) {
  box().Text = "";
  box().Change = [this] { box().Visible = false; };
  EXPECT_TRUE(box().userType("a"));
  EXPECT_EQ(box().Text.get(), "a");
}

TEST_F(TextBoxTest, TypingStopsWhereAHandlerClosesTheWindow) {
  box().Text = "";
  box().Change = [this] { window.Unload(); };
  box().userType("abcd");
  EXPECT_FALSE(window.isLoaded());
}

TEST_F(TextBoxTest, TheCaretStaysWithinTheText) {
  box().Text = "12345";
  box().SelStart = 3;
  EXPECT_EQ(box().SelStart.get(), 3);
  box().SelStart = 99;
  EXPECT_EQ(box().SelStart.get(), 5);
  box().SelStart = -1;
  EXPECT_EQ(box().SelStart.get(), 0);
}

TEST_F(TextBoxTest, TheCaretFallsToTheBeginningWhenTheTextIsCleared) {
  box().Text = "12345";
  box().SelStart = 3;
  box().Text = "";
  EXPECT_EQ(box().SelStart.get(), 0);
  box().Text = "12345";
  EXPECT_EQ(box().SelStart.get(), 0);
  box().userErase();
  EXPECT_EQ(box().SelStart.get(), 0);
}

TEST_F(TextBoxTest, TheCaretStaysWithinAShorterText) {
  box().Text = "12345";
  box().SelStart = 4;
  box().Text = "123";
  EXPECT_EQ(box().SelStart.get(), 3);
  EXPECT_TRUE(box().userEdit("ab\1", 3));
  EXPECT_EQ(box().SelStart.get(), 2);
  box().Change = [this] {
    if (!box().Text.empty()) box().Text = "";
  };
  box().userType("x");
  EXPECT_EQ(box().SelStart.get(), 0);
}

TEST_F(TextBoxTest, AChangeSeesTheCaretWithinTheText) {
  box().Text = "12345";
  box().SelStart = 5;
  box().Change = [this] { note(std::to_string(box().SelStart)); };
  box().Text = "";
  EXPECT_EQ(takeNotes(), Notes({"0"}));
}

struct InputRow {
  std::string name;
  std::string given;
  std::string taken;
};

class LineInput : public TextBoxTest, public ::testing::WithParamInterface<InputRow> {
 protected:
  std::string given() { return GetParam().given; }
  std::string taken() { return GetParam().taken; }
};

TEST_P(LineInput, IsTakenByABoxAsTyped) {
  box().Text = "";
  EXPECT_TRUE(box().userType(given()));
  EXPECT_EQ(box().Text.get(), taken());
  EXPECT_EQ(box().SelStart.get(), static_cast<int>(taken().size()));
}

TEST_P(LineInput, IsTakenByABoxAsPasted) {
  EXPECT_TRUE(box().userEdit(given(), static_cast<int>(given().size())));
  EXPECT_EQ(box().Text.get(), taken());
  EXPECT_EQ(box().SelStart.get(), static_cast<int>(taken().size()));
}

TEST_P(LineInput, IsTakenByAnEditableComboAsTypedAndPasted) {
  EXPECT_TRUE(window.Combo1.userType(given()));
  EXPECT_EQ(window.Combo1.Text.get(), taken());
  EXPECT_TRUE(window.Combo1.userEdit(given()));
  EXPECT_EQ(window.Combo1.Text.get(), taken());
}

TEST_P(LineInput, IsKeptWholeWhereAHandlerAssignsIt) {
  box().Text = given();
  EXPECT_EQ(box().Text.get(), given());
  window.Combo1.Text = given();
  EXPECT_EQ(window.Combo1.Text.get(), given());
  // What the user types afterwards touches nothing of it.
  box().userType("x");
  EXPECT_EQ(box().Text.get(), given() + "x");
  window.Combo1.userType("x");
  EXPECT_EQ(window.Combo1.Text.get(), given() + "x");
}

TEST_P(LineInput, IsKeptWholeByABoxOfManyLines) {
  EXPECT_TRUE(lines().userEdit(given(), 0));
  EXPECT_EQ(lines().Text.get(), given());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LineInput,
    ::testing::Values(
        InputRow{.name = "OfPlainText", .given = "Al'\"b, 1", .taken = "Al'\"b, 1"},
        InputRow{.name = "OfACommandAfterALine", .given = "1\rATD112;\r", .taken = "1"},
        InputRow{.name = "OfALineFeed", .given = "12\n34", .taken = "12"},
        InputRow{.name = "OfBothLineEnds", .given = "12\r\n34", .taken = "12"},
        InputRow{.name = "OfALineEndAlone", .given = "\r", .taken = ""},
        InputRow{.name = "OfALineEndAtOnce", .given = "\nATH", .taken = ""},
        InputRow{.name = "OfATab", .given = "1\t2", .taken = "12"},
        InputRow{.name = "OfTheByteZero", .given = std::string("1\0002", 3), .taken = "12"},
        InputRow{.name = "OfTheEndOfAMessage", .given = "1\x1A\x1B\x7F", .taken = "1"},
        InputRow{.name = "OfHighCharacters", .given = "\x80\x9F\xFF", .taken = "\x80\x9F\xFF"}),
    RowName());

TEST_F(TextBoxTest, ABoxOfManyLinesTakesLineEndsAsTyped) {
  EXPECT_TRUE(lines().userType("one\r\ntwo\tthree"));
  EXPECT_EQ(lines().Text.get(), "one\r\ntwo\tthree");
}

TEST_F(TextBoxTest, EnterPutsAWholeLineEndIntoABoxOfLinesHoweverItIsSpelled) {
  EXPECT_TRUE(lines().userType("a\nb\rc\r\nd\n\r"));
  EXPECT_EQ(lines().Text.get(), "a\r\nb\r\nc\r\nd\r\n\r\n");
  EXPECT_TRUE(lines().userType("\b\b\b"));
  EXPECT_EQ(lines().Text.get(), "a\r\nb\r\nc\r\n");
}

TEST_F(TextBoxTest, ALineEndThatOnlyHalfFitsIsRefusedByABoxOfLines) {
  lines().MaxLength = 2;
  EXPECT_TRUE(lines().userType("a\nb"));
  EXPECT_EQ(lines().Text.get(), "ab");
}

TEST_F(TextBoxTest, EveryControlCharacterIsDroppedOneByOne) {
  for (int code = 0; code < 256; ++code) {
    const char character = static_cast<char>(code);
    if (character == '\r' || character == '\n' || character == TextBox::kBackspace) continue;
    const bool isControl = code < 0x20 || code == 0x7F;
    const std::string keys = std::string("a") + character + "b";
    box().Text = "";
    box().userType(keys);
    EXPECT_EQ(box().Text.get(), isControl ? "ab" : keys) << code;
    box().userEdit(keys, 0);
    EXPECT_EQ(box().Text.get(), isControl ? "ab" : keys) << code;
  }
}

TEST_F(TextBoxTest, TheKeyFilterSeesNoControlCharacterButBackspace) {
  shortBox().KeyPress = [this](int key) {
    note(std::to_string(key));
    return key;
  };
  shortBox().userType("1\t\x1A\b2\r3");
  EXPECT_EQ(takeNotes(), Notes({"49", "8", "50"}));
}

TEST_F(TextBoxTest, TheLimitCountsWhatIsTaken) {
  shortBox().userEdit("1\t2\t3\t4\t5", 0);
  EXPECT_EQ(shortBox().Text.get(), "1234");
}

TEST_F(TextBoxTest, TextsOfEveryByteAreKept) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  box().Text = bytes;
  EXPECT_EQ(box().Text.get(), bytes);
}

}  // namespace
}  // namespace gsm
