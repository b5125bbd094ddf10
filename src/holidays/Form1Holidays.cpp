// Form1's procedures of the holidays on the calendar: the holiday table it keeps, and the
// holiday cells of the large calendar written after every drawing of a month.
#include "calendar/Form1.h"
#include "calendar/frmLargeCalendar.h"
#include "holidays/holiday_cells.h"
#include "platform/controls.h"
#include "platform/window_registry.h"

namespace orrivane {

Value Form1::Store_Holiday_Data_For_Year(const std::string& Array_Name, int Element_Number,
                                         const std::string& Action_To_Perform, const Value& value) {
  return holiday_table_.Store_Holiday_Data_For_Year(Array_Name, Element_Number, Action_To_Perform, value);
}

void Form1::Display_Holidays_On_Calendar(const std::string& CalStyle) {
  const holidays::Holiday_Cells cells = holidays::Holidays_On_Calendar_Cells(
      holiday_table_, CalStyle, controls::Caption(lblStoreMonth), Value(controls::Caption(lblStoreYear)),
      face.Date_Captions());
  frmLargeCalendar& large = Window<frmLargeCalendar>();
  for (std::size_t i = 0; i < cells.size(); ++i) controls::Set_Caption(large.lblCalHoliday[i], cells[i]);
}

}  // namespace orrivane
