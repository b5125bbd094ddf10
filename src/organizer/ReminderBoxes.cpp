#include "organizer/ReminderBoxes.h"

#include "core/colours.h"
#include "platform/controls.h"

namespace orrivane::reminder_boxes {

void Fill(QComboBox* box, const std::vector<std::string>& texts) {
  for (const std::string& text : texts) box->addItem(QString::fromStdString(text));
  box->setCurrentIndex(-1);
}

void Enable(std::initializer_list<QWidget*> controls, std::initializer_list<QComboBox*> boxes, bool enabled) {
  for (QWidget* control : controls) control->setEnabled(enabled);
  for (QComboBox* box : boxes) {
    box->setEnabled(enabled);
    controls::Set_Box_Color(box, enabled ? colours::kWindowBackground : colours::kScrollBars);
  }
}

}  // namespace orrivane::reminder_boxes
