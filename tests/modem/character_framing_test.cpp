#include <gtest/gtest.h>

#include "modem/form20.h"
#include "panel/form1.h"
#include "settings/form15.h"
#include "tests/support/healthy_modem_test.h"
#include "tests/support/open_port_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

struct FramingRow {
  std::string name;
  std::string text;
  std::string words;  // on the panel
  int format;         // the number of the option that is set among 1 to 7, 0 for none
  int parity;         // the same among 8 to 12
};

class Framing : public OpenPortTest {
 protected:
  std::vector<OptionButton*> options() {
    Form15& form = panel().form15;
    return {&form.Option1, &form.Option2,  &form.Option3,  &form.Option4,
            &form.Option5, &form.Option6,  &form.Option7,  &form.Option8,
            &form.Option9, &form.Option10, &form.Option11, &form.Option12};
  }
  // The numbers of the framing options that are set.
  std::vector<int> set() {
    std::vector<int> numbers;
    int number = 0;
    for (const OptionButton* option : options()) {
      ++number;
      if (option->Value.peek()) numbers.push_back(number);
    }
    return numbers;
  }
  static std::vector<int> numbers(int format, int parity) {
    std::vector<int> all;
    if (format != 0) all.push_back(format);
    if (parity != 0) all.push_back(parity);
    return all;
  }

  void read(const std::string& text, void (Form1::*reader)()) {
    leaveInTranscript(text);
    inPanel([this, reader] { (form1().*reader)(); });
    settle();
  }
};

class CharacterFraming : public Framing, public ::testing::WithParamInterface<FramingRow> {};

TEST_P(CharacterFraming, IsShownAndUnlocksThePanel) {
  read(GetParam().text, &Form1::ShowCharacterFraming);
  EXPECT_EQ(form1().Label7.Caption.peek(), GetParam().words);
  EXPECT_EQ(set(), numbers(GetParam().format, GetParam().parity));
  EXPECT_TRUE(panel().form15.Option28.Value.peek());
  EXPECT_FALSE(form1().Frame5.Visible.peek());
  EXPECT_TRUE(form1().Command1.Enabled.peek());
  EXPECT_EQ(transcript(), "");
}

std::string reportedFraming(const std::string& digits) {
  return "AT+ICF?\r\r\n+ICF: " + digits + "\r\n\r\nOK\r\n";
}

INSTANTIATE_TEST_SUITE_P(
    Formats, CharacterFraming,
    ::testing::Values(
        FramingRow{"AutoDetect", reportedFraming("0,4"),
                   "Character Framing:Character Framing:Auto Detect Parity:NoneECHO:Enabled", 1,
                   12},
        FramingRow{"EightTwo", reportedFraming("1,4"),
                   "Character Framing:8 Data,2 Stop Parity:NoneECHO:Enabled", 2, 12},
        FramingRow{"EightParityOne", reportedFraming("2,4"),
                   "Character Framing:8 Data,1 Parity,1 Stop Parity:NoneECHO:Enabled", 3, 12},
        FramingRow{"EightOne", reportedFraming("3,4"),
                   "Character Framing:8 Data,1 Stop Parity:NoneECHO:Enabled", 4, 12},
        FramingRow{"SevenTwo", reportedFraming("4,4"),
                   "Character Framing:7 Data,2 Stop Parity:NoneECHO:Enabled", 5, 12},
        FramingRow{"SevenParityOne", reportedFraming("5,4"),
                   "Character Framing:7 Data,1 Parity,1 Stop Parity:NoneECHO:Enabled", 6, 12},
        FramingRow{"SevenOne", reportedFraming("6,4"),
                   "Character Framing:7 Data,1 Stop Parity:NoneECHO:Enabled", 7, 12},
        FramingRow{"Unknown", reportedFraming("7,4"), "Character Framing: Parity:NoneECHO:Enabled",
                   0, 12}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Parities, CharacterFraming,
    ::testing::Values(FramingRow{"Odd", reportedFraming("3,0"),
                                 "Character Framing:8 Data,1 Stop Parity:OddECHO:Enabled", 4, 8},
                      FramingRow{"Even", reportedFraming("3,1"),
                                 "Character Framing:8 Data,1 Stop Parity:EvenECHO:Enabled", 4, 9},
                      FramingRow{"Mark", reportedFraming("3,2"),
                                 "Character Framing:8 Data,1 Stop Parity:MarkECHO:Enabled", 4, 10},
                      FramingRow{"Space", reportedFraming("3,3"),
                                 "Character Framing:8 Data,1 Stop Parity:SpaceECHO:Enabled", 4, 11},
                      FramingRow{"None", reportedFraming("3,4"),
                                 "Character Framing:8 Data,1 Stop Parity:NoneECHO:Enabled", 4, 12},
                      FramingRow{"Unknown", reportedFraming("3,5"),
                                 "Character Framing:8 Data,1 Stop ECHO:Enabled", 4, 0}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    OddReplies, CharacterFraming,
    ::testing::Values(
        FramingRow{"BothUnknown", reportedFraming("9,9"), "Character Framing: ECHO:Enabled", 0, 0},
        FramingRow{"Letters", reportedFraming("x,y"), "Character Framing: ECHO:Enabled", 0, 0},
        FramingRow{"WithoutTheBlank", "+ICF:3,4\r\n", "Character Framing: ECHO:Enabled", 0, 0},
        FramingRow{"CutBehindTheWord", "+ICF:", "Character Framing: ECHO:Enabled", 0, 0},
        FramingRow{"CutBehindTheFormat", "+ICF: 3", "Character Framing:8 Data,1 Stop ECHO:Enabled",
                   4, 0},
        FramingRow{"WithOneDigit", reportedFraming("3"),
                   "Character Framing:8 Data,1 Stop ECHO:Enabled", 4, 0},
        FramingRow{"TheFirstOfTwo", "+ICF: 3,4\r\n+ICF: 5,0\r\n",
                   "Character Framing:8 Data,1 Stop Parity:NoneECHO:Enabled", 4, 12},
        FramingRow{"OnTopOfTheSpeed",
                   "AT+IPR?\r\r\n+IPR: 9600\r\n\r\nOK\r\n" + reportedFraming("1,0"),
                   "Character Framing:8 Data,2 Stop Parity:OddECHO:Enabled", 2, 8}),
    RowName());

TEST_F(Framing, UnknownDigitsLeaveTheOptionsThatWereSet) {
  inPanel([this] {
    panel().form15.Option6.Value = true;
    panel().form15.Option9.Value = true;
  });
  read(reportedFraming("8,7"), &Form1::ShowCharacterFraming);
  EXPECT_EQ(set(), numbers(6, 9));
}

TEST_F(Framing, WithoutTheWordNothingIsUnlockedAndTheTranscriptIsCleared) {
  form1().Label7.Caption = kBefore;
  read("AT+ICF?\r\r\nERROR\r\n", &Form1::ShowCharacterFraming);
  EXPECT_EQ(form1().Label7.Caption.peek(), kBefore);
  EXPECT_FALSE(panel().form15.isLoaded());
  EXPECT_FALSE(form1().Command1.Enabled.peek());
  EXPECT_TRUE(form1().Frame5.Visible.peek());
  EXPECT_FALSE(panel().form20.isLoaded());
  EXPECT_EQ(transcript(), "");
}

TEST_F(Framing, UnlocksTheButtonsInTheirOrder) {
  Texts order;
  std::vector<std::unique_ptr<PropertyWatch>> watches;
  const auto watch = [&](PropertyOwner& owner, PropertyId id, const std::string& name) {
    watches.push_back(std::make_unique<PropertyWatch>(owner, [&order, id, name](PropertyId which) {
      if (which == id) order.push_back(name);
    }));
  };
  Form1& form = form1();
  inPanel([this] { panel().form20.Image1.Visible = true; });  // the first reference loads it
  run(0);
  watch(form.Label7, PropertyId::Caption, "Label7");
  watch(form.Frame5, PropertyId::Visible, "Frame5");
  for (CommandButton* button :
       {&form.Command1, &form.Command2, &form.Command3, &form.Command4, &form.Command5,
        &form.Command6, &form.Command7, &form.Command8, &form.Command9, &form.Command10,
        &form.Command11, &form.Command12, &form.Command13}) {
    watch(*button, PropertyId::Enabled, button->name());
  }
  watch(panel().form20.Timer1, PropertyId::Enabled, "Form20.Timer1");
  watch(form.Text1, PropertyId::Text, "Text1");
  inPanel([this] {
    form1().Text1.Text = reportedFraming("3,4");
    form1().ShowCharacterFraming();
  });
  run(0);
  EXPECT_EQ(order, (Texts{"Text1", "Label7", "Frame5", "Command1", "Command2", "Command3",
                          "Command4", "Command5", "Command6", "Command10", "Command12", "Command11",
                          "Form20.Timer1", "Text1"}));
}

// The reader of the profile, one place before the other.
class ProfileFraming : public Framing, public ::testing::WithParamInterface<FramingRow> {};

TEST_P(ProfileFraming, SelectsTheOptionsAndTouchesNothingElse) {
  form1().Label7.Caption = kBefore;
  read(GetParam().text, &Form1::ParseCharacterFraming);
  EXPECT_EQ(set(), numbers(GetParam().format, GetParam().parity));
  EXPECT_FALSE(panel().form15.Option28.Value.peek());
  EXPECT_EQ(form1().Label7.Caption.peek(), kBefore);
  EXPECT_FALSE(form1().Command1.Enabled.peek());
  EXPECT_TRUE(form1().Frame5.Visible.peek());
  EXPECT_EQ(transcript(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ProfileFraming,
    ::testing::Values(FramingRow{"AutoDetectOdd", "+ICF:0,0 +IFC:2,2", "", 1, 8},
                      FramingRow{"EightTwoEven", "+ICF:1,1 +IFC:2,2", "", 2, 9},
                      FramingRow{"EightParityOneMark", "+ICF:2,2 +IFC:2,2", "", 3, 10},
                      FramingRow{"EightOneSpace", "+ICF:3,3 +IFC:2,2", "", 4, 11},
                      FramingRow{"SevenTwoNone", "+ICF:4,4 +IFC:2,2", "", 5, 12},
                      FramingRow{"SevenParityOne", "+ICF:5,5 +IFC:2,2", "", 6, 0},
                      FramingRow{"SevenOne", "+ICF:6,9 +IFC:2,2", "", 7, 0},
                      FramingRow{"UnknownFormat", "+ICF:7,4 +IFC:2,2", "", 0, 12},
                      FramingRow{"WithTheBlankIsNothing", "+ICF: 3,4", "", 0, 0},
                      FramingRow{"CutIsNothing", "+ICF:", "", 0, 0},
                      FramingRow{"WithoutTheWordIsNothing", "+IFC:2,2", "", 0, 0},
                      FramingRow{"WithoutTheWordAndTheEchoIsNothing", "\r\nQ:0 V:1", "", 0, 0}),
    RowName());

}  // namespace
}  // namespace gsm
