#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <ctime>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "app/windows.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "phonebook/form3.h"
#include "phonebook/form5.h"
#include "platform/qt/desktop.h"
#include "platform/sqlite/phone_book_file.h"
#include "simulator/host/pseudo_terminal.h"
#include "tests/support/desktop/desktop_fixture.h"
#include "tests/support/desktop/simulated_modem.h"
#include "tests/support/temporary_folder.h"
#include "ui/views/binder.h"

namespace gsm {
namespace {

using namespace std::chrono_literals;

// The whole program but its `main`, on a clock that runs fast, with the simulated modem.
class PanelOnDesktopTest : public ::testing::Test {
 protected:
  static constexpr double kSpeed = 20;

  PanelOnDesktopTest() {
    std::filesystem::create_directory(folder_.path() / "ports");
    // Nothing presses the button of a box that nobody expects.
    boxWatch_ = platform().loop.every(500ms, [this] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      boxes_.push_back(box->text().toStdString());
      box->button(QMessageBox::Ok)->click();
    });
  }

  ~PanelOnDesktopTest() override {
    screen_.reset();
    windows_.reset();
  }

  Platform& platform() { return desktop_.platform(); }
  std::filesystem::path port(int number) const {
    return folder_.path() / "ports" / ("COM" + std::to_string(number));
  }

  void start() {
    windows_.emplace(platform());
    screen_.emplace(platform().loop);
    screen_->bind(platform().windows);
    gsm::start(panel());
  }

  Panel& panel() { return windows_->panel; }
  Form1& form1() { return panel().form1; }
  Form7& form7() { return panel().form7; }

  bool isReady() {
    return form1().Label1.Caption.peek() == "Open" && form1().Command3.Enabled.peek();
  }

  bool runUntil(const std::function<bool()>& condition, std::chrono::milliseconds limit = 60s) {
    return gsm::runUntil(platform().loop, condition, limit);
  }

  QString shown(const Label& label) {
    return qobject_cast<QLabel*>(screen_->widget(label))->text();
  }
  QStringList shownRows() {
    const auto* list = qobject_cast<QListWidget*>(screen_->widget(panel().form3.List1));
    QStringList rows;
    for (int row = 0; row < list->count(); ++row) rows.append(list->item(row)->text());
    return rows;
  }

  TemporaryFolder folder_;
  std::vector<std::string> boxes_;

 private:
  Desktop desktop_{{.programFolder = folder_.path(), .speed = kSpeed, .atEnd = [] {
                      ADD_FAILURE() << "the program has ended";
                      std::abort();
                    }}};
  std::unique_ptr<Repetition> boxWatch_;
  std::optional<Windows> windows_;

 protected:
  std::optional<Binder> screen_;
};

TEST_F(PanelOnDesktopTest, ComesUpWithTheModemOnTheSavedPort) {
  folder_.write("COM.txt", "9600,N,8,1 3\r\n");
  const SimulatedModem modem(port(3), kSpeed, {.speed = 9600});
  start();
  ASSERT_TRUE(runUntil([this] { return isReady(); }));
  EXPECT_EQ(shown(form1().Label1), "Open");
  EXPECT_EQ(shown(form1().Label2), "Port 3");
  EXPECT_EQ(shown(form1().Label3), "9600,N,8,1");
  EXPECT_TRUE(screen_->widget(form1())->isVisible());
  EXPECT_TRUE(screen_->widget(form7())->isVisible());
  EXPECT_TRUE(screen_->widget(form7().Image1)->isVisible());
  EXPECT_FALSE(screen_->widget(form7().Image5)->isVisible());
  EXPECT_EQ(shown(form7().Label5), "Registered/Home Network");
  EXPECT_TRUE(boxes_.empty());
}

TEST_F(PanelOnDesktopTest, ShowsTheSignalWhenTheUserClicks) {
  folder_.write("COM.txt", "9600,N,8,1 3\r\n");
  SimulatedModem modem(port(3), kSpeed, {.speed = 9600});
  start();
  ASSERT_TRUE(runUntil([this] { return isReady(); }));
  modem.command("signal 31");
  click(*screen_->widget(form1().Label8));
  ASSERT_TRUE(runUntil([this] { return shown(form7().Label4).startsWith("31,"); }));
  EXPECT_TRUE(screen_->widget(form7().Image4)->isVisible());
}

TEST_F(PanelOnDesktopTest, NamesACallerWhomThePhoneBookKnowsUntilHeGivesUpSilently) {
  folder_.write("COM.txt", "9600,N,8,1 3\r\n");
  createPhoneBook(folder_.path() / "phonebook.mdb");
  SimulatedModem modem(port(3), kSpeed, {.speed = 9600});
  start();
  ASSERT_TRUE(runUntil([this] { return isReady(); }));
  click(*screen_->widget(form1().Command2));
  ASSERT_TRUE(runUntil([this] { return shownRows().size() == 8; }));
  EXPECT_EQ(shownRows().at(4), "5  0261914728          Dentist");
  modem.command("ring 0261914728");
  ASSERT_TRUE(runUntil([this] {
    return shown(panel().form5.Label1) == "Call Received From  Dentist" &&
           screen_->widget(panel().form5)->isVisible();
  }));
  modem.command("giveup silent");
  EXPECT_TRUE(runUntil([this] { return !screen_->widget(panel().form5)->isVisible(); }));
  EXPECT_TRUE(boxes_.empty());
}

TEST_F(PanelOnDesktopTest, FindsTheModemOnAnotherPortWhenTheSavedOneIsSilent) {
  folder_.write("COM.txt", "9600,N,8,1 3\r\n");
  const pty::PseudoTerminal silent;
  std::filesystem::create_symlink(silent.device(), port(3));
  const SimulatedModem modem(port(4), kSpeed, {.speed = 115200});
  start();
  ASSERT_TRUE(runUntil([this] { return isReady(); }));
  EXPECT_EQ(shown(form1().Label2), "Port 4");
  EXPECT_EQ(shown(form1().Label3), "115200,N,8,1");
}

TEST_F(PanelOnDesktopTest, GoesOnWhenTheDeviceVanishes) {
  folder_.write("COM.txt", "9600,N,8,1 3\r\n");
  SimulatedModem modem(port(3), kSpeed, {.speed = 9600});
  start();
  ASSERT_TRUE(runUntil([this] { return isReady(); }));
  modem.command("unplug");
  runUntil([] { return false; }, 500ms);

  std::timespec before{};
  ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &before);
  click(*screen_->widget(form1().Label8));
  runUntil([] { return false; }, 1s);
  std::timespec after{};
  ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &after);
  const double used = static_cast<double>(after.tv_sec - before.tv_sec) +
                      static_cast<double>(after.tv_nsec - before.tv_nsec) / 1e9;
  EXPECT_LT(used, 0.5) << "processor seconds in one";
  EXPECT_EQ(shown(form7().Label5), "") << "no answer any more";
  EXPECT_TRUE(screen_->widget(form1())->isVisible());
}

// Runs the program without a modem, and lets its user act on the main window. It never returns.
void runWithUser(const std::function<void(const Binder&, Panel&)>& act) {
  const TemporaryFolder folder;
  Desktop desktop({.programFolder = folder.path()});
  Windows windows(desktop.platform());
  Panel& panel = windows.panel;
  Binder screen(desktop.platform().loop);
  screen.bind(desktop.platform().windows);
  start(panel);
  const auto user = desktop.platform().loop.every(100ms, [&] { act(screen, panel); });
  desktop.run();
}

TEST(PanelOnDesktopDeathTest, TheExitButtonEndsTheProgram) {
  EXPECT_EXIT(runWithUser([](const Binder& screen, Panel& panel) {
                click(*screen.widget(panel.form1.Command8));
              }),
              ::testing::ExitedWithCode(0), "");
}

TEST(PanelOnDesktopDeathTest, ClosingTheMainWindowEndsTheProgram) {
  EXPECT_EXIT(
      runWithUser([](const Binder& screen, Panel& panel) { screen.widget(panel.form1)->close(); }),
      ::testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace gsm
