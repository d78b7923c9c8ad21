#include "controls/option_button.h"

#include "tests/controls/window_fixture.h"

namespace gsm {
namespace {

class OptionButtonTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    noteEach(window.Option1.Click, "1");
    noteEach(window.Option2.Click, "2");
    noteEach(window.Option3.Click, "3");
    noteEach(window.Option4.Click, "4");
  }
  std::string chosen() const {
    std::string numbers;
    for (const OptionButton* option :
         {&window.Option1, &window.Option2, &window.Option3, &window.Option4}) {
      if (option->Value) numbers += option->name().back();
    }
    return numbers;
  }
};

TEST_F(OptionButtonTest, TheDesignsChoiceStandsAtTheBeginning) {
  EXPECT_EQ(chosen(), "14");
  EXPECT_EQ(takeNotes(), Notes());
}

TEST_F(OptionButtonTest, TheUsersChoiceClearsTheOthersOfItsGroupAlone) {
  EXPECT_TRUE(window.Option2.userClick());
  EXPECT_EQ(chosen(), "24");
  EXPECT_TRUE(window.Option3.userClick());
  EXPECT_EQ(chosen(), "23");
  EXPECT_EQ(takeNotes(), Notes({"2", "3"}));
}

TEST_F(OptionButtonTest, AChoiceByCodeDoesTheSameAndRunsClick) {
  window.Option2.Value = true;
  window.Option3.Value = true;
  EXPECT_EQ(chosen(), "23");
  EXPECT_EQ(takeNotes(), Notes({"2", "3"}));
}

TEST_F(OptionButtonTest, TheHandlerSeesTheGroupAsItStandsAfterTheChoice) {
  window.Option2.Click = [this] { note(chosen()); };
  window.Option2.Value = true;
  EXPECT_EQ(takeNotes(), Notes({"24"}));
}

TEST_F(OptionButtonTest, ClearingByCodeLeavesTheGroupWithoutAChoiceAndRunsNothing) {
  window.Option1.Value = false;
  EXPECT_EQ(chosen(), "4");
  EXPECT_EQ(takeNotes(), Notes());
}

TEST_F(OptionButtonTest, TheUserCanNotUnchoose) {
  window.Option1.userClick();
  EXPECT_EQ(chosen(), "14");
}

}  // namespace
}  // namespace gsm
