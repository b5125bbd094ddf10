// The task chart of the Organizer: its view, stepping through the periods, painting the tasks.
#include "organizer/frmScheduler_Reminder.h"

namespace orrivane {

void frmScheduler_Reminder::Connect_Chart() {}
void frmScheduler_Reminder::Form_Activate() {}
void frmScheduler_Reminder::lblChartHistoryList_Click(int) {}

}  // namespace orrivane
