#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>

#include "controls/controls.h"
#include "tests/support/desktop/desktop_fixture.h"

namespace gsm {
namespace {

class AccessibleWindow : public Window {
 public:
  using Window::Window;
  Label Label8{*this, "Label8", {.Caption = "<<Signal>>"}};
  Picture Image1{*this, "Image1"};
  ComboBox Combo1{*this, "Combo1", {.Style = ComboStyle::dropDownList}};
  Frame Frame1{*this, "Frame1", {.Caption = "Flow Control"}};
  Frame Frame2{*this, "Frame2", {.Caption = "This & That", .In = &Frame1}};
};

class AccessibilityTest : public FormTest {
 protected:
  AccessibilityTest() {
    link_.setProperty("role", "link");
    key_.setProperty("role", "key");
    key_.setAccessibleName("1");
    combo_.setAccessibleName("Comm Port");
    bind(window_);
  }

  static QAccessibleInterface& of(QWidget& widget) {
    return *QAccessible::queryAccessibleInterface(&widget);
  }

  AccessibleWindow window_{platform(), "AccessibleWindow"};
  QLabel& link_ = put<QLabel>("Label8");
  QLabel& key_ = put<QLabel>("Image1");
  QComboBox& combo_ = put<QComboBox>("Combo1");
  QGroupBox& outer_ = put<QGroupBox>("Frame1");
  QGroupBox& inner_ = put<QGroupBox>("Frame2", &outer_);
};

TEST_F(AccessibilityTest, AFormIsAWindowAndAPartOfItIsNone) {
  EXPECT_EQ(of(form()).role(), QAccessible::Window);
  EXPECT_NE(of(*new QWidget(&form())).role(), QAccessible::Window);
}

TEST_F(AccessibilityTest, LabelsThatActAreButtonsWithAPressAction) {
  for (QLabel* label : {&link_, &key_}) {
    EXPECT_EQ(of(*label).role(), QAccessible::Button);
    ASSERT_NE(of(*label).actionInterface(), nullptr);
    EXPECT_TRUE(of(*label).actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction()));
  }
  EXPECT_EQ(of(link_).text(QAccessible::Name), "<<Signal>>");
  EXPECT_EQ(of(key_).text(QAccessible::Name), "1");
}

TEST_F(AccessibilityTest, ThePressActionClicks) {
  int clicks = 0;
  window_.Label8.Click = [&] { ++clicks; };
  window_.Image1.Click = [&] { ++clicks; };
  of(link_).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  of(key_).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  settle();
  EXPECT_EQ(clicks, 2);
  window_.Label8.Enabled = false;
  of(link_).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  settle();
  EXPECT_EQ(clicks, 2);
}

TEST_F(AccessibilityTest, AFrameWithinAFrameGoesByItsOwnCaption) {
  EXPECT_EQ(of(outer_).text(QAccessible::Name), "Flow Control");
  EXPECT_EQ(of(inner_).text(QAccessible::Name), "This & That");
}

TEST_F(AccessibilityTest, ACombosNameIsItsLabels) {
  window_.Combo1.AddItem("1");
  window_.Combo1.ListIndex = 0;
  EXPECT_EQ(of(combo_).text(QAccessible::Name), "Comm Port");
  EXPECT_EQ(of(combo_).text(QAccessible::Value), "1");
  EXPECT_EQ(of(combo_).role(), QAccessible::ComboBox);
}

}  // namespace
}  // namespace gsm
