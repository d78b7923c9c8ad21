#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QPainter>

#include "controls/controls.h"
#include "tests/support/desktop/desktop_fixture.h"
#include "ui/views/label_views.h"
#include "ui/views/picture_painter.h"

namespace gsm {
namespace {

class LabelWindow : public Window {
 public:
  using Window::Window;
  Frame Frame1{*this, "Frame1", {.Caption = "Research & <i>Development</i>"}};
  Label Label1{*this, "Label1", {.Caption = "Ready"}};
  Label Label2{*this, "Label2", {.In = &Frame1, .Visible = false}};
  Picture Image1{*this, "Image1"};
};

class LabelViewsTest : public FormTest {
 protected:
  LabelViewsTest() {
    image_.setGeometry(0, 100, 40, 20);
    image_.setProperty(PicturePainter::kProperty, ":/icons/signal-bar-5.svg");
    bind(window_);
  }

  int clicksOf(Event& event) {
    event = [this] { ++clicks_; };
    return clicks_;
  }

  LabelWindow window_{platform(), "LabelWindow"};
  QGroupBox& frame_ = put<QGroupBox>("Frame1");
  QLabel& label_ = put<QLabel>("Label1");
  QLabel& hidden_ = put<QLabel>("Label2", &frame_);
  QLabel& image_ = put<QLabel>("Image1");
  int clicks_ = 0;
};

TEST_F(LabelViewsTest, ShowTheDesign) {
  EXPECT_EQ(label_.text(), "Ready");
  EXPECT_TRUE(label_.isVisible());
  EXPECT_FALSE(hidden_.isVisible());
}

TEST_F(LabelViewsTest, ShowWhatHandlersAssign) {
  window_.Label1.Caption = "Open";
  window_.Label2.Visible = true;
  window_.Label1.Enabled = false;
  EXPECT_EQ(label_.text(), "Open");
  EXPECT_TRUE(hidden_.isVisible());
  EXPECT_FALSE(label_.isEnabled());
}

// Whose colour its text decides.
TEST_F(LabelViewsTest, ABadgeLooksAsTheStyleSheetSaysOfItsText) {
  const auto colour = [this] { return label_.palette().color(QPalette::WindowText); };
  label_.setProperty("role", "badge");
  form().setStyleSheet(R"(QLabel { color: #101010 } QLabel[text="Open"] { color: #0a4f5c })");
  EXPECT_EQ(colour(), QColor(0x10, 0x10, 0x10));
  window_.Label1.Caption = "Open";
  EXPECT_EQ(colour(), QColor(0x0a, 0x4f, 0x5c));
  window_.Label1.Caption = "";
  EXPECT_EQ(colour(), QColor(0x10, 0x10, 0x10));
}

TEST_F(LabelViewsTest, ATextIsNeverMarkup) {
  window_.Label1.Caption = "<b>x</b>";
  EXPECT_EQ(label_.textFormat(), Qt::PlainText);
  const int markup = label_.sizeHint().width();
  window_.Label1.Caption = "x";
  EXPECT_GT(markup, label_.sizeHint().width()) << "the signs of the markup are shown";
}

TEST_F(LabelViewsTest, AnAmpersandStandsAsItIs) {
  window_.Label1.Caption = "a&b";
  const QImage shown = label_.grab().toImage();
  window_.Label1.Caption = "ab";
  EXPECT_NE(shown, label_.grab().toImage());
  EXPECT_EQ(frame_.title(), "Research && <i>Development</i>") << "Qt shows && as one";
}

TEST_F(LabelViewsTest, AReplysLineEndTakesNoRoom) {
  window_.Label1.Caption = "0\r\n";
  EXPECT_EQ(label_.text(), "0");
  window_.Label1.Caption = "0,1\r\n\r\nOK\r\n";
  EXPECT_EQ(label_.text(), "0,1\r\n\r\nOK");
  window_.Label1.Caption = "\r\n";
  EXPECT_EQ(label_.text(), "");
}

TEST_F(LabelViewsTest, ALongTextDoesntPushTheWindowWider) {
  const int width = form().minimumSizeHint().width();
  window_.Label1.Caption = std::string(100'000, 'W');
  settle();
  EXPECT_EQ(form().minimumSizeHint().width(), width);
  EXPECT_LT(label_.minimumWidth(), 200);
}

TEST_F(LabelViewsTest, ShowTheColourOfTheText) {
  window_.Label1.ForeColor = 0x400000;  // blue in the high byte
  EXPECT_TRUE(label_.styleSheet().contains("color: #000040"));
  window_.Label1.ForeColor = kBlack;
  EXPECT_EQ(label_.styleSheet(), "");
}

TEST_F(LabelViewsTest, AClickIsQueuedAndNotRunInPlace) {
  clicksOf(window_.Label1.Click);
  click(label_);
  EXPECT_EQ(clicks_, 0);
  settle();
  EXPECT_EQ(clicks_, 1);
}

TEST_F(LabelViewsTest, EnterAndTheSpaceBarClick) {
  clicksOf(window_.Label1.Click);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_A}) {
    press(label_, key);
  }
  settle();
  EXPECT_EQ(clicks_, 3);
}

TEST_F(LabelViewsTest, APressThatIsLetGoOutsideIsNoClick) {
  clicksOf(window_.Label1.Click);
  click(label_, QPoint(-5, -5));
  settle();
  EXPECT_EQ(clicks_, 0);
}

TEST_F(LabelViewsTest, AClickOnWhatIsOutOfReachByThenIsNone) {
  clicksOf(window_.Label1.Click);
  click(label_);
  window_.Label1.Enabled = false;
  settle();
  EXPECT_EQ(clicks_, 0);
}

TEST_F(LabelViewsTest, APictureIsPaintedInItsOwnProportions) {
  QImage shown = image_.grab().toImage().convertToFormat(QImage::Format_ARGB32);
  QImage empty(shown.size(), QImage::Format_ARGB32);
  empty.fill(shown.pixel(0, 0));
  EXPECT_NE(shown, empty);
  EXPECT_EQ(shown.pixel(0, 10), shown.pixel(39, 10)) << "beside the bar lies the ground";
}

TEST_F(LabelViewsTest, APictureKeepsItsPlaceWhileHidden) {
  EXPECT_TRUE(image_.sizePolicy().retainSizeWhenHidden());
  window_.Image1.Visible = false;
  EXPECT_FALSE(image_.isVisible());
}

TEST_F(LabelViewsTest, APictureCanBeClicked) {
  clicksOf(window_.Image1.Click);
  click(image_);
  settle();
  EXPECT_EQ(clicks_, 1);
}

TEST_F(LabelViewsTest, WhatIsInAHiddenFrameIsHidden) {
  window_.Label2.Visible = true;
  window_.Frame1.Visible = false;
  EXPECT_FALSE(hidden_.isVisible());
  window_.Frame1.Visible = true;
  EXPECT_TRUE(hidden_.isVisible());
}

}  // namespace
}  // namespace gsm
