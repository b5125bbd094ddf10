#pragma once
// A window that prints rows of text straight onto itself at positions in twips, as the About
// and licence windows do, moves its view through the rows by buttons, and goes back to its top
// each time it becomes active.
#include <QPainter>
#include <QPushButton>
#include <QRect>
#include <QSize>
#include <QWidget>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"

namespace orrivane {

class RowWindow : public QWidget {
 public:
  // Where the view may stand, and how many rows a page moves it.
  struct ScrollStops {
    int first;
    int last;
    int page;
  };

  // A button of a row window: its name and caption, where it stands in pixels, the member that
  // keeps it, and the verb it moves the view by (none for a button that does something else).
  template <class Window>
  struct ButtonPlace {
    const char* name;
    const char* caption;
    int x, y, width;
    QPushButton* Window::*member;
    const char* direction = nullptr;
  };

  // How far a verb moves the view: "up" and "down" one row, "pageup" and "pagedown" a page of
  // `page` rows; 0 for any other verb.
  static int Scroll_Step(std::string_view direction, int page);

  // What was printed last: left edge and top in twips, and the text.
  const std::vector<platform::PrintedText>& Printed_Rows() const { return Printed_; }
  // The first row of the view.
  int Position() const { return Position_; }
  // Row DataLine of the text; the empty text for a number outside it.
  virtual std::string DataSource(int DataLine) const = 0;

  // The window became active.
  virtual void Form_Activate() = 0;

  QPushButton* CmdUP = nullptr;
  QPushButton* CmdDown = nullptr;
  QPushButton* CmdPageUp = nullptr;
  QPushButton* CmdPageDown = nullptr;
  QPushButton* cmdClose = nullptr;

 protected:
  // A window named and titled so, of `size` at first and at the least, its background filled
  // under the rows.
  RowWindow(const char* name, const char* title, QSize size);

  static constexpr int kButtonHeight = 30;  // pixels

  // Makes the buttons of a table in its order, which is the order of the Tab key, and has each
  // one that has a verb hand it to `scroll`.
  template <class Window, std::size_t N>
  void Make_Buttons(const ButtonPlace<Window> (&places)[N], void (Window::*scroll)(const std::string&)) {
    Window& window = static_cast<Window&>(*this);
    for (const ButtonPlace<Window>& place : places) {
      QPushButton* button = Make_Button(place.name, place.caption, QRect(place.x, place.y, place.width, kButtonHeight));
      if (place.direction != nullptr) {
        connect(button, &QPushButton::clicked, this, [&window, scroll, direction = place.direction] {
          (window.*scroll)(direction);
        });
      }
      window.*place.member = button;
    }
  }

  // Moves the view by the step of a verb and keeps it within the stops: a step is taken only
  // from inside them, and a view that passes an end, or stood outside them, lands on the end
  // with a beep.
  void Move_Position(std::string_view direction, const ScrollStops& stops);
  void Set_Position(int position) { Position_ = position; }

  void Clear_Rows() { Printed_.clear(); }
  void Print_Row(int x_twips, int y_twips, const std::string& text) { Printed_.push_back({x_twips, y_twips, text}); }
  // Draws the printed rows with the painter's font.
  void Draw_Rows(QPainter& painter) const;

  void showEvent(QShowEvent* event) override;
  bool event(QEvent* event) override;

 private:
  QPushButton* Make_Button(const char* name, const char* caption, const QRect& geometry);

  std::vector<platform::PrintedText> Printed_;
  int Position_ = 0;
  bool Deactivated_ = false;  // set when the window loses the focus while shown
};

}  // namespace orrivane
