#pragma once
// The harness of the window tests: the program runs in a fresh temporary current folder, with a
// fixed clock the test can move, scripted answers to message boxes (every message shown is
// recorded; one that was not expected fails the test), printed pages kept as images, beeps
// counted and the end of the process recorded.
#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>
#include <QWidget>
#include <deque>
#include <functional>
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

struct PrintJob {
  std::vector<QImage> pages;
  std::vector<platform::TextPage> text;  // empty for a window image
};

class FakePlatform : public platform::Platform {
 public:
  // The clock. Months and days count from 1, the hour from 0 to 23.
  void Set_Now(int year, int month, int day, int hour = 12, int minute = 0, int second = 0);
  void Advance_Seconds(long long seconds);
  void Advance_Days(long long days) { Advance_Seconds(days * 86400); }

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

  std::string System_Date() override;
  std::string System_Time() override;
  int Message_Box(const std::string& text, int buttons, int icon, const std::string& title) override;
  void Print_Window(QWidget& window) override;
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
  long long now_ = 0;  // seconds since 1 January 1970, proleptic Gregorian
  std::deque<Expected> answers_;
  std::vector<ShownMessage> messages_;
  std::vector<PrintJob> jobs_;
  int beeps_ = 0;
  int yields_ = 0;
  std::optional<int> exit_code_;
  std::deque<double> rnd_script_;
  platform::RandomSequence random_;
  double seed_ = 0;
  std::function<void()> on_yield_;
};

class WindowTest : public ::testing::Test {
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
  // Runs an action that ends the program. Ending unwinds through the window system's own
  // frames, which keep what they hold; a program that ends leaves that to the machine, so the
  // leak checker is told not to count it.
  void Until_The_End(const std::function<void()>& action);
  // Types into a text box after emptying it.
  void Type(QWidget* widget, const QString& text);
  // Runs an action from the event loop once a modal window has opened.
  void When_Modal(std::function<void()> action);
  // Lets queued events run.
  void Process_Events();

 private:
  FakePlatform machine_;
  std::unique_ptr<QTemporaryDir> folder_;
  QString previous_folder_;
};

}  // namespace orrivane::testing
