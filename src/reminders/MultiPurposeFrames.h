#pragma once
// How the files of frmMultiPurposeForm make the controls of their frames: a table of rows, each
// the member that keeps the control, its name, its caption and its place in pixels within its
// frame (the frames have the window's sizes in twips, controls::Px).
#include <QRect>
#include <QString>
#include <initializer_list>
#include <type_traits>

#include "platform/controls.h"
#include "reminders/frmMultiPurposeForm.h"

namespace orrivane::multi_purpose_frames {

template <class C>
struct Placed {
  C* frmMultiPurposeForm::* member;
  const char* name;
  const char* caption;  // nullptr for a control without one
  QRect place;
};

// Makes each control of the rows a child of `parent`, named, captioned and placed.
template <class C>
void Make_Placed(frmMultiPurposeForm& form, QWidget* parent, std::initializer_list<Placed<C>> rows) {
  for (const Placed<C>& row : rows) {
    C* control = nullptr;
    if constexpr (std::is_constructible_v<C, QString, QWidget*>) {
      control = row.caption != nullptr ? controls::Make<C>(parent, row.name, QString(row.caption))
                                       : controls::Make<C>(parent, row.name);
    } else {
      control = controls::Make<C>(parent, row.name);
    }
    control->setGeometry(row.place);
    form.*row.member = control;
  }
}

// A frame's size in pixels.
constexpr int Frame_Width(reminders::MultiPurposeFrame frame) {
  return controls::Px(reminders::Frame_Size(frame).width);
}
constexpr int Frame_Height(reminders::MultiPurposeFrame frame) {
  return controls::Px(reminders::Frame_Size(frame).height);
}

// Common measures of the frames.
inline constexpr int kMargin = 8;
inline constexpr int kButtonHeight = 28;
inline constexpr int kButtonWidth = 100;
inline constexpr int kRowHeight = 20;
inline constexpr int kBoxHeight = 24;

}  // namespace orrivane::multi_purpose_frames
