#pragma once
// A window that prints rows of text straight onto itself at positions in twips, as the About
// and licence windows do, and goes back to its top each time it becomes active.
#include <QPainter>
#include <QWidget>
#include <vector>

#include "platform/platform.h"

namespace orrivane {

class RowWindow : public QWidget {
 public:
  // What was printed last: left edge and top in twips, and the text.
  const std::vector<platform::PrintedText>& Printed_Rows() const { return Printed_; }

  // The window became active.
  virtual void Form_Activate() = 0;

 protected:
  void Clear_Rows() { Printed_.clear(); }
  void Print_Row(int x_twips, int y_twips, const std::string& text) { Printed_.push_back({x_twips, y_twips, text}); }
  // Draws the printed rows with the painter's font.
  void Draw_Rows(QPainter& painter) const;

  void showEvent(QShowEvent* event) override;
  bool event(QEvent* event) override;

 private:
  std::vector<platform::PrintedText> Printed_;
  bool Deactivated_ = false;  // set when the window loses the focus while shown
};

}  // namespace orrivane
