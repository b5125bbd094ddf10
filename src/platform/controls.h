#pragma once
// Small helpers shared by the windows: the program's colour numbers, twips, control names.
#include <QAbstractButton>
#include <QColor>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QString>
#include <QStringList>
#include <functional>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "core/colours.h"

class QPlainTextEdit;

namespace orrivane::controls {

// The program's colour numbers (core/colours.h).
using colours::kButtonFace;
using colours::kButtonText;
using colours::kGrayText;
using colours::kRed;
using colours::kWindowBackground;

// The colour a program colour number stands for, system colours through the palette.
QColor To_QColor(unsigned colour);

// A control of type C made a child of `parent` and known by `name`; further arguments go to C's
// constructor before the parent (a caption, for instance).
template <class C, class... Args>
C* Make(QWidget* parent, const QString& name, Args&&... args) {
  auto* control = new C(std::forward<Args>(args)..., parent);
  control->setObjectName(name);
  return control;
}
inline QLabel* Make_Label(QWidget* parent, const QString& name, const QString& caption = {}) {
  return Make<QLabel>(parent, name, caption);
}
inline QPushButton* Make_Button(QWidget* parent, const QString& name, const QString& caption) {
  return Make<QPushButton>(parent, name, caption);
}

// A combo box. An editable one takes what is typed, as typed: nothing is completed inline and
// nothing typed is added to its list ("5" typed as a century stays "5").
QComboBox* Make_Combo(QWidget* parent, const QString& name, bool editable);

// Twips (15 to a pixel) to pixels.
constexpr int Px(int twips) { return twips / 15; }

// The name of an element of a control array: "lblCalDate(5)".
QString Array_Name(const char* name, int index);

// A label's caption and colours as the program reads and writes them. The program colour of
// a label is kept in a property so that a test (and the program) reads back exactly the number
// that was written, system colours included.
void Set_Caption(QLabel* label, const std::string& caption);
std::string Caption(const QLabel* label);
void Set_Fore_Color(QWidget* widget, unsigned colour);
void Set_Back_Color(QWidget* widget, unsigned colour);
unsigned Fore_Color(const QWidget* widget);
unsigned Back_Color(const QWidget* widget);
// The face of a text or combo box in a program colour (the window background of an enabled box,
// the button face of a disabled one), read back by Back_Color.
void Set_Box_Color(QWidget* box, unsigned colour);

// The entries of a box, from the core's texts.
QStringList Texts(const std::vector<std::string>& texts);

// An input enabled with the face of a window's background, or disabled with a button's face.
void Enable_Input(QWidget* input, bool enabled);

// Gives `buttons` one font, the largest not above their own at which every caption fits its
// button: a window's sizes come in twips from a design whose font was narrower than this one.
void Fit_Captions(std::initializer_list<QAbstractButton*> buttons);

// Runs `procedure` each time the user gives `control` the focus (a click, a tab). Its window coming
// back to the front, or its own list of choices closing, is no new visit.
void On_Got_Focus(QWidget* control, std::function<void()> procedure);

// What a box holds, as the program reads it.
inline std::string Text_Of(const QComboBox* box) { return box->currentText().toStdString(); }
inline std::string Text_Of(const QLineEdit* box) { return box->text().toStdString(); }
// A multi-line box's text with its line breaks as the files keep them, CR LF.
std::string Lines_Of(const QPlainTextEdit* box);

// The Cancel role of a button: Escape in its window presses it, as Enter presses the default
// button (platform/WindowKeys.h). A window gives the role to one button at a time.
void Set_Cancel(QPushButton* button, bool cancel);
bool Is_Cancel(const QPushButton* button);

// Shows a window and brings it to the front, active: how every window is asked for.
void Show_In_Front(QWidget& window);

}  // namespace orrivane::controls
