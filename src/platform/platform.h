#pragma once
// The seam to the machine. Everything the program takes from the machine passes through here:
// the clock as text, message boxes, the printer, the beep, the pseudo-random fraction, the
// yield to the window system and the end of the process. The program installs the real one
// (qt_platform.h); a test installs its own (tests/support).
#include <string>
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

// Ends the process. Thrown by a test platform in place of ending, so that nothing after the
// end runs; the event dispatch swallows it.
struct ProcessEnded {
  int exit_code = 0;
};

class Platform {
 public:
  virtual ~Platform() = default;

  // Today as "3/5/2001" (month/day/year, no leading zeros).
  virtual std::string System_Date() = 0;
  // Now as "2:05:09 PM" (hour without leading zero, minutes and seconds with).
  virtual std::string System_Time() = 0;

  // A modal message box; answers vbOK, vbCancel, vbYes or vbNo.
  virtual int Message_Box(const std::string& text, int buttons, int icon, const std::string& title) = 0;

  // One print job holding the image of a window, on one page.
  virtual void Print_Window(QWidget& window) = 0;
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

// The platform in use. The program installs the real one at start.
Platform& Machine();
void Install(Platform* platform);

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
