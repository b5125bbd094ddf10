// The program's repeating timers: the test machine runs their ticks as its clock moves, each at
// its own moment; the real machine runs them from the window system's event loop.
#include <QDialog>
#include <QTest>
#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "platform/qt_platform.h"
#include "support/window_fixture.h"

namespace orrivane {
namespace {

using platform::Machine;
using platform::TimerId;
using testing::WindowTest;

using Times = std::vector<std::string>;

class FakeTimerTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    machine().Set_Now(2024, 3, 15, 14, 30, 0);
  }

  // Starts a timer whose ticks write down the clock's time, after `name` when there is one.
  TimerId Record_Ticks(int interval_ms, Times& ticks, const std::string& name = "") {
    return Machine().Start_Timer(interval_ms, [&ticks, name] {
      ticks.push_back((name.empty() ? "" : name + " ") + Machine().System_Time());
    });
  }
};

TEST_F(FakeTimerTest, TicksComeAsTheClockMovesEachWithTheClockAtItsOwnMoment) {
  Times ticks;
  Record_Ticks(1000, ticks);
  machine().Advance_Seconds(3);
  EXPECT_EQ(ticks, (Times{"2:30:01 PM", "2:30:02 PM", "2:30:03 PM"}));
  EXPECT_EQ(Machine().System_Time(), "2:30:03 PM");
  machine().Advance_Milliseconds(999);
  EXPECT_EQ(ticks.size(), 3u);
  machine().Advance_Milliseconds(1);
  EXPECT_EQ(ticks.back(), "2:30:04 PM");
  machine().Advance_Seconds(2);
  EXPECT_EQ(ticks, (Times{"2:30:01 PM", "2:30:02 PM", "2:30:03 PM", "2:30:04 PM", "2:30:05 PM", "2:30:06 PM"}));
}

TEST_F(FakeTimerTest, SettingTheClockRunsNoTickAndEachTimerKeepsTheWaitItHadLeft) {
  Times ticks;
  Record_Ticks(5000, ticks);
  machine().Advance_Seconds(2);
  machine().Set_Now(2025, 1, 1, 9, 0, 0);
  EXPECT_TRUE(ticks.empty());
  machine().Advance_Milliseconds(2999);
  EXPECT_TRUE(ticks.empty());
  machine().Advance_Milliseconds(1);
  EXPECT_EQ(ticks, (Times{"9:00:03 AM"}));
  machine().Set_Now(2020, 1, 1, 9, 0, 0);
  machine().Advance_Seconds(5);
  EXPECT_EQ(ticks, (Times{"9:00:03 AM", "9:00:05 AM"}));
}

TEST_F(FakeTimerTest, AWindowOpenedByATickIsOpenFromThatMomentOn) {
  QWidget reminder;
  std::string opened_at;
  Machine().Start_Timer(1000, [&] {
    if (Machine().System_Time() == "2:30:02 PM") {
      reminder.show();
      opened_at = Machine().System_Time();
    }
  });
  machine().Advance_Seconds(1);
  EXPECT_FALSE(reminder.isVisible());
  machine().Advance_Seconds(1);
  EXPECT_TRUE(reminder.isVisible());
  EXPECT_EQ(opened_at, "2:30:02 PM");
}

TEST_F(FakeTimerTest, SeveralTimersTickInTheOrderOfTheirMomentsAndTheFirstStartedFirstOnATie) {
  Times ticks;
  Record_Ticks(2000, ticks, "a");
  Record_Ticks(3000, ticks, "b");
  machine().Advance_Seconds(6);
  EXPECT_EQ(ticks, (Times{"a 2:30:02 PM", "b 2:30:03 PM", "a 2:30:04 PM", "a 2:30:06 PM", "b 2:30:06 PM"}));
  EXPECT_EQ(machine().Running_Timers(), 2u);
}

TEST_F(FakeTimerTest, AStoppedTimerTicksNoMore) {
  Times ticks;
  const TimerId timer = Record_Ticks(1000, ticks);
  machine().Advance_Seconds(2);
  Machine().Stop_Timer(timer);
  machine().Advance_Seconds(5);
  EXPECT_EQ(ticks.size(), 2u);
  EXPECT_EQ(machine().Running_Timers(), 0u);
  Machine().Stop_Timer(timer);  // stopping it again does nothing
  Machine().Stop_Timer(0);
}

TEST_F(FakeTimerTest, ATimerStoppedInsideItsOwnTickStops) {
  int ticks = 0;
  TimerId timer = 0;
  timer = Machine().Start_Timer(1000, [&] {
    if (++ticks == 2) Machine().Stop_Timer(timer);
  });
  machine().Advance_Seconds(10);
  EXPECT_EQ(ticks, 2);
  EXPECT_EQ(Machine().System_Time(), "2:30:10 PM");
}

TEST_F(FakeTimerTest, ATimerStartedInsideATickTicksFromThatTicksMoment) {
  Times ticks;
  bool started = false;
  Machine().Start_Timer(5000, [&] {
    if (!started) Record_Ticks(2000, ticks, "late");
    started = true;
  });
  machine().Advance_Seconds(10);
  EXPECT_EQ(ticks, (Times{"late 2:30:07 PM", "late 2:30:09 PM"}));
}

TEST_F(FakeTimerTest, MovingTheClockBackRunsNothingAndEachTimerKeepsTheWaitItHadLeft) {
  Times ticks;
  Record_Ticks(10000, ticks);
  machine().Advance_Seconds(4);
  machine().Set_Now(2024, 3, 15, 14, 0, 0);
  machine().Advance_Seconds(-30);
  EXPECT_TRUE(ticks.empty());
  EXPECT_EQ(Machine().System_Time(), "1:59:30 PM");
  machine().Advance_Seconds(5);
  EXPECT_TRUE(ticks.empty());
  machine().Advance_Seconds(1);
  EXPECT_EQ(ticks, Times{"1:59:36 PM"});
}

TEST_F(FakeTimerTest, ATickThatMovesTheClockOnLetsTheTicksStillDueRunAfterItInOrder) {
  Times ticks;
  bool moved = false;
  Machine().Start_Timer(1000, [&] {
    ticks.push_back(Machine().System_Time());
    if (!moved) {
      moved = true;
      machine().Advance_Seconds(4);
    }
  });
  machine().Advance_Seconds(2);
  EXPECT_EQ(ticks, (Times{"2:30:01 PM", "2:30:02 PM", "2:30:03 PM", "2:30:04 PM", "2:30:05 PM"}));
  EXPECT_EQ(Machine().System_Time(), "2:30:05 PM");
}

TEST_F(FakeTimerTest, ATickThatShowsAModalWindowIsNotRunInsideItself) {
  Times ticks;
  int depth = 0;
  int deepest = 0;
  QDialog reminder;
  Machine().Start_Timer(1000, [&] {
    deepest = std::max(deepest, ++depth);
    ticks.push_back(Machine().System_Time());
    if (ticks.size() == 1) {
      When_Modal([&] {
        machine().Advance_Seconds(3);  // time passes while the window is up
        reminder.accept();
      });
      reminder.exec();
    }
    --depth;
  });
  machine().Advance_Seconds(1);
  EXPECT_EQ(deepest, 1);
  EXPECT_EQ(ticks, (Times{"2:30:01 PM", "2:30:02 PM", "2:30:03 PM", "2:30:04 PM"}));
}

TEST_F(FakeTimerTest, AnIntervalOfNoTimeIsRefused) {
  EXPECT_THROW(Machine().Start_Timer(0, [] {}), std::invalid_argument);
  EXPECT_THROW(Machine().Start_Timer(-1000, [] {}), std::invalid_argument);
  EXPECT_EQ(machine().Running_Timers(), 0u);
}

// ---- The machine's own timers --------------------------------------------------------------------

constexpr int kBoundedWaitMs = 5000;

TEST(QtPlatformTimer, StartsAndTicksFromTheEventLoopUntilStopped) {
  platform::QtPlatform real;
  int ticks = 0;
  const TimerId timer = real.Start_Timer(5, [&] { ++ticks; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 3; }, kBoundedWaitMs));
  real.Stop_Timer(timer);
  const int stopped_at = ticks;
  QTest::qWait(50);
  EXPECT_EQ(ticks, stopped_at);
}

TEST(QtPlatformTimer, ATimerStoppedInsideItsOwnTickStops) {
  platform::QtPlatform real;
  int ticks = 0;
  TimerId timer = 0;
  timer = real.Start_Timer(5, [&] {
    if (++ticks == 2) real.Stop_Timer(timer);
  });
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 2; }, kBoundedWaitMs));
  QTest::qWait(50);
  EXPECT_EQ(ticks, 2);
}

TEST(QtPlatformTimer, ATickThatRunsAnEventLoopIsNotEnteredAgain) {
  platform::QtPlatform real;
  int ticks = 0;
  int depth = 0;
  int deepest = 0;
  real.Start_Timer(5, [&] {
    deepest = std::max(deepest, ++depth);
    ++ticks;
    QTest::qWait(30);  // as a modal window would, while the timer keeps firing
    --depth;
  });
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 3; }, kBoundedWaitMs));
  EXPECT_EQ(deepest, 1);
}

TEST(QtPlatformTimer, AnIntervalOfNoTimeIsRefused) {
  platform::QtPlatform real;
  EXPECT_THROW(real.Start_Timer(0, [] {}), std::invalid_argument);
}

}  // namespace
}  // namespace orrivane
