#include "controls/window.h"

#include <functional>
#include <string>

#include "tests/controls/window_fixture.h"

namespace gsm {
namespace {

/// Windows that note what happens to them; none is loaded at the beginning.
class WindowLoadingTest : public PlatformTest {
 protected:
  void SetUp() override {
    window.onLoad = [this] { note("load"); };
    window.onUnload = [this] { note("unload"); };
    window.onResize = [this] { note("resize"); };
  }

  TestWindow window{platform()};
  TestWindow other{platform(), "Window2"};
};

TEST_F(WindowLoadingTest, NothingIsLoadedAtTheBeginning) {
  EXPECT_FALSE(window.isLoaded());
  EXPECT_FALSE(window.Visible.peek());
  EXPECT_EQ(takeNotes(), Notes());
}

TEST_F(WindowLoadingTest, AnyReferenceLoads) {
  const std::vector<std::pair<const char*, std::function<void()>>> references = {
      {"showing", [this] { window.Show(); }},
      {"hiding", [this] { window.Hide(); }},
      {"reading the window", [this] { (void)window.Caption.get(); }},
      {"assigning to the window", [this] { window.Caption = "x"; }},
      {"reading a control", [this] { (void)window.Label1.Caption.get(); }},
      {"comparing", [this] { (void)(window.Label1.Caption == "x"); }},
      {"joining", [this] { (void)(window.Label1.Caption + "x"); }},
      {"asking for emptiness", [this] { (void)window.Text1.Text.empty(); }},
      {"assigning to a control", [this] { window.Label1.Caption = "x"; }},
      {"copying from a control", [this] { other.Label1.Caption = window.Label1.Caption; }},
      {"assigning what the control refuses",
       [this] { failureOf([this] { window.Slider1.Value = 99; }); }},
      {"setting an option", [this] { window.Option2.Value = true; }},
      {"adding an item", [this] { window.List1.AddItem("x"); }},
      {"counting the items", [this] { (void)window.List1.ListCount(); }},
      {"clearing a list", [this] { window.List1.Clear(); }},
      {"clearing a combo", [this] { window.Combo1.Clear(); }},
      {"enabling a timer", [this] { window.Timer1.Enabled = true; }},
      {"a member of an array", [this] { window.Key[1].Caption = "x"; }},
  };
  for (const auto& [name, reference] : references) {
    SCOPED_TRACE(name);
    reference();
    EXPECT_TRUE(window.isLoaded());
    EXPECT_EQ(takeNotes(), Notes({"load"}));
    window.Unload();
    takeNotes();
  }
}

TEST_F(WindowLoadingTest, ASecondReferenceDoesNotLoadAgain) {
  window.Show();
  window.Label1.Caption = "x";
  window.Hide();
  window.Show();
  EXPECT_EQ(takeNotes(), Notes({"load"}));
}

TEST_F(WindowLoadingTest, LookingNeverLoads) {
  EXPECT_EQ(window.Label1.Caption.peek(), "Label");
  EXPECT_EQ(std::get<bool>(window.property("Visible")->value()), false);
  EXPECT_EQ(std::get<std::string>(window.Label1.property("Caption")->value()), "Label");
  EXPECT_FALSE(window.Command1.isReachable());
  EXPECT_EQ(window.Command1.fullName(), "Command1");
  EXPECT_EQ(window.name(), "Window1");
  EXPECT_FALSE(window.isLoaded());
}

TEST_F(WindowLoadingTest, TheUserOfAnUnloadedWindowReachesNothingAndLoadsNothing) {
  EXPECT_FALSE(window.userClose());
  EXPECT_FALSE(window.userState(minimised));
  EXPECT_FALSE(window.Command1.userClick());
  EXPECT_FALSE(window.Text1.userType("x"));
  EXPECT_FALSE(window.Text1.userErase());
  EXPECT_FALSE(window.List1.userSelect(0));
  EXPECT_FALSE(window.Slider1.userMove(3));
  EXPECT_FALSE(window.TabStrip1.userTab(1));
  EXPECT_FALSE(window.isLoaded());
}

TEST_F(WindowLoadingTest, TheLoadRunsOnTheDesignState) {
  window.Label1.Caption = "before";
  window.Unload();
  window.onLoad = [this] {
    note(window.Label1.Caption);
    window.Label1.Caption = "loaded";
  };
  takeNotes();
  // The reference that loads goes on after the load: its value is the last.
  window.Label1.Caption = window.Label1.Caption + ", then assigned";
  EXPECT_EQ(takeNotes(), Notes({"Label"}));
  EXPECT_EQ(window.Label1.Caption.get(), "loaded, then assigned");
}

TEST_F(WindowLoadingTest, ItsOwnReferencesDuringTheLoadDoNotLoadItAgain) {
  window.onLoad = [this] {
    note("load");
    window.Label1.Caption = "x";
    window.Show();
  };
  window.Show();
  EXPECT_EQ(takeNotes(), Notes({"load"}));
}

TEST_F(WindowLoadingTest, WindowsThatReferToOneAnotherDuringTheirLoadsLoadOnceEach) {
  window.onLoad = [this] {
    note("first");
    other.Label1.Caption = "by the first";
  };
  other.onLoad = [this] {
    note("second");
    window.Label1.Caption = "by the second";
  };
  window.Show();
  EXPECT_EQ(takeNotes(), Notes({"first", "second"}));
  EXPECT_EQ(window.Label1.Caption.get(), "by the second");
  EXPECT_EQ(other.Label1.Caption.get(), "by the first");
}

TEST_F(WindowLoadingTest, TheLoadCountsAsAHandler) {
  window.onLoad = [this] { note(std::to_string(depth())); };
  window.Show();
  EXPECT_EQ(takeNotes(), Notes({"1"}));
}

TEST_F(WindowLoadingTest, AFailureOfTheLoadStaysItsOwn) {
  window.onLoad = [this] {
    window.Label1.Caption = "before the failure";
    throw failure::typeMismatch();
  };
  now([this] {
    window.Text1.Text = "assigned";
    note("went on");
  });
  EXPECT_EQ(takeNotes(), Notes({"went on"}));
  EXPECT_TRUE(window.isLoaded());
  EXPECT_FALSE(ended());
  EXPECT_TRUE(machine().boxes.takeShown().empty());
  EXPECT_EQ(window.Label1.Caption.get(), "before the failure");
  EXPECT_EQ(window.Text1.Text.get(), "assigned");
}

TEST_F(WindowLoadingTest, UnloadingRunsFormUnloadWhileTheStateStillStands) {
  window.Show();
  window.Label1.Caption = "last";
  window.onUnload = [this] { note(window.Label1.Caption); };
  takeNotes();
  window.Unload();
  EXPECT_EQ(takeNotes(), Notes({"last"}));
  EXPECT_FALSE(window.isLoaded());
  EXPECT_FALSE(window.Visible.peek());
}

TEST_F(WindowLoadingTest, UnloadingWhatIsNotLoadedDoesNothing) {
  window.Unload();
  EXPECT_EQ(takeNotes(), Notes());
}

TEST_F(WindowLoadingTest, ClosingByTheUserIsUnloading) {
  window.Show();
  takeNotes();
  EXPECT_TRUE(window.userClose());
  EXPECT_EQ(takeNotes(), Notes({"unload"}));
  EXPECT_FALSE(window.isLoaded());
}

TEST_F(WindowLoadingTest, EveryControlComesBackInItsDesignState) {
  window.Show();
  window.Caption = "x";
  window.MousePointer = hourglass;
  window.Label1.Caption = "x";
  window.Label1.Visible = false;
  window.Command1.Enabled = false;
  window.Command1.BackColor = 0xFF;
  window.Text1.Text = "x";
  window.Text1.MaxLength = 1;
  window.Combo1.AddItem("x");
  window.Combo1.ListIndex = 0;
  window.List1.AddItem("x");
  window.Slider1.Max = 99;
  window.Slider1.Value = 50;
  window.TabStrip1.Value = 2;
  window.Timer1.Interval = 5;
  window.Option2.Value = true;
  window.Unload();
  takeNotes();

  window.Show();
  EXPECT_EQ(takeNotes(), Notes({"load"}));
  EXPECT_EQ(window.Caption.get(), "Design");
  EXPECT_EQ(window.MousePointer.get(), arrow);
  EXPECT_EQ(window.Label1.Caption.get(), "Label");
  EXPECT_TRUE(window.Label1.Visible);
  EXPECT_TRUE(window.Command1.Enabled);
  EXPECT_EQ(window.Command1.BackColor.get(), kButtonGrey);
  EXPECT_EQ(window.Text1.Text.get(), "design");
  EXPECT_EQ(window.Text1.MaxLength.get(), 0);
  EXPECT_EQ(window.Combo1.ListCount(), 0);
  EXPECT_EQ(window.Combo1.Text.get(), "");
  EXPECT_EQ(window.Combo1.ListIndex.get(), -1);
  EXPECT_EQ(window.List1.ListCount(), 0);
  EXPECT_EQ(window.Slider1.Max.get(), 15);
  EXPECT_EQ(window.Slider1.Value.get(), 3);
  EXPECT_EQ(window.TabStrip1.Value.get(), 1);
  EXPECT_EQ(window.Timer1.Interval.get(), 1000);
  EXPECT_TRUE(window.Option1.Value);
  EXPECT_FALSE(window.Option2.Value);
}

TEST_F(WindowLoadingTest, PuttingTheDesignBackRunsNoHandler) {
  window.Show();
  window.Text1.Text = "x";
  window.Option2.Value = true;
  window.WindowState = minimised;
  window.Unload();
  window.Text1.Change = [this] { note("change"); };
  window.Option1.Click = [this] { note("click"); };
  takeNotes();
  window.Show();
  EXPECT_EQ(takeNotes(), Notes({"load"}));
}

TEST_F(WindowLoadingTest, HidingKeepsTheState) {
  window.Show();
  window.Label1.Caption = "kept";
  window.Hide();
  EXPECT_FALSE(window.Visible);
  window.Show();
  EXPECT_EQ(window.Label1.Caption.get(), "kept");
  EXPECT_EQ(takeNotes(), Notes({"load"}));
}

TEST_F(WindowLoadingTest, AHandlerThatStillWaitsLoadsItsClosedWindowAnewAtTheNextReference) {
  window.Show();
  takeNotes();
  window.Command1.Click = [this] {
    window.Label1.Caption = "waiting";
    wait(2);
    note("loaded: " + std::to_string(window.isLoaded()));
    window.Label1.Caption = window.Label1.Caption + ", back";
  };
  time().after(Duration::zero(), [this] { window.Command1.userClick(); });
  time().after(fromSeconds(1), [this] { window.userClose(); });
  settle();
  EXPECT_EQ(takeNotes(), Notes({"unload", "loaded: 0", "load"}));
  EXPECT_TRUE(window.isLoaded());
  EXPECT_FALSE(window.Visible);
  EXPECT_EQ(window.Label1.Caption.get(), "Label, back");
}

TEST_F(WindowLoadingTest, AClosingThatWaitsKeepsTheWindowLoadedUntilItsEnd) {
  window.Show();
  window.onUnload = [this] { wait(1); };
  time().after(Duration::zero(), [this] { window.userClose(); });
  run(0.5);
  EXPECT_TRUE(window.isLoaded());
  EXPECT_EQ(depth(), 1);
  settle();
  EXPECT_FALSE(window.isLoaded());
}

TEST_F(WindowLoadingTest, ResizeComesWithEachChangeOfTheStateByUserOrCode) {
  window.Show();
  takeNotes();
  EXPECT_TRUE(window.userState(minimised));
  EXPECT_EQ(window.WindowState.get(), 1);
  EXPECT_TRUE(window.userState(minimised));
  EXPECT_TRUE(window.userState(maximised));
  window.WindowState = normal;
  window.WindowState = normal;
  EXPECT_EQ(takeNotes(), Notes({"resize", "resize", "resize"}));
}

TEST_F(WindowLoadingTest, TheUserCanNotChangeAHiddenWindow) {
  window.Show();
  window.Hide();
  EXPECT_FALSE(window.userClose());
  EXPECT_FALSE(window.userState(minimised));
  EXPECT_TRUE(window.isLoaded());
  EXPECT_EQ(window.WindowState.get(), normal);
}

TEST_F(WindowLoadingTest, ControlsAreFoundByNameAndIndex) {
  EXPECT_EQ(window.control("Label1"), &window.Label1);
  EXPECT_EQ(window.control("Key", 1), &window.Key[1]);
  EXPECT_EQ(window.control("Key", 2), nullptr);
  EXPECT_EQ(window.control("Key"), nullptr);
  EXPECT_EQ(window.control("Label1", 0), nullptr);
  EXPECT_EQ(window.control("label1"), nullptr);
  EXPECT_EQ(window.control("Label9"), nullptr);
  EXPECT_FALSE(window.isLoaded());
}

}  // namespace
}  // namespace gsm
