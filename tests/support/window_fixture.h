#pragma once
// The harness of the window tests: the program runs in a fresh temporary current folder, with a
// fixed clock the test can move (the program's timers tick as it moves), scripted answers to
// message boxes (every message shown is recorded; one that was not expected fails the test),
// printed pages kept as images, beeps counted and the end of the process recorded. The test
// drives the windows as a user does: clicks, typing, key presses to the focused control, menu
// entries and buttons that must be enabled to be used, and modal windows acted in while open.
#include <gtest/gtest.h>

#include <QImage>
#include <QKeySequence>
#include <QTemporaryDir>
#include <QWidget>
#include <chrono>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/platform.h"

namespace orrivane::testing {

struct ShownMessage {
  std::string title;
  std::string text;
  int buttons = 0;
  int icon = 0;
  int answer = 0;
};

// A print job: its sheets as images, in order, with the job's document name.
struct PrintJob {
  std::vector<QImage> pages;
  std::vector<platform::TextPage> text;  // empty for window images
  std::string document_name;             // as the job of window images was begun, empty for text
};

class FakePlatform : public platform::Platform {
 public:
  // The clock. Months and days count from 1, the hour from 0 to 23. Setting it (Set_Now), either
  // way, runs no tick: every timer keeps the wait it had left, as the machine's timers do.
  // Advancing it is time passing: it runs the ticks of the program's timers that fall due on
  // the way, in order, each with the clock at its own moment, through the event dispatch (whose
  // failures end the program), and none after the end.
  void Set_Now(int year, int month, int day, int hour = 12, int minute = 0, int second = 0);
  void Advance_Milliseconds(long long milliseconds);
  void Advance_Seconds(long long seconds) { Advance_Milliseconds(seconds * 1000); }
  void Advance_Days(long long days) { Advance_Seconds(days * 86400); }
  // Moves the clock on by `milliseconds` after each reading, as a real clock moves between two
  // readings; 0 (the start) holds it still.
  void Advance_On_Each_Reading(long long milliseconds) { step_per_reading_ = milliseconds; }
  int Clock_Readings() const { return readings_; }
  std::size_t Running_Timers() const { return timers_.size(); }

  // The answer to the next message box; with a title, the box must carry that title.
  void Answer_Next(int answer, std::optional<std::string> title = std::nullopt);
  const std::vector<ShownMessage>& Messages() const { return messages_; }
  void Clear_Messages() { messages_.clear(); }
  std::size_t Unanswered() const { return answers_.size(); }

  const std::vector<PrintJob>& Print_Jobs() const { return jobs_; }
  int Beeps() const { return beeps_; }
  std::optional<int> Exit_Code() const { return exit_code_; }
  // Fractions given out in place of the generator's, first in first out.
  void Script_Rnd(double fraction) { rnd_script_.push_back(fraction); }
  double Last_Seed() const { return seed_; }
  int Yields() const { return yields_; }
  // Run at each yield (after the events waiting have been handled).
  void On_Yield(std::function<void()> action) { on_yield_ = std::move(action); }

  platform::ClockReading Read_Clock() override;
  platform::TimerId Start_Timer(int interval_ms, std::function<void()> tick) override;
  void Stop_Timer(platform::TimerId timer) override;
  int Message_Box(const std::string& text, int buttons, int icon, const std::string& title) override;
  // A job of window images is kept when it ends, and only if it has a sheet, as the machine
  // prints nothing for a job without one. A sheet added outside a job fails the test.
  void Begin_Print_Job(const std::string& document_name) override;
  void Print_Sheet(QWidget& window) override;
  void End_Print_Job() override;
  void Print_Text(const std::vector<platform::TextPage>& pages) override;
  void Beep() override { ++beeps_; }
  void Randomize(double seed) override;
  double Rnd() override;
  void Yield() override;
  [[noreturn]] void End_Process(int exit_code) override;

 private:
  struct Expected {
    int answer;
    std::optional<std::string> title;
  };
  struct Timer {
    long long interval_ms;
    long long due;  // the clock's moment of the next tick
    std::shared_ptr<platform::TimerTick> tick;
  };
  void Move_Clock_To(long long moment);
  void Set_Clock_To(long long moment);
  void Run_Ticks_Due_Until(long long moment);
  // The running timer whose next tick comes first, not later than `moment`; the one started
  // first among ticks of the same moment.
  Timer* Next_Due(long long moment);

  long long now_ = 0;  // milliseconds since 1 January 1970, proleptic Gregorian
  long long step_per_reading_ = 0;
  int readings_ = 0;
  std::map<platform::TimerId, Timer> timers_;
  platform::TimerId last_timer_ = 0;
  // While ticks run, the moment the clock is being moved to; a tick that moves the clock on
  // pushes it further instead of running ticks itself.
  std::optional<long long> moving_to_;
  std::deque<Expected> answers_;
  std::vector<ShownMessage> messages_;
  std::vector<PrintJob> jobs_;
  std::optional<PrintJob> open_job_;
  int beeps_ = 0;
  int yields_ = 0;
  std::optional<int> exit_code_;
  std::deque<double> rnd_script_;
  platform::RandomSequence random_;
  double seed_ = 0;
  std::function<void()> on_yield_;
};

class WindowTest : public ::testing::Test {
 public:
  WindowTest();
  ~WindowTest() override;

 protected:
  void SetUp() override;
  void TearDown() override;

  FakePlatform& machine() { return machine_; }
  // The current folder of the test.
  std::string Folder() const;
  std::string Path(const std::string& name) const;
  std::string Read_File(const std::string& name) const;
  void Write_File(const std::string& name, const std::string& content) const;
  bool File_Present(const std::string& name) const;

  // Finds a control of a window by its objectName ("lblCalDate(5)"); fails the test if absent.
  template <class T = QWidget>
  T* Control(QWidget& window, const QString& name) {
    T* found = window.findChild<T*>(name);
    if (found == nullptr) ADD_FAILURE() << "no control named " << name.toStdString();
    return found;
  }

  // Clicks a button (or any widget) as the user does, through the event dispatch.
  void Click(QWidget* widget);
  // Uses the menu entry or button of a window named `name` as the user does, and answers true;
  // fails the test, and uses nothing, when there is none or the user could not reach it
  // (disabled, or in a disabled menu).
  bool Trigger(QWidget& window, const QString& name);
  // Presses keys as the user does, to the control that has the focus (the active window when
  // none has), so that shortcuts go through the window system's own dispatch. Each combination
  // of the sequence ("Ctrl+D", "F4") is pressed and released in turn.
  void Press_Keys(const QKeySequence& keys);
  // Brings a window to the front, as the user does by clicking on its frame, and presses the
  // keys there.
  void Press_Keys(QWidget& window, const QKeySequence& keys);
  // Runs an action that ends the program. Ending unwinds through the window system's own
  // frames, which keep what they hold; a program that ends leaves that to the machine, so the
  // leak checker is told not to count it.
  void Until_The_End(const std::function<void()>& action);
  // Types into a text box after emptying it.
  void Type(QWidget* widget, const QString& text);
  // Runs `action` from the event loop of the next modal window, once it is open: call it just
  // before what opens the window. Fails the test when no modal window opens within `limit` of
  // the event loop running, or before the next When_Modal or the end of the test.
  void When_Modal(std::function<void()> action, std::chrono::milliseconds limit = std::chrono::seconds(5));
  // Lets queued events run.
  void Process_Events();

 private:
  class ModalWait;
  // Fails the test for a When_Modal whose window never opened, and forgets it.
  void Expect_No_Modal_Wait_Left(const char* when);

  FakePlatform machine_;
  std::unique_ptr<QTemporaryDir> folder_;
  QString previous_folder_;
  std::unique_ptr<ModalWait> modal_wait_;
};

}  // namespace orrivane::testing
