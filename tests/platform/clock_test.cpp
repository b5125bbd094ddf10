// The clock is read once for the date and the time together, so that the two texts always belong
// to the same moment, also across midnight.
#include <QComboBox>
#include <QDateTime>
#include <QRegularExpression>
#include <set>

#include "calendar/calendar_window_test.h"
#include "elapsed/frmFindDateDifference.h"
#include "platform/platform.h"
#include "platform/qt_platform.h"

namespace orrivane::platform {
// How a failing check shows a reading.
static void PrintTo(const ClockReading& reading, std::ostream* out) { *out << reading.date << " " << reading.time; }
}  // namespace orrivane::platform

namespace orrivane {
namespace {

using platform::ClockReading;
using platform::Machine;
using testing::CalendarWindowTest;
using testing::WindowTest;

const ClockReading kLastMomentOf5March2001{"3/5/2001", "11:59:59 PM"};
const ClockReading kMidnightOf6March2001{"3/6/2001", "12:00:00 AM"};

class ClockTest : public WindowTest {};

TEST_F(ClockTest, OneReadingJustBeforeAndAtMidnightGivesADateAndTimeOfTheSameMoment) {
  machine().Set_Now(2001, 3, 5, 23, 59, 59);
  machine().Advance_Milliseconds(999);
  EXPECT_EQ(Machine().Read_Clock(), kLastMomentOf5March2001);
  machine().Advance_Milliseconds(1);
  EXPECT_EQ(Machine().Read_Clock(), kMidnightOf6March2001);
}

TEST_F(ClockTest, TheDateAloneAndTheTimeAloneAreOneReadingEach) {
  const int before = machine().Clock_Readings();
  Machine().System_Date();
  Machine().System_Time();
  EXPECT_EQ(machine().Clock_Readings(), before + 2);
}

TEST_F(ClockTest, AClockThatMovesBetweenReadingsMovesAfterEachWholeReading) {
  machine().Set_Now(2001, 3, 5, 23, 59, 59);
  machine().Advance_Milliseconds(999);
  machine().Advance_On_Each_Reading(1);
  EXPECT_EQ(Machine().Read_Clock(), kLastMomentOf5March2001);
  EXPECT_EQ(Machine().Read_Clock(), kMidnightOf6March2001);
}

TEST(RealClock, AMomentJustBeforeAndAtMidnightGivesBothTextsOfThatMoment) {
  EXPECT_EQ(platform::Clock_Reading_Of(QDateTime(QDate(2001, 3, 5), QTime(23, 59, 59, 999))), kLastMomentOf5March2001);
  EXPECT_EQ(platform::Clock_Reading_Of(QDateTime(QDate(2001, 3, 6), QTime(0, 0))), kMidnightOf6March2001);
}

TEST(RealClock, TheMachinesClockReadsAsTheProgramWritesDatesAndTimes) {
  platform::QtPlatform real;
  const ClockReading now = real.Read_Clock();
  EXPECT_TRUE(QRegularExpression(R"(^\d{1,2}/\d{1,2}/\d{4}$)").match(QString::fromStdString(now.date)).hasMatch())
      << now.date;
  EXPECT_TRUE(QRegularExpression(R"(^\d{1,2}:\d\d:\d\d [AP]M$)").match(QString::fromStdString(now.time)).hasMatch())
      << now.time;
}

// The time-length window reads "now" for each blank side; a clock moving on between two readings
// just before midnight gives each side the date and the time of one moment.
class TimeLengthClockTest : public CalendarWindowTest {};

TEST_F(TimeLengthClockTest, TheTimeLengthWindowTakesItsNowFromOneReadingOfTheClock) {
  Start_Program();
  ASSERT_TRUE(Trigger(large(), "mnuFindTimeLengthBetweenDates"));
  frmFindDateDifference& window = Window<frmFindDateDifference>();
  for (int side : {0, 1}) Type(Control<QComboBox>(window, controls::Array_Name("ComboCentury", side))->lineEdit(), "");
  machine().Set_Now(2024, 3, 16, 23, 59, 59);
  machine().Advance_Milliseconds(999);
  machine().Advance_On_Each_Reading(1);
  Trigger(window, "cmdENTER");
  const std::set<std::string> one_moment{"23:59, March 16, 2024", "00:00, March 17, 2024"};
  EXPECT_EQ(one_moment.count(Label(window, "lblTime1")), 1u) << Label(window, "lblTime1");
  EXPECT_EQ(one_moment.count(Label(window, "lblTime2")), 1u) << Label(window, "lblTime2");
}

}  // namespace
}  // namespace orrivane
