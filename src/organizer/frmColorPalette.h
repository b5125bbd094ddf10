#pragma once
// The palette of task colours: 50 colours in two columns, the one chosen shown beside them. The
// window serves the window that opened it, named by the text of its hidden
// lblStoreCallingProcedureArgument: it takes that window's colour when it becomes active and
// hands the choice back to it. It puts itself away as soon as another window of the program
// becomes active.
#include <QLabel>
#include <QEventLoop>
#include <QPushButton>
#include <QWidget>
#include <array>

#include "organizer/colour_palette.h"
#include "platform/HideOnDeactivate.h"

namespace orrivane {

class frmColorPalette : public QWidget {
  Q_OBJECT
 public:
  frmColorPalette();

  // ---- Controls --------------------------------------------------------------------------
  std::array<QLabel*, organizer::kPaletteColours> lblColor{};  // two columns of 25
  QLabel* lblColorChoice;  // its background is the colour now chosen
  // Hidden: the identity of the caller (organizer_callers.h), which the caller writes.
  QLabel* lblStoreCallingProcedureArgument;
  QPushButton* cmdSelect;
  QPushButton* cmdCancel;

  // ---- Procedures ------------------------------------------------------------------------
  // The caller's colour into lblColorChoice; an unknown caller leaves it as it is.
  void Form_Activate();
  void lblColor_Click(int Index);
  // The chosen colour to the caller's label, and away; an unknown caller gets nothing.
  void cmdSelect_Click();
  void cmdCancel_Click();
  // Shown in front and modal, for a caller that waits for it: answers once it is hidden again,
  // and is then modeless for the next caller.
  void Show_Modal();

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Build_Controls();
  void Place_Controls();
  // The colour label of the window that the caller's identity names; nothing for an unknown one.
  QLabel* Caller_Colour_Label() const;

  // The loop of a modal showing, while it runs.
  QEventLoop* modal_loop_ = nullptr;
};

}  // namespace orrivane
