#include "organizer/frmColorPalette.h"

#include <QEvent>
#include <QMouseEvent>
#include <QTimer>
#include <string_view>

#include "organizer/frmAddNewAppointment_Reminder.h"
#include "organizer/frmChangeTaskIdInfo.h"
#include "organizer/frmTaskInformation.h"
#include "organizer/organizer_callers.h"
#include "platform/controls.h"
#include "platform/window_registry.h"

namespace orrivane {

namespace {

using controls::Make_Button;
using controls::Make_Label;

// Whose colour label a caller's identity names.
struct ColourRoute {
  std::string_view caller;
  QLabel* (*label)();
};

QLabel* New_Task_Colour() { return Window<frmAddNewAppointment_Reminder>().lblColorChoice; }
QLabel* Task_Information_Colour() { return Window<frmTaskInformation>().lblColorCode; }

QLabel* Task_Identity_Colour() { return Window<frmChangeTaskIdInfo>().lblNewColorCode; }

// The third caller, the window that changes a task's name and person (lblNewColorCode), shows the
// palette modally first and writes its identity only once the palette has closed, so that while
// the palette is open the label holds the identity the caller before left there: a colour picked
// on the first visit from there goes to that caller's label, or nowhere, and only the next visit
// reaches lblNewColorCode. That order is the program's and stays: Form_Activate reads the label
// when the activation comes through.
constexpr ColourRoute kColourRoutes[] = {
    {organizer::kNewTaskSelectColour, New_Task_Colour},
    {organizer::kTaskInformationSelectColour, Task_Information_Colour},
    {organizer::kChangeTaskInfoSelectColour, Task_Identity_Colour},
};

// ---- Geometry, in pixels -----------------------------------------------------------------------
constexpr int kMargin = 12;
constexpr int kSwatchWidth = 44;
constexpr int kSwatchHeight = 18;
constexpr int kSwatchStep = kSwatchHeight + 2;
constexpr int kColumnStep = kSwatchWidth + 4;
constexpr int kSideLeft = kMargin + organizer::kPaletteColumns * kColumnStep + 12;
constexpr int kSideWidth = 96;
constexpr int kChoiceHeight = 64;
constexpr int kButtonHeight = 28;
constexpr int kWindowWidth = kSideLeft + kSideWidth + kMargin;
constexpr int kWindowHeight = 2 * kMargin + organizer::kPaletteRows * kSwatchStep - 2;

}  // namespace

frmColorPalette::frmColorPalette() {
  new HideOnDeactivate(*this);  // owned by the window
  setObjectName("frmColorPalette");
  setWindowTitle("Color Palette");
  Build_Controls();
  Place_Controls();
  connect(cmdSelect, &QPushButton::clicked, this, [this] { cmdSelect_Click(); });
  connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}

void frmColorPalette::Build_Controls() {
  for (int index = 0; index < organizer::kPaletteColours; ++index) {
    QLabel* swatch = Make_Label(this, controls::Array_Name("lblColor", index));
    swatch->setFrameShape(QFrame::Box);
    controls::Set_Back_Color(swatch, organizer::kPalette[static_cast<std::size_t>(index)]);
    swatch->setProperty("index", index);
    swatch->installEventFilter(this);
    lblColor[static_cast<std::size_t>(index)] = swatch;
  }
  lblColorChoice = Make_Label(this, "lblColorChoice");
  lblColorChoice->setFrameShape(QFrame::Box);
  controls::Set_Back_Color(lblColorChoice, organizer::kPalette[0]);
  lblStoreCallingProcedureArgument = Make_Label(this, "lblStoreCallingProcedureArgument");
  lblStoreCallingProcedureArgument->hide();
  cmdSelect = Make_Button(this, "cmdSelect", "Select");
  cmdSelect->setDefault(true);
  cmdCancel = Make_Button(this, "cmdCancel", "Cancel");
}

void frmColorPalette::Place_Controls() {
  for (int index = 0; index < organizer::kPaletteColours; ++index) {
    lblColor[static_cast<std::size_t>(index)]->setGeometry(kMargin + organizer::Palette_Column(index) * kColumnStep,
                                                           kMargin + organizer::Palette_Row(index) * kSwatchStep,
                                                           kSwatchWidth, kSwatchHeight);
  }
  lblColorChoice->setGeometry(kSideLeft, kMargin, kSideWidth, kChoiceHeight);
  cmdSelect->setGeometry(kSideLeft, kMargin + kChoiceHeight + 16, kSideWidth, kButtonHeight);
  cmdCancel->setGeometry(kSideLeft, kMargin + kChoiceHeight + 16 + kButtonHeight + 8, kSideWidth, kButtonHeight);
  setFixedSize(kWindowWidth, kWindowHeight);
}

QLabel* frmColorPalette::Caller_Colour_Label() const {
  const std::string caller = controls::Caption(lblStoreCallingProcedureArgument);
  for (const ColourRoute& route : kColourRoutes) {
    if (route.caller == caller) return route.label();
  }
  return nullptr;
}

void frmColorPalette::Form_Activate() {
  if (const QLabel* caller = Caller_Colour_Label()) {
    controls::Set_Back_Color(lblColorChoice, controls::Back_Color(caller));
  }
}

void frmColorPalette::lblColor_Click(int Index) {
  controls::Set_Back_Color(lblColorChoice, controls::Back_Color(lblColor.at(static_cast<std::size_t>(Index))));
}

void frmColorPalette::cmdSelect_Click() {
  if (QLabel* caller = Caller_Colour_Label()) controls::Set_Back_Color(caller, controls::Back_Color(lblColorChoice));
  hide();
}

void frmColorPalette::cmdCancel_Click() { hide(); }

void frmColorPalette::Show_Modal() {
  setWindowModality(Qt::ApplicationModal);
  QEventLoop loop;
  modal_loop_ = &loop;
  controls::Show_In_Front(*this);
  loop.exec();
  modal_loop_ = nullptr;
  setWindowModality(Qt::NonModal);
}

// The activation is handled once it has gone through: a caller that shows the palette and then
// writes its identity is served by that identity. Being shown counts as becoming active, also
// where the window system kept the palette active while it was hidden and shown again.
bool frmColorPalette::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate || event->type() == QEvent::Show) {
    QTimer::singleShot(0, this, [this] { Form_Activate(); });
  }
  if (event->type() == QEvent::Hide && modal_loop_ != nullptr) modal_loop_->quit();
  return QWidget::event(event);
}

bool frmColorPalette::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
    const QVariant index = watched->property("index");
    if (index.isValid()) {
      lblColor_Click(index.toInt());
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace orrivane
