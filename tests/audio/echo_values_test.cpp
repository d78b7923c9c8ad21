#include <gtest/gtest.h>

#include "audio/form6.h"
#include "panel/form1.h"
#include "tests/support/healthy_modem_test.h"
#include "tests/support/open_port_test.h"

namespace gsm {
namespace {

constexpr const char* kBefore = "as it was";
const std::vector<int> kSlidersBefore = {5, 1, 5, 5, 5, 5, 100};  // 3 to 9

struct EchoRow {
  std::string name;
  std::string text;
  std::string status;  // of the audio window
  std::string mode;
  std::string algorithm;
  std::vector<int> sliders;  // 3 to 9
  bool first;                // the frame of the first algorithm is on view,
  bool third;                // and that of the third
  std::string left;          // in the transcript
};

// What a received text with the echo cancellation's values makes of the audio window.
class EchoValues : public OpenPortTest {
 protected:
  void SetUp() override {
    OpenPortTest::SetUp();
    inPanel([this] { panel().form6.Label7.Caption = ""; });  // the first reference loads it
    settle();
    inPanel([this] {
      Form6& form = panel().form6;
      form1().Text1.Text = "";
      form.Label7.Caption = kBefore;
      form.Combo1.Text = kBefore;
      form.Combo2.Text = kBefore;
      for (std::size_t i = 0; i < kSlidersBefore.size(); ++i) {
        sliders()[i]->Value = kSlidersBefore[i];
      }
    });
    run(0);
  }

  std::vector<Slider*> sliders() {
    Form6& form = panel().form6;
    return {&form.Slider3, &form.Slider4, &form.Slider5, &form.Slider6,
            &form.Slider7, &form.Slider8, &form.Slider9};
  }

  void expectShown(const EchoRow& row) {
    Form6& form = panel().form6;
    EXPECT_EQ(form.Label7.Caption.peek(), row.status);
    EXPECT_EQ(form.Combo1.Text.peek(), row.mode);
    EXPECT_EQ(form.Combo2.Text.peek(), row.algorithm);
    std::vector<int> values;
    for (const Slider* slider : sliders()) values.push_back(slider->Value.peek());
    EXPECT_EQ(values, row.sliders);
    EXPECT_EQ(form.Frame6.Visible.peek(), row.first);
    EXPECT_EQ(form.Frame7.Visible.peek(), row.third);
    EXPECT_EQ(transcript(), row.left);
  }
};

class EchoReply : public EchoValues, public ::testing::WithParamInterface<EchoRow> {};

TEST_P(EchoReply, IsShown) {
  receive(GetParam().text);
  settle();
  expectShown(GetParam());
}

EchoRow unchanged(const std::string& name, const std::string& text) {
  return {name, text, kBefore, kBefore, kBefore, kSlidersBefore, true, true, text};
}

INSTANTIATE_TEST_SUITE_P(
    Algorithms, EchoReply,
    ::testing::Values(EchoRow{"OfTheFirst",
                              "AT+ECHO?\r\r\n+ECHO: 0,1,15,3,10,7\r\n\r\nOK\r\n",
                              "Echo Current Values--0,1,15,3,10,7\r\n\r\nOK\r",
                              "0",
                              "1",
                              {15, 3, 10, 7, 5, 5, 100},
                              true,
                              false,
                              ""},
                      EchoRow{"OfTheThird",
                              "AT+ECHO?\r\r\n+ECHO: 1,3,30,8000,256\r\n\r\nOK\r\n",
                              "Echo Current Values--1,3,30,8000,256\r\n\r\nO",
                              "1",
                              "3",
                              {5, 1, 5, 5, 30, 8000, 256},
                              false,
                              true,
                              ""},
                      EchoRow{"OfTheFirstWithMoreFieldsEndsAtTheCarriageReturn",
                              "+ECHO: 1,1,2,1,3,4\rmore",
                              "Echo Current Values--1,1,2,1,3,4\rmore",
                              "1",
                              "1",
                              {2, 1, 3, 4, 5, 5, 100},
                              true,
                              false,
                              ""},
                      EchoRow{"OfTheThirdAtItsLeast",
                              "+ECHO: 0,3,0,0,64\r\n",
                              "Echo Current Values--0,3,0,0,64\r\n",
                              "0",
                              "3",
                              {5, 1, 5, 5, 0, 0, 64},
                              false,
                              true,
                              ""}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    ChangesNothing, EchoReply,
    ::testing::Values(unchanged("OfAnotherAlgorithm", "+ECHO: 0,2,1,1,1,1\r\n"),
                      unchanged("OfAnotherAlgorithmFarOff", "+ECHO: 0,13,1,1,1,1\r\n"),
                      unchanged("WithAnEmptyFirstField", "+ECHO: ,1,1,1,1,1\r\n"),
                      unchanged("WithoutABlank",
                                "+ECHO:0,1,1,1,1,1\r\n"),  // begins with the comma then
                      unchanged("WithAnAlgorithmThatIsNoNumber", "+ECHO: 0,x,1,1,1,1\r\n"),
                      unchanged("WithAnEmptyAlgorithm", "+ECHO: 0,,1,1,1,1\r\n"),
                      unchanged("CutBehindTheWord", "+ECHO:"),
                      unchanged("CutInTheFirstField", "+ECHO: 0"),
                      unchanged("CutInTheSecondField", "+ECHO: 0,1"),
                      unchanged("CutInTheFields", "+ECHO: 0,1,15,3"),
                      unchanged("CutBeforeTheCarriageReturn", "+ECHO: 0,1,15,3,10,7"),
                      unchanged("OfTheThirdWithoutItsLastField", "+ECHO: 0,3,30,8000\r\n"),
                      unchanged("LongerThanTwentyCharacters", "+ECHO: 0,1,000015,03,0010,7\r\n")),
    RowName());

// A value that a slider refuses ends the reading there: what stands in front has been shown.
INSTANTIATE_TEST_SUITE_P(RefusedBySliders, EchoReply,
                         ::testing::Values(EchoRow{"AtTheFirst", "+ECHO: 0,1,16,3,10,7\r\n",
                                                   "Echo Current Values--0,1,16,3,10,7\r\n", "0",
                                                   "1", kSlidersBefore, true, true,
                                                   "+ECHO: 0,1,16,3,10,7\r\n"},
                                           EchoRow{"AtTheSecondAsTheFactoryValuesAre",
                                                   "+ECHO: 0,1,0,6,10,7\r\n",
                                                   "Echo Current Values--0,1,0,6,10,7\r\n",
                                                   "0",
                                                   "1",
                                                   {0, 1, 5, 5, 5, 5, 100},
                                                   true,
                                                   true,
                                                   "+ECHO: 0,1,0,6,10,7\r\n"},
                                           EchoRow{"AtTheLast",
                                                   "+ECHO: 0,3,30,8000,63\r\n",
                                                   "Echo Current Values--0,3,30,8000,63\r\n",
                                                   "0",
                                                   "3",
                                                   {5, 1, 5, 5, 30, 8000, 100},
                                                   true,
                                                   true,
                                                   "+ECHO: 0,3,30,8000,63\r\n"},
                                           EchoRow{"AtOneThatIsNoNumber",
                                                   "+ECHO: 0,1,15,x,10,7\r\n",
                                                   "Echo Current Values--0,1,15,x,10,7\r\n",
                                                   "0",
                                                   "1",
                                                   {15, 1, 5, 5, 5, 5, 100},
                                                   true,
                                                   true,
                                                   "+ECHO: 0,1,15,x,10,7\r\n"},
                                           EchoRow{"AtOneThatIsTooLarge",
                                                   "+ECHO: 0,3,30,40000,64\r\n",
                                                   "Echo Current Values--0,3,30,40000,64\r\n",
                                                   "0",
                                                   "3",
                                                   {5, 1, 5, 5, 30, 5, 100},
                                                   true,
                                                   true,
                                                   "+ECHO: 0,3,30,40000,64\r\n"}),
                         RowName());

TEST_F(EchoValues, ThatComeInTwoPartsAreShownWhenTheyAreWhole) {
  receive("AT+ECHO?\r\r\n+ECHO: 0,1,1", 0);
  receive("5,3,10,7\r\n\r\nOK\r\n", 3);
  settle();
  expectShown({"",
               "",
               "Echo Current Values--0,1,15,3,10,7\r\n\r\nOK\r",
               "0",
               "1",
               {15, 3, 10, 7, 5, 5, 100},
               true,
               false,
               ""});
}

TEST_F(EchoValues, ChangeTheFrameWithTheAlgorithm) {
  receive("+ECHO: 0,1,15,3,10,7\r\n");
  settle();
  receive("+ECHO: 0,3,30,8000,256\r\n");
  settle();
  EXPECT_FALSE(panel().form6.Frame6.Visible.peek());
  EXPECT_TRUE(panel().form6.Frame7.Visible.peek());
}

TEST_F(EchoValues, AreFoundBehindMoreTextThanSixteenBitsCount) {
  for (const std::size_t length : {32'700U, 32'766U, 32'767U, 70'000U}) {
    leaveInTranscript(std::string(length, '.'));
    receive("+ECHO: 0,1,15,3,10,7\r\n\r\n");
    settle();
    expectShown({"",
                 "",
                 "Echo Current Values--0,1,15,3,10,7\r\n\r\n",
                 "0",
                 "1",
                 {15, 3, 10, 7, 5, 5, 100},
                 true,
                 false,
                 ""});
    inPanel([this] { panel().form6.Label7.Caption = kBefore; });
    run(0);
  }
}

// Though values stand where they would behind a key at the very beginning.
TEST_F(EchoValues, OfNoPositionAreNone) {
  leaveInTranscript("123450,1,15,3,10,7\r\n\r\n");
  inPanel([this] { form1().ShowEchoValues("0"); });
  run(0);
  expectShown(unchanged("", "123450,1,15,3,10,7\r\n\r\n"));
}

}  // namespace
}  // namespace gsm
