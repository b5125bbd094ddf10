#pragma once
// What the two windows of setting a reminder do alike with their boxes: a box filled with its
// list and left empty, and a group of controls enabled or disabled with the boxes among them
// coloured to match.
#include <QComboBox>
#include <QWidget>
#include <initializer_list>
#include <string>
#include <vector>

namespace orrivane::reminder_boxes {

// The texts as the box's list, none of them chosen: an empty box.
void Fill(QComboBox* box, const std::vector<std::string>& texts);

// Enables or disables the controls and the boxes; an enabled box takes the colour of a window's
// background, a disabled one the colour of a scroll bar.
void Enable(std::initializer_list<QWidget*> controls, std::initializer_list<QComboBox*> boxes, bool enabled);

}  // namespace orrivane::reminder_boxes
