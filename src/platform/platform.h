#pragma once
// The seam to the machine. Everything the program takes from the machine passes through here:
// the clock as text, repeating timers, message boxes, the printer, the beep, the pseudo-random
// fraction, the yield to the window system and the end of the process. The program installs the
// real one (qt_platform.h); a test installs its own (tests/support).
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/message.h"

class QImage;
class QWidget;

namespace orrivane::platform {

// Button sets, icons and answers of a message box, numbered as the program numbers them.
using enum MessageButtons;
using enum MessageIcon;
using enum MessageAnswer;

// A text printed at a position on the page, measured in twips (1440 to the inch) from the
// page's top left corner.
struct PrintedText {
  int x_twips = 0;
  int y_twips = 0;
  std::string text;
};
using TextPage = std::vector<PrintedText>;

// Today and now, read from the clock at one instant, so that the two never straddle midnight.
struct ClockReading {
  std::string date;  // "3/5/2001": month/day/year, no leading zeros
  std::string time;  // "2:05:09 PM": hour without a leading zero, minutes and seconds with
  bool operator==(const ClockReading&) const = default;
};

// Names a running repeating timer; 0 names none.
using TimerId = int;

// Ends the process. Thrown by a test platform in place of ending, so that nothing after the
// end runs; the event dispatch swallows it.
struct ProcessEnded {
  int exit_code = 0;
};

class Platform {
 public:
  virtual ~Platform() = default;

  // One reading of the clock. What needs both the date and the time takes them from one reading.
  virtual ClockReading Read_Clock() = 0;
  // Today as "3/5/2001", when the time of day plays no part.
  std::string System_Date() { return Read_Clock().date; }
  // Now as "2:05:09 PM", when the date plays no part.
  std::string System_Time() { return Read_Clock().time; }

  // Starts a timer that runs `tick` on the window thread every `interval_ms` milliseconds (more
  // than 0) until it is stopped. A tick that comes while the previous one of the same timer is
  // still running (it showed a modal window) is skipped, so that ticks never pile up inside
  // each other.
  virtual TimerId Start_Timer(int interval_ms, std::function<void()> tick) = 0;
  // Stops a timer, also from inside its own tick: no tick of it runs afterwards. Stopping a
  // timer that is not running does nothing.
  virtual void Stop_Timer(TimerId timer) = 0;

  // A modal message box; answers vbOK, vbCancel, vbYes or vbNo.
  virtual int Message_Box(const std::string& text, int buttons, int icon, const std::string& title) = 0;

  // A print job of sheets, each the image of a window on a page of its own, drawn at the
  // printer's resolution to fill the page within its margins. The document name tells the job
  // apart in the printer's queue and names the file when the machine has no printer: one file
  // for the whole job; an empty name leaves both to the platform. A job that ends without a
  // sheet prints nothing. WindowPrintJob (below) begins and ends a job around its sheets.
  virtual void Begin_Print_Job(const std::string& document_name) = 0;
  virtual void Print_Sheet(QWidget& window) = 0;
  virtual void End_Print_Job() = 0;
  // One print job holding the image of one window.
  void Print_Window(QWidget& window, const std::string& document_name);
  void Print_Window(QWidget& window) { Print_Window(window, {}); }
  // One print job of pages of text at positions.
  virtual void Print_Text(const std::vector<TextPage>& pages) = 0;

  virtual void Beep() = 0;

  // Seeds the generator; the same seed gives the same fractions.
  virtual void Randomize(double seed) = 0;
  // The next fraction, from 0 up to (not including) 1.
  virtual double Rnd() = 0;

  // Lets the window system handle what is waiting (paints, clicks, timer ticks).
  virtual void Yield() = 0;

  // Ends the process; does not return.
  [[noreturn]] virtual void End_Process(int exit_code) = 0;
};

// A timer's interval must be more than 0 milliseconds; throws std::invalid_argument otherwise.
void Require_Timer_Interval(int interval_ms);

// The tick of a repeating timer, run so that it never runs inside itself: a run that comes while
// the previous one is under way (the tick showed a modal window, whose event loop lets the timer
// fire again) is skipped, and so is one that comes while a failure is being told.
class TimerTick {
 public:
  explicit TimerTick(std::function<void()> tick) : tick_(std::move(tick)) {}
  void Run();

 private:
  std::function<void()> tick_;
  bool running_ = false;
};

// Marks the time an unhandled failure is being told, which ends the program: its message box
// runs an event loop, and no tick of any timer runs inside it.
class FailureBeingTold {
 public:
  FailureBeingTold();
  ~FailureBeingTold();
  FailureBeingTold(const FailureBeingTold&) = delete;
  FailureBeingTold& operator=(const FailureBeingTold&) = delete;
  static bool Now();
};

// The platform in use. The program installs the real one at start.
Platform& Machine();
void Install(Platform* platform);

// A print job on a machine's printer (the machine in use unless told), open while the object
// lives: each window added is one sheet, and the job is ended (sent to the printer, or its file
// closed) when the object goes, on every way out, so that a job is never left open.
class WindowPrintJob {
 public:
  explicit WindowPrintJob(const std::string& document_name, Platform& machine = Machine());
  ~WindowPrintJob();
  WindowPrintJob(const WindowPrintJob&) = delete;
  WindowPrintJob& operator=(const WindowPrintJob&) = delete;
  void Add_Sheet(QWidget& window);

 private:
  Platform& machine_;
};

// The program's own pseudo-random sequence: a 24-bit linear congruential generator, so that a
// seed gives the same colours on every machine.
class RandomSequence {
 public:
  void Seed(double seed);
  double Next();

 private:
  unsigned state_ = 0x50000;
};

// Renders pages of text into images, as a printer would lay them out (8.5 by 11 inches).
std::vector<QImage> Render_Text_Pages(const std::vector<TextPage>& pages, int dots_per_inch);

}  // namespace orrivane::platform
