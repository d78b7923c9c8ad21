#include <QAbstractItemView>
#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QStyle>
#include <QTextDocument>

#include "controls/controls.h"
#include "tests/support/desktop/desktop_fixture.h"

namespace gsm {
namespace {

class ListWindow : public Window {
 public:
  using Window::Window;
  ComboBox Combo1{*this, "Combo1"};
  ComboBox cboPort{*this, "cboPort", {.Style = ComboStyle::dropDownList}};
  ListBox List1{*this, "List1"};
};

class ListViewsTest : public FormTest {
 protected:
  ListViewsTest() {
    bind(window_);
    for (const char* item : {"one", "two", "three"}) {
      window_.Combo1.AddItem(item);
      window_.cboPort.AddItem(item);
      window_.List1.AddItem(item);
    }
  }

  ListWindow window_{platform(), "ListWindow"};
  QComboBox& combo_ = put<QComboBox>("Combo1");
  QComboBox& drop_ = put<QComboBox>("cboPort");
  QListWidget& list_ = put<QListWidget>("List1");
};

void pick(QComboBox& combo, int index) {
  combo.setCurrentIndex(index);
  emit combo.activated(index);
}

TEST_F(ListViewsTest, ShowTheItems) {
  EXPECT_EQ(combo_.count(), 3);
  EXPECT_EQ(drop_.itemText(2), "three");
  EXPECT_EQ(list_.item(1)->text(), "two");
}

TEST_F(ListViewsTest, SelectNothingOfTheirOwnAccord) {
  EXPECT_EQ(combo_.currentIndex(), -1);
  EXPECT_EQ(combo_.currentText(), "");
  EXPECT_EQ(drop_.currentIndex(), -1);
  EXPECT_TRUE(list_.selectedItems().isEmpty());
}

TEST_F(ListViewsTest, ShowWhatHandlersSelect) {
  window_.Combo1.ListIndex = 1;
  window_.cboPort.ListIndex = 2;
  window_.List1.ListIndex = 0;
  EXPECT_EQ(combo_.currentText(), "two");
  EXPECT_EQ(drop_.currentText(), "three");
  EXPECT_TRUE(list_.item(0)->isSelected());
  window_.cboPort.ListIndex = -1;
  window_.List1.ListIndex = -1;
  EXPECT_EQ(drop_.currentIndex(), -1);
  EXPECT_TRUE(list_.selectedItems().isEmpty());
}

TEST_F(ListViewsTest, ShowTheTextOfACombo) {
  window_.Combo1.Text = "other";
  EXPECT_EQ(combo_.currentText(), "other");
  EXPECT_EQ(combo_.currentIndex(), -1);
  window_.Combo1.Text = "two";
  EXPECT_EQ(combo_.currentIndex(), 1);
}

TEST_F(ListViewsTest, ClearingEmptiesListAndText) {
  window_.Combo1.Text = "other";
  window_.Combo1.Clear();
  window_.List1.Clear();
  EXPECT_EQ(combo_.count(), 0);
  EXPECT_EQ(combo_.currentText(), "");
  EXPECT_EQ(list_.count(), 0);
}

TEST_F(ListViewsTest, PickingAnItemIsQueuedAndClicks) {
  int clicks = 0;
  window_.Combo1.Click = [&] { ++clicks; };
  pick(combo_, 2);
  EXPECT_EQ(clicks, 0);
  settle();
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(window_.Combo1.ListIndex.peek(), 2);
  EXPECT_EQ(window_.Combo1.Text.peek(), "three");
  EXPECT_EQ(combo_.currentText(), "three");
}

TEST_F(ListViewsTest, PickingTheSelectedItemClicksAgain) {
  window_.cboPort.ListIndex = 1;
  int clicks = 0;
  window_.cboPort.Click = [&] { ++clicks; };
  pick(drop_, 1);
  settle();
  EXPECT_EQ(clicks, 1);
}

TEST_F(ListViewsTest, TypingSelectsNothingAndDoesntClick) {
  window_.Combo1.ListIndex = 0;
  int clicks = 0;
  window_.Combo1.Click = [&] { ++clicks; };
  combo_.lineEdit()->end(false);
  type(*combo_.lineEdit(), "x");
  settle();
  EXPECT_EQ(window_.Combo1.Text.peek(), "onex");
  EXPECT_EQ(window_.Combo1.ListIndex.peek(), -1);
  EXPECT_EQ(combo_.currentText(), "onex");
  EXPECT_EQ(clicks, 0);
}

TEST_F(ListViewsTest, APastedLineBreakEndsTheTextOfACombo) {
  QGuiApplication::clipboard()->setText("1\t2\rATD112;\r");
  for (const char* why : {"it is cut", "it is cut though the text of the combo is the same"}) {
    combo_.lineEdit()->selectAll();
    combo_.lineEdit()->paste();
    settle();
    EXPECT_EQ(window_.Combo1.Text.peek(), "12");
    EXPECT_EQ(combo_.currentText(), "12") << why;
  }
}

TEST_F(ListViewsTest, TypingAnItemsTextDoesntPickIt) {
  int clicks = 0;
  window_.Combo1.Click = [&] { ++clicks; };
  type(*combo_.lineEdit(), "two");
  press(*combo_.lineEdit(), Qt::Key_Return, "\r");
  emit combo_.lineEdit()->editingFinished();
  settle();
  EXPECT_EQ(window_.Combo1.Text.peek(), "two");
  EXPECT_EQ(window_.Combo1.ListIndex.peek(), -1);
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(combo_.count(), 3) << "and doesn't become another item";
}

TEST_F(ListViewsTest, NoItemFinishesWhatIsTyped) {
  type(*combo_.lineEdit(), "th");
  settle();
  EXPECT_EQ(combo_.currentText(), "th");
}

TEST_F(ListViewsTest, TypingKeepsTheCaretWhereItIs) {
  window_.Combo1.ListIndex = 2;
  combo_.lineEdit()->setCursorPosition(2);
  type(*combo_.lineEdit(), "x");
  settle();
  EXPECT_EQ(combo_.currentText(), "thxree");
  EXPECT_EQ(combo_.lineEdit()->cursorPosition(), 3);
}

TEST_F(ListViewsTest, TheUserPicksAnItemOfAList) {
  int clicks = 0;
  window_.List1.Click = [&] { ++clicks; };
  const QPoint at = list_.visualItemRect(list_.item(1)).center();
  click(*list_.viewport(), at);
  EXPECT_EQ(clicks, 0);
  settle();
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(window_.List1.ListIndex.peek(), 1);
  click(*list_.viewport(), at);
  settle();
  EXPECT_EQ(clicks, 2) << "the selected one can be picked again";
}

TEST_F(ListViewsTest, TheFocusAlonePicksNothing) {
  int clicks = 0;
  window_.List1.Click = [&] { ++clicks; };
  list_.setFocus(Qt::TabFocusReason);
  settle();
  EXPECT_EQ(clicks, 0);
}

TEST_F(ListViewsTest, APickThatThePanelDoesntTakeIsUndone) {
  window_.cboPort.ListIndex = 0;
  pick(drop_, 2);
  window_.cboPort.Enabled = false;
  settle();
  EXPECT_EQ(drop_.currentIndex(), 0);
}

// What is pasted may hold more than the control takes; the test's own rule stands for that.
TEST_F(ListViewsTest, OpeningADropDownListLetsItBeFilledAnew) {
  int openings = 0;
  window_.cboPort.DropDown = [&] {
    ++openings;
    window_.cboPort.Clear();
    for (const char* item : {"two", "four", "five", "six"}) window_.cboPort.AddItem(item);
    window_.cboPort.ListIndex = 0;
  };
  drop_.showPopup();
  EXPECT_EQ(openings, 0) << "never inside a widget's own event";
  settle();
  EXPECT_EQ(openings, 1);
  EXPECT_TRUE(drop_.view()->isVisible());
  EXPECT_EQ(drop_.count(), 4);
  EXPECT_EQ(drop_.itemText(3), "six");
  EXPECT_EQ(drop_.currentIndex(), 0);
  drop_.hidePopup();
  settle();
  drop_.showPopup();
  settle();
  EXPECT_EQ(openings, 2);
  drop_.hidePopup();
}

TEST_F(ListViewsTest, AnEditableComboTakesWhatAssistiveTechnologyPutsIn) {
  window_.Combo1.ListIndex = 0;
  QAccessible::queryAccessibleInterface(combo_.lineEdit())->setText(QAccessible::Value, "14400");
  settle();
  EXPECT_EQ(window_.Combo1.Text.peek(), "14400");
  EXPECT_EQ(window_.Combo1.ListIndex.peek(), -1);
}

TEST_F(ListViewsTest, AnEditableComboCanBeEmptied) {
  type(*combo_.lineEdit(), "x");
  settle();
  press(*combo_.lineEdit(), Qt::Key_Backspace);
  settle();
  EXPECT_EQ(window_.Combo1.Text.peek(), "");
}

TEST_F(ListViewsTest, WhatThePanelShowsInAnEditableComboIsNoEdit) {
  window_.Combo1.Text = "other";
  window_.Combo1.ListIndex = 1;
  settle();
  EXPECT_EQ(window_.Combo1.ListIndex.peek(), 1);
}

TEST_F(ListViewsTest, AnItemThatIsPickedFromAnEditableComboIsNoEdit) {
  combo_.setCurrentIndex(2);
  settle();
  EXPECT_EQ(window_.Combo1.Text.peek(), "") << "the pick itself is still to be told";
  emit combo_.activated(2);
  settle();
  EXPECT_EQ(window_.Combo1.ListIndex.peek(), 2);
}

TEST_F(ListViewsTest, AnEditableComboShowsWhatTheControlHolds) {
  combo_.lineEdit()->setText("1\rATD112;\r");
  settle();
  EXPECT_EQ(combo_.currentText().toStdString(), window_.Combo1.Text.peek());
}

TEST_F(ListViewsTest, TheListOfADropDownHasNoStripsToScrollBy) {
  EXPECT_FALSE(drop_.style()->styleHint(QStyle::SH_ComboBox_Popup, nullptr, &drop_));
}

TEST_F(ListViewsTest, ItemsHaveTheirTips) {
  window_.cboPort.AddItem("four", "/dev/ttyUSB0");
  EXPECT_EQ(drop_.itemData(0, Qt::ToolTipRole).toString(), "");
  EXPECT_EQ(drop_.itemData(3, Qt::ToolTipRole).toString(), "/dev/ttyUSB0");
  EXPECT_EQ(drop_.toolTip(), "");
  window_.cboPort.ListIndex = 3;
  EXPECT_EQ(drop_.toolTip(), "/dev/ttyUSB0") << "the tip of the one that is selected";
  window_.List1.AddItem("five", "<b>");
  EXPECT_FALSE(Qt::mightBeRichText(list_.item(3)->toolTip()));
  EXPECT_EQ(QString(list_.item(3)->toolTip()).remove(QChar(0x200B)), "<b>");
}

TEST_F(ListViewsTest, ItemsAreNeitherMarkupNorMnemonics) {
  window_.List1.AddItem("<b>&x</b>");
  EXPECT_EQ(list_.item(3)->text(), "<b>&x</b>");
}

}  // namespace
}  // namespace gsm
