#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <csignal>
#include <cstdio>
#include <filesystem>

#include "app/windows.h"
#include "panel/form1.h"
#include "platform/qt/desktop.h"
#include "simulator/host/pseudo_terminal.h"
#include "tests/support/desktop/desktop_fixture.h"
#include "tests/support/temporary_folder.h"
#include "ui/views/binder.h"

namespace gsm {
namespace {

using namespace std::chrono_literals;

// Runs the program with its port open on a modem that never answers. Once it has, `ask` is to make
// it end. What it wrote to the port goes to standard error. It never returns.
void runUntilAsked(const std::function<void(Desktop&, Panel&)>& ask) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.path() / "ports");
  pty::PseudoTerminal modem;
  std::filesystem::create_symlink(modem.device(), folder.path() / "ports/COM3");
  folder.write("COM.txt", "9600,N,8,1 3\r\n");
  Desktop desktop({.programFolder = folder.path(),
                   .atEnd = [&modem] { std::fprintf(stderr, "%s", modem.read().c_str()); }});
  Windows windows(desktop.platform());
  Binder screen(desktop.platform().loop);
  screen.bind(desktop.platform().windows);
  desktop.endBy([&windows] { end(windows.panel); });
  start(windows.panel);
  bool asked = false;
  const auto user = desktop.platform().loop.every(50ms, [&] {
    if (!windows.panel.form1.MSComm1.PortOpen || std::exchange(asked, true)) return;
    ask(desktop, windows.panel);
  });
  desktop.run();
}

constexpr const char* kStoresItsSettings = "AT\\+CGSN\rAT&W\r";
const ::testing::ExitedWithCode endsWell(0);

TEST(EndRequestsDeathTest, ASignalEndsTheProgramAsTheExitButtonDoes) {
  EXPECT_EXIT(runUntilAsked([](Desktop&, Panel&) { std::raise(SIGTERM); }), endsWell,
              kStoresItsSettings);
}

TEST(EndRequestsDeathTest, ASecondSignalEndsItAtOnce) {
  EXPECT_EXIT(runUntilAsked([](Desktop&, Panel&) {
                std::raise(SIGINT);
                std::raise(SIGTERM);
              }),
              ::testing::KilledBySignal(SIGTERM), "");
}

TEST(EndRequestsDeathTest, SoDoesTheEndOfTheSession) {
  EXPECT_EXIT(runUntilAsked([](Desktop&, Panel&) { QCoreApplication::quit(); }), endsWell,
              kStoresItsSettings);
}

// What Qt says before it leaves the process.
TEST(EndRequestsDeathTest, SoDoesTheDisplaysGoing) {
  EXPECT_EXIT(runUntilAsked([](Desktop&, Panel&) {
                qWarning("The X11 connection broke (error 1). Did the X11 server die?");
                std::exit(1);
              }),
              endsWell, kStoresItsSettings);
}

TEST(EndRequestsDeathTest, ABoxIsNotWaitedFor) {
  EXPECT_EXIT(runUntilAsked([](Desktop& desktop, Panel&) {
                desktop.platform().loop.post([] { std::raise(SIGHUP); });
                desktop.platform().boxes.show("Nobody presses its button.");
              }),
              endsWell, kStoresItsSettings);
}

TEST(EndRequestsDeathTest, APortThatHasGoneIsNoReasonForABox) {
  EXPECT_EXIT(runUntilAsked([](Desktop& desktop, Panel&) {
                desktop.platform().serialDevice.close();
                std::raise(SIGTERM);
              }),
              endsWell, "");
}

}  // namespace
}  // namespace gsm
