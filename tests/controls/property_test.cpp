#include "controls/property.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "tests/controls/window_fixture.h"

namespace gsm {
namespace {

class PropertyTest : public WindowTest {};

struct NotingView : View {
  void changed(PropertyId property) override { changes.emplace_back(nameOf(property)); }
  std::vector<std::string> changes;
};

TEST(PropertyNames, AreThoseOfTheDesign) {
  const std::vector<std::pair<PropertyId, std::string>> names = {
      {PropertyId::Caption, "Caption"},
      {PropertyId::Text, "Text"},
      {PropertyId::Value, "Value"},
      {PropertyId::Visible, "Visible"},
      {PropertyId::Enabled, "Enabled"},
      {PropertyId::ListIndex, "ListIndex"},
      {PropertyId::List, "List"},
      {PropertyId::BackColor, "BackColor"},
      {PropertyId::ForeColor, "ForeColor"},
      {PropertyId::MaxLength, "MaxLength"},
      {PropertyId::Min, "Min"},
      {PropertyId::Max, "Max"},
      {PropertyId::Interval, "Interval"},
      {PropertyId::SelStart, "SelStart"},
      {PropertyId::WindowState, "WindowState"},
      {PropertyId::MousePointer, "MousePointer"},
      {PropertyId::TopMost, "TopMost"},
      {PropertyId::Centred, "Centred"},
      {PropertyId::ItemTips, "ItemTips"},
  };
  for (const auto& [id, name] : names) EXPECT_EQ(nameOf(id), name);
}

TEST_F(PropertyTest, IsUsedLikeAVariable) {
  window.Label1.Caption = "Open";
  const std::string read = window.Label1.Caption;
  EXPECT_EQ(read, "Open");
  EXPECT_TRUE(window.Label1.Caption == "Open");
  EXPECT_EQ(window.Label1.Caption + ",99", "Open,99");
  EXPECT_EQ("Port " + window.Label1.Caption, "Port Open");
  EXPECT_FALSE(window.Label1.Caption.empty());
  window.Label1.Caption = "";
  EXPECT_TRUE(window.Label1.Caption.empty());
}

TEST_F(PropertyTest, IsAssignedFromAnother) {
  window.Label1.Caption = "from";
  window.Command1.Caption = window.Label1.Caption;
  EXPECT_EQ(window.Command1.Caption.get(), "from");
}

TEST_F(PropertyTest, IsFoundByItsName) {
  ASSERT_NE(window.Label1.property("Caption"), nullptr);
  EXPECT_EQ(std::get<std::string>(window.Label1.property("Caption")->value()), "Label");
  EXPECT_EQ(window.Label1.property("Text"), nullptr);
  EXPECT_EQ(window.Label1.property(""), nullptr);
  EXPECT_EQ(window.Label1.property("caption"), nullptr);
}

TEST_F(PropertyTest, HoldsTheValueOfItsKind) {
  EXPECT_EQ(std::get<bool>(window.Label1.property("Visible")->value()), true);
  EXPECT_EQ(std::get<int>(window.Slider1.property("Max")->value()), 15);
  EXPECT_TRUE(std::get<std::vector<std::string>>(window.List1.property("List")->value()).empty());
}

TEST_F(PropertyTest, EveryKindOfControlHasThePropertiesOfItsKind) {
  const std::vector<std::pair<const PropertyOwner*, std::vector<std::string>>> rows = {
      {&window, {"Caption", "Visible", "WindowState"}},
      {&window.Label1, {"Caption", "Enabled", "ForeColor", "Visible"}},
      {&window.Command1, {"BackColor", "Caption", "Enabled", "Visible"}},
      {&window.Image1, {"Enabled", "Visible"}},
      {&window.Frame1, {"Caption", "Enabled", "Visible"}},
      {&window.Option1, {"Caption", "Enabled", "Value", "Visible"}},
      {&window.Text1, {"Enabled", "MaxLength", "SelStart", "Text", "Visible"}},
      {&window.Combo1, {"Enabled", "List", "ListIndex", "Text", "Visible"}},
      {&window.List1, {"Enabled", "List", "ListIndex", "Visible"}},
      {&window.Slider1, {"Enabled", "Max", "Min", "Value", "Visible"}},
      {&window.TabStrip1, {"Enabled", "Value", "Visible"}},
      {&window.Timer1, {"Enabled", "Interval"}},
  };
  for (const auto& [owner, names] : rows) {
    for (const std::string& name : names) {
      EXPECT_NE(owner->property(name), nullptr) << owner->name() << "." << name;
    }
  }
}

TEST_F(PropertyTest, TellsTheViewOfEachChangeAndOfNoOther) {
  NotingView view;
  window.Label1.attach(&view);
  window.Label1.Caption = "new";
  window.Label1.Caption = "new";
  window.Label1.Visible = false;
  EXPECT_EQ(view.changes, std::vector<std::string>({"Caption", "Visible"}));
  window.Label1.attach(nullptr);
  window.Label1.Caption = "newer";
  EXPECT_EQ(view.changes.size(), 2u);
}

TEST_F(PropertyTest, TheViewSeesAnOptionsWholeGroupChange) {
  NotingView first;
  NotingView second;
  window.Option1.attach(&first);
  window.Option2.attach(&second);
  window.Option2.Value = true;
  window.Option1.attach(nullptr);
  window.Option2.attach(nullptr);
  EXPECT_EQ(first.changes, std::vector<std::string>({"Value"}));
  EXPECT_EQ(second.changes, std::vector<std::string>({"Value"}));
}

TEST_F(PropertyTest, ShowingAWindowOnViewBringsItUpOnceMore) {
  NotingView view;
  window.attach(&view);
  window.Show();
  window.attach(nullptr);
  EXPECT_EQ(view.changes, std::vector<std::string>({"Visible"}));
}

TEST_F(PropertyTest, TheViewIsToldOfTheDesignStateWhenAWindowComesBack) {
  window.Label1.Caption = "changed";
  window.Unload();
  NotingView view;
  window.Label1.attach(&view);
  window.Show();
  window.Label1.attach(nullptr);
  EXPECT_EQ(view.changes, std::vector<std::string>({"Caption"}));
}

}  // namespace
}  // namespace gsm
