#include "ui/views/decorations.h"

#include <QLabel>
#include <QPushButton>

#include "controls/controls.h"
#include "tests/support/desktop/desktop_fixture.h"

namespace gsm {
namespace {

class DecoratedWindow : public Window {
 public:
  using Window::Window;
  Label Label1{*this, "Label1"};
  Label Label2{*this, "Label2"};
  Frame Frame5{*this, "Frame5"};
  Frame Frame6{*this, "Frame6"};
  Frame Frame7{*this, "Frame7"};
};

class DecorationsTest : public FormTest {
 protected:
  DecorationsTest() {
    tiles_.setProperty("insteadOf", "Frame5");
    covered_.setProperty("insteadOf", "Frame6");
    opener_.setProperty("opens", "Frame5");
    label2_.setProperty("keepsRoom", true);
    hint_.setProperty("whileEmpty", "Label1 Label2");
    bind(window_);
  }

  DecoratedWindow window_{platform(), "DecoratedWindow"};
  QLabel& label1_ = put<QLabel>("Label1");
  QLabel& label2_ = put<QLabel>("Label2");
  QFrame& frame_ = put<QFrame>("Frame5");
  QFrame& covering_ = put<QFrame>("Frame6");
  QFrame& covered_ = put<QFrame>("Frame7");
  QWidget& tiles_ = put<QWidget>("decoTiles");
  QLabel& hint_ = put<QLabel>("decoHint");
  QPushButton& opener_ = put<QPushButton>("Command1");
};

TEST_F(DecorationsTest, OneOfTwoPagesIsThere) {
  EXPECT_TRUE(frame_.isVisible());
  EXPECT_FALSE(tiles_.isVisible());
  window_.Frame5.Visible = false;
  EXPECT_TRUE(tiles_.isVisible());
  window_.Frame5.Visible = true;
  EXPECT_FALSE(tiles_.isVisible());
}

TEST_F(DecorationsTest, TheFormKeepsItsSizeWhenPagesChange) {
  EXPECT_TRUE(frame_.sizePolicy().retainSizeWhenHidden());
  EXPECT_TRUE(tiles_.sizePolicy().retainSizeWhenHidden());
}

TEST_F(DecorationsTest, OfTwoFramesOnOnePlaceOneIsCoveredWhileBothAreOnView) {
  EXPECT_TRUE(covering_.isVisible());
  EXPECT_FALSE(covered_.isVisible()) << "out of reach of the keyboard too";
  window_.Frame6.Visible = false;
  EXPECT_TRUE(covered_.isVisible());
  window_.Frame6.Visible = true;
  window_.Frame7.Visible = false;
  window_.Frame7.Visible = true;
  EXPECT_FALSE(covered_.isVisible());
  window_.Frame6.Visible = false;
  window_.Frame7.Visible = false;
  EXPECT_FALSE(covered_.isVisible());
}

TEST_F(DecorationsTest, AButtonTellsThatItsPageIsOnView) {
  EXPECT_TRUE(opener_.property("current").toBool());
  EXPECT_EQ(opener_.accessibleDescription(), "This page is on view");
  window_.Frame5.Visible = false;
  EXPECT_FALSE(opener_.property("current").toBool());
  EXPECT_EQ(opener_.accessibleDescription(), "");
  window_.Frame5.Visible = true;
  EXPECT_TRUE(opener_.property("current").toBool());
}

TEST_F(DecorationsTest, WhatKeepsItsRoomMovesNothingWhenItGoes) {
  EXPECT_TRUE(label2_.sizePolicy().retainSizeWhenHidden());
  EXPECT_FALSE(label1_.sizePolicy().retainSizeWhenHidden());
}

TEST_F(DecorationsTest, AHintStandsThereWhileAllItsLabelsAreEmpty) {
  settle();
  EXPECT_TRUE(hint_.isVisible());
  window_.Label2.Caption = "Port 3";
  settle();
  EXPECT_FALSE(hint_.isVisible());
  window_.Label2.Caption = "";
  settle();
  EXPECT_TRUE(hint_.isVisible());
}

TEST_F(DecorationsTest, AHintWaitsForTheHandlersToEnd) {
  window_.Label1.Caption = "Open";
  settle();
  platform().handlers.run([this] {
    window_.Label1.Caption = "";
    settle();
    EXPECT_FALSE(hint_.isVisible()) << "the handler may find a port yet";
  });
  settle();
  EXPECT_TRUE(hint_.isVisible());
}

}  // namespace
}  // namespace gsm
