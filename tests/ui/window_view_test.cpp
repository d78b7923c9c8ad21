#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QWindow>

#include "controls/controls.h"
#include "tests/support/desktop/desktop_fixture.h"

namespace gsm {
namespace {

// A window that says what happens to it.
class PlainWindow : public Window {
 public:
  using Window::Window;
  Label Label1{*this, "Label1"};
  TextBox Text1{*this, "Text1"};  // has no widget
  Timer Timer1{*this, "Timer1"};
  std::string story;

 protected:
  void Form_Load() override { story += "load "; }
  void Form_Unload() override { story += "unload "; }
  void Form_Resize() override { story += "resize "; }
};

class WindowViewTest : public FormTest {
 protected:
  PlainWindow window_{platform(), "PlainWindow", {.Caption = "Plain [*] & <b>"}};
  QLabel& label_ = put<QLabel>("Label1");
};

TEST_F(WindowViewTest, ShowsWithItsCaptionAsItStands) {
  bind(window_);
  EXPECT_TRUE(form().isVisible());
  EXPECT_EQ(form().windowTitle(), "Plain [*][*] & <b>") << "Qt shows [*][*] as one";
  window_.Caption = "Communications Port Settings";
  EXPECT_EQ(form().windowTitle(), "Communications Port Settings");
}

TEST_F(WindowViewTest, HidesAndShowsAgain) {
  bind(window_);
  window_.Hide();
  EXPECT_FALSE(form().isVisible());
  window_.Show();
  window_.Show();
  EXPECT_TRUE(form().isVisible());
}

TEST_F(WindowViewTest, AControlWithoutAWidgetWorksUnseen) {
  bind(window_);
  window_.Text1.Text = "AT+CGSN";
  EXPECT_EQ(window_.Text1.Text.peek(), "AT+CGSN");
}

TEST_F(WindowViewTest, ClosingIsThePanelsAffair) {
  bind(window_);
  form().close();
  EXPECT_TRUE(form().isVisible());
  EXPECT_EQ(window_.story, "load ");
  settle();
  EXPECT_FALSE(form().isVisible());
  EXPECT_EQ(window_.story, "load unload ");
  EXPECT_FALSE(window_.isLoaded());
}

TEST_F(WindowViewTest, AWindowThatIsLoadedAnewShowsItsDesign) {
  bind(window_);
  window_.Label1.Caption = "old";
  window_.Unload();
  EXPECT_EQ(label_.text(), "old") << "nobody has referred to the window since";
  window_.Show();
  EXPECT_EQ(label_.text(), "");
}

TEST_F(WindowViewTest, TheUserMinimisesAndRestores) {
  bind(window_);
  form().setWindowState(Qt::WindowMinimized);
  EXPECT_EQ(window_.WindowState.peek(), WindowState::normal);
  settle();
  EXPECT_EQ(window_.WindowState.peek(), WindowState::minimised);
  form().setWindowState(Qt::WindowMaximized);
  settle();
  EXPECT_EQ(window_.WindowState.peek(), WindowState::maximised);
  EXPECT_EQ(window_.story, "load resize resize ");
}

TEST_F(WindowViewTest, TheUserWhoMinimisesAndRestoresAtOnceHasChangedNothing) {
  bind(window_);
  form().setWindowState(Qt::WindowMinimized);
  form().setWindowState(Qt::WindowNoState);
  settle();
  EXPECT_EQ(window_.WindowState.peek(), WindowState::normal);
  EXPECT_FALSE(form().isMinimized());
  form().setWindowState(Qt::WindowMinimized);
  form().setWindowState(Qt::WindowMaximized);
  settle();
  EXPECT_EQ(window_.WindowState.peek(), WindowState::maximised);
  EXPECT_TRUE(form().isMaximized());
  EXPECT_EQ(window_.story, "load resize ");
}

TEST_F(WindowViewTest, ThePanelMinimisesAndRestores) {
  bind(window_);
  window_.WindowState = WindowState::minimised;
  EXPECT_TRUE(form().isMinimized());
  settle();
  window_.WindowState = WindowState::normal;
  EXPECT_FALSE(form().isMinimized());
  settle();
  EXPECT_EQ(window_.story, "load resize resize ") << "no echo from the screen";
}

// What counts is the state when the panel comes to hear of it.
TEST_F(WindowViewTest, MinimisingAndRestoringWithinOnePassIsNoChange) {
  bind(window_);
  form().setWindowState(Qt::WindowMinimized);
  form().setWindowState(Qt::WindowNoState);
  settle();
  EXPECT_EQ(window_.WindowState.peek(), WindowState::normal);
  EXPECT_EQ(window_.story, "load ");
}

TEST_F(WindowViewTest, AFormIsMadeWhenItsWindowFirstComesUp) {
  Binder binder(loop());
  const auto before = QApplication::topLevelWidgets().size();
  binder.bind(window_);
  window_.Caption = "loaded, and not on view";
  EXPECT_EQ(QApplication::topLevelWidgets().size(), before);
  window_.Show();
  EXPECT_EQ(QApplication::topLevelWidgets().size(), before + 1);
  EXPECT_EQ(binder.widget(window_)->windowTitle(), "loaded, and not on view");
}

TEST_F(WindowViewTest, KeepsItselfOnTopWhileUp) {
  bind(window_);
  window_.TopMost = true;
  EXPECT_TRUE(form().isVisible());
  EXPECT_TRUE(form().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_TRUE(form().windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
  window_.TopMost = false;
  EXPECT_FALSE(form().windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(WindowViewTest, StandsInTheMiddleOfTheScreen) {
  bind(window_);
  form().move(0, 0);
  window_.Centred = true;
  const QPoint middle = form().screen()->availableGeometry().center();
  EXPECT_EQ(form().frameGeometry().center(), middle);
  window_.Hide();
  form().move(0, 0);
  window_.Show();
  EXPECT_EQ(form().frameGeometry().center(), middle);
}

TEST_F(WindowViewTest, ShowsTheHourglass) {
  bind(window_);
  window_.MousePointer = MousePointer::hourglass;
  EXPECT_EQ(form().cursor().shape(), Qt::WaitCursor);
  window_.MousePointer = MousePointer::arrow;
  EXPECT_EQ(form().cursor().shape(), Qt::ArrowCursor);
}

TEST_F(WindowViewTest, ABoxHoldsTheWindow) {
  bind(window_);
  bool acted = false;
  const auto user = loop().every(std::chrono::milliseconds(10), [&] {
    QWidget* box = QApplication::activeModalWidget();
    if (box == nullptr) return;
    if (!std::exchange(acted, true)) {
      form().close();
    } else {
      box->close();
    }
  });
  platform().boxes.show("held");
  settle();
  EXPECT_TRUE(form().isVisible());
  EXPECT_TRUE(window_.isLoaded());
}

TEST_F(WindowViewTest, TheProgramOutlivesItsLastWindowOnView) {
  EXPECT_FALSE(QGuiApplication::quitOnLastWindowClosed());
}

// Windows that come up by themselves leave the keyboard where it is.
TEST_F(WindowViewTest, QuietWindowsDontTakeTheKeyboard) {
  bind(window_);
  PlainWindow quiet(platform(), "Quiet", {.Quiet = true});
  Binder own(loop());
  own.bind(quiet, std::make_unique<QWidget>());
  quiet.Show();
  settle();
  EXPECT_TRUE(own.widget(quiet)->testAttribute(Qt::WA_ShowWithoutActivating));
  EXPECT_TRUE(own.widget(quiet)->isVisible());
  EXPECT_FALSE(form().testAttribute(Qt::WA_ShowWithoutActivating));
}

TEST_F(WindowViewTest, AWindowWithoutAFormIsAnEmptyOneWithItsCaption) {
  PlainWindow other(platform(), "NoSuchForm", {.Caption = "Other"});
  Binder binder(loop());
  binder.bind(other);
  other.Show();
  EXPECT_TRUE(binder.widget(other)->isVisible());
  EXPECT_EQ(binder.widget(other)->windowTitle(), "Other");
  EXPECT_EQ(binder.widget(other.Label1), nullptr);
}

}  // namespace
}  // namespace gsm
