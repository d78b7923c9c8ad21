// A window that is closed while its own Form_Load or Form_Unload waits.

#include <array>
#include <functional>
#include <random>

#include "tests/controls/window_fixture.h"
#include "tests/support/seed.h"

namespace gsm {
namespace {

class WindowClosingTest : public PlatformTest {
 protected:
  void SetUp() override {
    window.onLoad = [this] { note("load"); };
    window.onUnload = [this] { note("unload"); };
  }

  // The window comes up in its Form_Load, which then waits.
  void loadWaiting(double seconds) {
    window.onLoad = [this, seconds] {
      note("load");
      window.Show();
      wait(seconds);
      note("loaded");
    };
  }
  void unloadWaiting(double seconds) {
    window.onUnload = [this, seconds] {
      note("unload");
      wait(seconds);
      note("unloaded");
    };
  }
  void userCloses(double after) {
    time().after(fromSeconds(after), [this] { window.userClose(); });
  }

  void expectOnViewAndAlive() {
    EXPECT_TRUE(window.isLoaded());
    EXPECT_TRUE(window.Visible.peek());
    EXPECT_TRUE(window.Command1.userClick());
    EXPECT_TRUE(window.userState(minimised));
  }
  void expectGone() {
    EXPECT_FALSE(window.isLoaded());
    EXPECT_FALSE(window.Visible.peek());
  }

  TestWindow window{platform()};
};

TEST_F(WindowClosingTest, InItsLoadLoadsItOnceMoreAndShowsIt) {
  loadWaiting(2);
  inProgram([this] { window.Show(); });
  userCloses(1);
  settle();
  EXPECT_EQ(takeNotes(), Notes({"load", "unload", "loaded", "load", "loaded"}));
  expectOnViewAndAlive();
  EXPECT_TRUE(window.userClose());
  expectGone();
}

TEST_F(WindowClosingTest, InItsLoadTwiceLoadsItTwiceMore) {
  loadWaiting(2);
  inProgram([this] { window.Show(); });
  userCloses(1);
  userCloses(3);
  settle();
  EXPECT_EQ(takeNotes(),
            Notes({"load", "unload", "loaded", "load", "unload", "loaded", "load", "loaded"}));
  expectOnViewAndAlive();
}

TEST_F(WindowClosingTest, InItsLoadDoesntLoseWhatTheReferenceAssigns) {
  loadWaiting(2);
  inProgram([this] { window.Label1.Caption = "assigned"; });
  inProgram([this] { note(window.Label1.Caption); }, 10);
  userCloses(1);
  settle();
  EXPECT_EQ(takeNotes(), Notes({"load", "unload", "loaded", "load", "loaded", "assigned"}));
}

TEST_F(WindowClosingTest, InItsLoadLetsAReadOfItGoOnWithTheDesignsState) {
  loadWaiting(2);
  inProgram([this] { note(window.Label1.Caption); });
  time().after(fromSeconds(0.5), [this] { window.Label1.Caption = "of the first load"; });
  userCloses(1);
  settle();
  EXPECT_EQ(takeNotes(), Notes({"load", "unload", "loaded", "load", "loaded", "Label"}));
}

TEST_F(WindowClosingTest, InALoadThatGoesOnWithTheWindowLoadsItWithinTheFirst) {
  window.onLoad = [this] {
    note("load");
    window.Show();
    wait(2);
    window.Label1.Caption = "loaded";
  };
  inProgram([this] { window.Show(); });
  userCloses(1);
  settle();
  EXPECT_EQ(takeNotes(), Notes({"load", "unload", "load"}));
  expectOnViewAndAlive();
  EXPECT_EQ(window.Label1.Caption.peek(), "loaded");
}

TEST_F(WindowClosingTest, OnceMoreInItsUnloadEndsWithIt) {
  unloadWaiting(2);
  window.Show();
  takeNotes();
  userCloses(0);
  userCloses(1);
  run(1.5);
  EXPECT_TRUE(window.Visible.peek());
  EXPECT_EQ(depth(), 2);
  settle();
  EXPECT_EQ(takeNotes(), Notes({"unload", "unload", "unloaded", "unloaded"}));
  expectGone();
}

TEST_F(WindowClosingTest, OnceMoreInAnUnloadThatGoesOnWithTheWindowEndsWithIt) {
  window.onUnload = [this] {
    note("unload");
    wait(2);
    note(window.Label1.Caption);
  };
  window.Show();
  takeNotes();
  userCloses(0);
  userCloses(1);
  settle();
  EXPECT_EQ(takeNotes(), Notes({"unload", "unload", "Label", "load", "Label"}));
  expectGone();
}

TEST_F(WindowClosingTest, OnceMoreInItsUnloadLeavesItOnViewWhereItHasComeUpAnew) {
  double seconds = 5;
  window.onUnload = [this, &seconds] {
    note("unload");
    wait(std::exchange(seconds, 1));
    note("unloaded");
  };
  window.Show();
  takeNotes();
  userCloses(0);
  userCloses(1);  // gone after two seconds
  time().after(fromSeconds(3), [this] { window.Show(); });
  settle();
  EXPECT_EQ(takeNotes(), Notes({"unload", "unload", "unloaded", "load", "unloaded"}));
  expectOnViewAndAlive();
}

TEST_F(WindowClosingTest, IsNotHeldUpByAShowWhileItsUnloadWaits) {
  unloadWaiting(2);
  window.Show();
  userCloses(0);
  time().after(fromSeconds(1), [this] { window.Show(); });
  settle();
  expectGone();
}

TEST_F(WindowClosingTest, InItsLoadAndInTheUnloadOfThatComesUpAlive) {
  loadWaiting(4);
  unloadWaiting(2);
  inProgram([this] { window.Show(); });
  userCloses(1);
  userCloses(2);
  settle();
  expectOnViewAndAlive();
}

// Windows whose loads and unloads wait and refer to each other at random, under a user who opens
// and closes them.
class WindowsAtRandom : public PlatformTest {
 protected:
  void SetUp() override {
    for (TestWindow* window : windows) {
      window->onLoad = [this] { doSomething(); };
      window->onUnload = [this] { doSomething(); };
      window->onResize = [this] { doSomething(); };
      window->Command1.Click = [this] { doSomething(); };
    }
  }

  int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
  TestWindow& anyWindow() { return *windows[static_cast<std::size_t>(below(3))]; }

  void doSomething() {
    if (depth() > 30) return;
    switch (below(8)) {
      case 0: wait(below(40) / 10.0); break;
      case 1: anyWindow().Show(); break;
      case 2: anyWindow().Label1.Caption = "x"; break;
      case 3: anyWindow().Visible = true; break;
      case 4: anyWindow().WindowState = below(3); break;
      case 5: anyWindow().Unload(); break;
      default: break;
    }
  }
  void userDoesSomething() {
    switch (below(4)) {
      case 0: anyWindow().userClose(); break;
      case 1: anyWindow().Command1.userClick(); break;
      case 2: anyWindow().userState(below(3)); break;
      default: machine().handlers().run([this] { anyWindow().Show(); }); break;
    }
  }
  void expectNoneOnViewAndUnloaded() {
    for (const TestWindow* window : windows) {
      EXPECT_TRUE(window->isLoaded() || !window->Visible.peek()) << window->name();
    }
  }

  std::mt19937 random{newSeed()};
  TestWindow first{platform(), "First"};
  TestWindow second{platform(), "Second"};
  TestWindow third{platform(), "Third"};
  std::array<TestWindow*, 3> windows = {&first, &second, &third};
};

TEST_F(WindowsAtRandom, AreNeverOnViewAndUnloaded) {
  for (int round = 0; round < 50; ++round) {
    for (int step = 0; step < 40; ++step) {
      time().after(fromSeconds(below(300) / 10.0), [this] { userDoesSomething(); });
    }
    for (int look = 0; look < 60; ++look) {
      run(0.5);
      expectNoneOnViewAndUnloaded();
    }
    settle();
    expectNoneOnViewAndUnloaded();
    for (TestWindow* window : windows) {
      EXPECT_EQ(window->Combo1.userType("x"), window->Visible.peek()) << window->name();
    }
    ASSERT_EQ(depth(), 0);
  }
}

}  // namespace
}  // namespace gsm
