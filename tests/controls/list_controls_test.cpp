#include "controls/list_controls.h"

#include "tests/controls/window_fixture.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

using Items = std::vector<std::string>;

class ListControlsTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    for (const char* item : {"300", "9600", "9600", "115200"}) {
      window.List1.AddItem(item);
      window.Combo1.AddItem(item);
      window.Combo2.AddItem(item);
    }
    noteEach(window.List1.Click, "list");
    noteEach(window.Combo1.Click, "combo");
    noteEach(window.Combo2.Click, "drop-down");
  }
};

TEST_F(ListControlsTest, ItemsStandInTheOrderInWhichTheyWereAdded) {
  EXPECT_EQ(window.List1.ListCount(), 4);
  EXPECT_EQ(window.List1.List.get(), Items({"300", "9600", "9600", "115200"}));
  EXPECT_EQ(window.List1.ListIndex.get(), -1);
}

TEST_F(ListControlsTest, OnlyAnAdditionTellsViewsThatTheItemsBeforeItAreKept) {
  std::vector<std::size_t> kept;
  const PropertyWatch watch(window.List1, [&](PropertyId property) {
    if (property == PropertyId::List) kept.push_back(window.List1.itemsKept());
  });
  window.List1.AddItem("57600");
  window.List1.RemoveItem(1);
  window.List1.AddItem("1200");
  window.List1.Clear();
  window.List1.AddItem("2400");
  EXPECT_EQ(kept, (std::vector<std::size_t>{4, 0, 4, 0, 0}));
  EXPECT_EQ(window.List1.itemsKept(), 0U);
}

TEST_F(ListControlsTest, SettingTheIndexByCodeSelectsAndRunsClick) {
  window.List1.ListIndex = 3;
  window.Combo1.ListIndex = 0;
  EXPECT_EQ(window.List1.ListIndex.get(), 3);
  EXPECT_EQ(window.Combo1.Text.get(), "300");
  EXPECT_EQ(takeNotes(), Notes({"list", "combo"}));
}

TEST_F(ListControlsTest, TheHandlerSeesTheNewSelection) {
  window.Combo1.Click = [this] {
    note(std::to_string(window.Combo1.ListIndex) + " " + window.Combo1.Text);
  };
  window.Combo1.ListIndex = 3;
  EXPECT_EQ(takeNotes(), Notes({"3 115200"}));
}

TEST_F(ListControlsTest, AnIndexOfNoItemFailsAndChangesNothing) {
  window.List1.ListIndex = 1;
  takeNotes();
  for (const int index : {4, 400, -2}) {
    EXPECT_EQ(failureOf([&] { window.List1.ListIndex = index; }), 380) << index;
    EXPECT_EQ(failureOf([&] { window.Combo1.ListIndex = index; }), 380) << index;
  }
  EXPECT_EQ(window.List1.ListIndex.get(), 1);
  EXPECT_EQ(window.Combo1.ListIndex.get(), -1);
  EXPECT_EQ(takeNotes(), Notes());
}

TEST_F(ListControlsTest, AnEmptyListHasNoIndexZero) {
  window.List1.Clear();
  window.Combo1.Clear();
  EXPECT_EQ(failureOf([this] { window.List1.ListIndex = 0; }), 380);
  EXPECT_EQ(failureOf([this] { window.Combo1.ListIndex = 0; }), 380);
}

TEST_F(ListControlsTest, MinusOneSelectsNothing) {
  window.Combo1.ListIndex = 1;
  window.Combo1.ListIndex = -1;
  EXPECT_EQ(window.Combo1.ListIndex.get(), -1);
  EXPECT_EQ(window.Combo1.Text.get(), "");
}

TEST_F(ListControlsTest, TheUsersPickSelectsAndRunsClick) {
  EXPECT_TRUE(window.List1.userSelect(0));
  EXPECT_TRUE(window.Combo1.userSelect(3));
  EXPECT_TRUE(window.Combo2.userSelect(2));
  EXPECT_EQ(window.List1.ListIndex.get(), 0);
  EXPECT_EQ(window.Combo1.Text.get(), "115200");
  EXPECT_EQ(window.Combo2.ListIndex.get(), 2);
  EXPECT_EQ(takeNotes(), Notes({"list", "combo", "drop-down"}));
}

TEST_F(ListControlsTest, TheUserCanNotPickWhatIsNotThere) {
  for (const int index : {-1, 4, 99}) {
    EXPECT_FALSE(window.List1.userSelect(index)) << index;
    EXPECT_FALSE(window.Combo1.userSelect(index)) << index;
  }
  EXPECT_EQ(takeNotes(), Notes());
}

TEST_F(ListControlsTest, SettingTheTextByCodeSelectsTheFirstEqualItemWithoutAClick) {
  window.Combo1.Text = "9600";
  EXPECT_EQ(window.Combo1.ListIndex.get(), 1);
  window.Combo2.Text = "115200";
  EXPECT_EQ(window.Combo2.ListIndex.get(), 3);
  EXPECT_EQ(takeNotes(), Notes());
}

TEST_F(ListControlsTest, SettingAnotherTextByCodeSelectsNothing) {
  window.Combo1.ListIndex = 1;
  takeNotes();
  window.Combo1.Text = "1200";
  EXPECT_EQ(window.Combo1.Text.get(), "1200");
  EXPECT_EQ(window.Combo1.ListIndex.get(), -1);
  EXPECT_EQ(takeNotes(), Notes());
}

TEST_F(ListControlsTest, ADropDownListRefusesATextThatIsNoItems) {
  window.Combo2.ListIndex = 1;
  EXPECT_EQ(failureOf([this] { window.Combo2.Text = "1200"; }), 380);
  EXPECT_EQ(window.Combo2.Text.get(), "9600");
  EXPECT_EQ(window.Combo2.ListIndex.get(), 1);
}

TEST_F(ListControlsTest, TypingSelectsNothingEvenWhenTheTextIsAnItems) {
  window.Combo1.ListIndex = 0;
  takeNotes();
  EXPECT_TRUE(window.Combo1.userType("\b\b\b9600"));
  EXPECT_EQ(window.Combo1.Text.get(), "9600");
  EXPECT_EQ(window.Combo1.ListIndex.get(), -1);
  EXPECT_EQ(takeNotes(), Notes());
}

TEST_F(ListControlsTest, TheBackspaceKeyTakesTheLastCharacterOfAComboIfThereIsOne) {
  window.Combo1.Text = "ab";
  EXPECT_TRUE(window.Combo1.userType("\b\b\b\bc"));
  EXPECT_EQ(window.Combo1.Text.get(), "c");
}

TEST_F(ListControlsTest, ErasingEmptiesTheTextAndSelectsNothing) {
  window.Combo1.ListIndex = 2;
  EXPECT_TRUE(window.Combo1.userErase());
  EXPECT_EQ(window.Combo1.Text.get(), "");
  EXPECT_EQ(window.Combo1.ListIndex.get(), -1);
  EXPECT_EQ(window.Combo1.ListCount(), 4);
}

TEST_F(ListControlsTest, ADropDownListTakesNoTyping) {
  window.Combo2.ListIndex = 0;
  EXPECT_FALSE(window.Combo2.isEditable());
  EXPECT_FALSE(window.Combo2.userType("x"));
  EXPECT_FALSE(window.Combo2.userErase());
  EXPECT_EQ(window.Combo2.Text.get(), "300");
}

TEST_F(ListControlsTest, ClearEmptiesTheListAndTheText) {
  window.Combo1.ListIndex = 2;
  window.List1.ListIndex = 2;
  takeNotes();
  window.Combo1.Clear();
  window.List1.Clear();
  EXPECT_EQ(window.Combo1.ListCount(), 0);
  EXPECT_EQ(window.Combo1.Text.get(), "");
  EXPECT_EQ(window.Combo1.ListIndex.get(), -1);
  EXPECT_EQ(window.List1.ListCount(), 0);
  EXPECT_EQ(window.List1.ListIndex.get(), -1);
  EXPECT_EQ(takeNotes(), Notes());
}

TEST_F(ListControlsTest, ItemsMayHaveTips) {
  window.List1.Clear();
  window.List1.AddItem("3", "/dev/ttyS2");
  window.List1.AddItem("5");
  EXPECT_EQ(window.List1.ItemTips.get(), Items({"/dev/ttyS2", ""}));
  window.List1.Clear();
  EXPECT_EQ(window.List1.ItemTips.get(), Items());
}

TEST_F(ListControlsTest, ARemovedItemTakesTheSelectionAlongAndRunsNoClick) {
  window.List1.ListIndex = 2;
  takeNotes();
  window.List1.RemoveItem(3);
  EXPECT_EQ(window.List1.ListIndex.get(), 2);
  window.List1.RemoveItem(0);
  EXPECT_EQ(window.List1.ListIndex.get(), 1) << "on the same item";
  window.List1.RemoveItem(1);
  EXPECT_EQ(window.List1.ListIndex.get(), -1);
  window.List1.RemoveItem(0);
  EXPECT_EQ(window.List1.ListIndex.get(), -1);
  EXPECT_EQ(window.List1.List.get(), Items());
  EXPECT_EQ(takeNotes(), Notes());
}

TEST_F(ListControlsTest, ARemovedItemTakesItsTipAlong) {
  window.List1.Clear();
  window.List1.AddItem("3", "/dev/ttyS2");
  window.List1.AddItem("5", "/dev/ttyUSB0");
  window.List1.RemoveItem(0);
  EXPECT_EQ(window.List1.ItemTips.get(), Items({"/dev/ttyUSB0"}));
}

TEST_F(ListControlsTest, WhatIsNotThereCantBeRemoved) {
  for (const int index : {-1, 4}) EXPECT_THROW(window.List1.RemoveItem(index), RuntimeFailure);
  EXPECT_EQ(window.List1.ListCount(), 4);
}

TEST_F(ListControlsTest, AFailureInAClickRunByCodeEndsTheHandlerThatSetTheIndexToo) {
  window.List1.Click = [] { throw failure::typeMismatch(); };
  now([this] {
    window.List1.ListIndex = 1;
    note("went on");
  });
  EXPECT_TRUE(ended());
  EXPECT_EQ(takeNotes(), Notes());
  EXPECT_EQ(machine().boxes.takeShown().at(0).text, "Type mismatch");
}

}  // namespace
}  // namespace gsm
