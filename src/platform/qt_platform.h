#pragma once
// The real platform: the machine's clock, timers on the window thread, Qt message boxes, the
// default printer (or a PDF file in the current folder when the machine has no printer, one
// file a print job), the system beep.
#include <QApplication>
#include <QDateTime>
#include <QPainter>
#include <QPointer>
#include <QPrinter>
#include <QTimer>
#include <map>
#include <memory>

#include "platform/platform.h"

namespace orrivane::platform {

// The clock's texts, whatever the machine's locale.
std::string Format_System_Date(int year, int month, int day);
std::string Format_System_Time(int hour, int minute, int second);
// Both texts of one moment.
ClockReading Clock_Reading_Of(const QDateTime& moment);

class QtPlatform : public Platform {
 public:
  QtPlatform() = default;
  QtPlatform(const QtPlatform&) = delete;
  QtPlatform& operator=(const QtPlatform&) = delete;
  ~QtPlatform() override;
  ClockReading Read_Clock() override;
  TimerId Start_Timer(int interval_ms, std::function<void()> tick) override;
  void Stop_Timer(TimerId timer) override;
  int Message_Box(const std::string& text, int buttons, int icon, const std::string& title) override;
  void Begin_Print_Job(const std::string& document_name) override;
  void Print_Sheet(QWidget& window) override;
  void End_Print_Job() override;
  void Print_Text(const std::vector<TextPage>& pages) override;
  void Beep() override;
  void Randomize(double seed) override { random_.Seed(seed); }
  double Rnd() override { return random_.Next(); }
  void Yield() override;
  [[noreturn]] void End_Process(int exit_code) override;

 private:
  RandomSequence random_;
  // The running timers; each is a child of the application (which deletes it, should the
  // application end first), deleted when stopped.
  std::map<TimerId, QPointer<QTimer>> timers_;
  TimerId last_timer_ = 0;
  // The print job under way: its name, and the printer and painter opened at its first sheet.
  std::string print_document_;
  std::unique_ptr<QPrinter> printer_;
  std::unique_ptr<QPainter> painter_;
};

// The application object: its event dispatch is the one place where unhandled failures are
// caught, told in a message box titled "Orrivane", and end the program.
class Application : public QApplication {
 public:
  Application(int& argc, char** argv);
  bool notify(QObject* receiver, QEvent* event) override;
};

// Tells an unhandled failure ("Run-time error '13':" and the description) and ends the process.
void Report_Unhandled_Failure(int number, const std::string& description);

}  // namespace orrivane::platform
