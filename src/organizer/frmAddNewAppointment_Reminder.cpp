#include "organizer/frmAddNewAppointment_Reminder.h"

#include <QStringList>
#include <string_view>

#include "calendar/frmLargeCalendar.h"
#include "engine/vocabulary.h"
#include "organizer/frmColorPalette.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/log_file.h"
#include "organizer/new_task_reminder_keeper.h"
#include "organizer/organizer_callers.h"
#include "organizer/reminder_moment.h"
#include "organizer/set_reminder_opening.h"
#include "organizer/time_period_selection.h"
#include "organizer/working_files.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/platform.h"
#include "platform/window_registry.h"

namespace orrivane {

namespace {

using W = frmAddNewAppointment_Reminder;
using controls::Make;
using controls::Make_Button;
using controls::Make_Label;
using controls::Text_Of;
using organizer::kTaskFinish;
using organizer::kTaskStart;

// The window's own name, by which the reminder window knows whose values it sets.
constexpr std::string_view kWindowName = "frmAddNewAppointment_Reminder";

QStringList Month_Names() {
  QStringList months;
  for (int month = 1; month <= 12; ++month) months.append(QString::fromStdString(engine::Full_Month_Name(month)));
  return months;
}
QStringList Dates() { return controls::Texts(organizer::Two_Digit_Texts(organizer::kDateBoxRange)); }
QStringList Centuries() { return controls::Texts(organizer::Two_Digit_Texts(organizer::kCenturyBoxRange)); }
QStringList Years() { return controls::Texts(organizer::Two_Digit_Texts(organizer::kYearBoxRange)); }
QStringList Hours() { return controls::Texts(organizer::Two_Digit_Texts(organizer::kHourBoxRange)); }
QStringList Minutes() { return controls::Texts(organizer::Two_Digit_Texts(organizer::kMinuteBoxRange)); }

// A row of a moment's frame: a label and the box beside it, with what the box offers.
struct MomentRow {
  W::Pair<QLabel> W::* label;
  const char* label_name;
  const char* caption;
  W::Pair<QComboBox> W::* box;
  const char* box_name;
  QStringList (*items)();
};
constexpr MomentRow kMomentRows[] = {
    {&W::lblMonth, "lblMonth", "Month:", &W::ComboMonths, "ComboMonths", Month_Names},
    {&W::lblDate, "lblDate", "Date:", &W::ComboDate, "ComboDate", Dates},
    {&W::lblCentury, "lblCentury", "Choose Century(Opt):", &W::ComboCentury, "ComboCentury", Centuries},
    {&W::lblYear, "lblYear", "Choose Year(Opt):", &W::ComboYear, "ComboYear", Years},
    {&W::lblHour, "lblHour", "Hour:", &W::cboHour, "cboHour", Hours},
    {&W::lblMinute, "lblMinute", "Minute:", &W::cboMinute, "cboMinute", Minutes},
};

// The captions of the two frames, without and with a time range.
constexpr char kAtCaption[] = "At";
constexpr char kFromCaption[] = "From";
constexpr char kToCaption[] = "To";

// A list box that starts with nothing chosen.
QComboBox* Make_List_Box(QWidget* parent, const QString& name, const QStringList& items) {
  QComboBox* box = controls::Make_Combo(parent, name, false);
  box->addItems(items);
  box->setMaxVisibleItems(12);
  box->setCurrentIndex(-1);
  return box;
}

// ---- Geometry, in pixels -----------------------------------------------------------------------
constexpr int kMargin = 12;
constexpr int kGap = 12;
constexpr int kRowHeight = 24;
constexpr int kButtonHeight = 28;
constexpr int kFrameWidth = 290;
constexpr int kWindowWidth = 2 * kMargin + 2 * kFrameWidth + kGap;
constexpr int kRightLeft = kMargin + kFrameWidth + kGap;  // the second column of frames
constexpr int kLabelWidth = 130;
constexpr int kFieldLeft = kMargin + kLabelWidth + 4;
constexpr int kFieldWidth = kWindowWidth - kFieldLeft - kMargin;
// Inside a moment's frame: a label and its box on each row.
constexpr int kFrameRowsTop = 24;
constexpr int kFrameRowStep = 28;
constexpr int kFrameLabelLeft = 6;
constexpr int kFrameLabelWidth = 148;
constexpr int kFrameBoxLeft = kFrameLabelLeft + kFrameLabelWidth + 6;
constexpr int kFrameBoxWidth = 118;
constexpr int kMomentFrameHeight = kFrameRowsTop + static_cast<int>(std::size(kMomentRows)) * kFrameRowStep + 6;
// The rows of the window.
constexpr int kNameTop = 12;
constexpr int kDescriptionTop = kNameTop + 32;
constexpr int kCommentsTop = kDescriptionTop + 32;
constexpr int kCommentsHeight = 56;
constexpr int kRangeTop = kCommentsTop + kCommentsHeight + 10;
constexpr int kFramesTop = kRangeTop + 28;
constexpr int kChoicesTop = kFramesTop + kMomentFrameHeight + 12;
constexpr int kPersonFrameHeight = 132;
constexpr int kReminderTop = kChoicesTop + 36;
constexpr int kReminderFrameHeight = kPersonFrameHeight - 36;
constexpr int kButtonsTop = kChoicesTop + kPersonFrameHeight + 14;
constexpr int kWindowHeight = kButtonsTop + 32 + kMargin;

}  // namespace

frmAddNewAppointment_Reminder::frmAddNewAppointment_Reminder() {
  setObjectName(QString::fromUtf8(kWindowName.data(), static_cast<qsizetype>(kWindowName.size())));
  setWindowTitle("Add New Task\\Event");
  Build_Task();
  Build_Choices();
  Place_Controls();
  Connect_Controls();
  chkSelectTimeRange_Click();
  optExistingPerson_Click();
  Choose_Random_Colour();  // Form_Load
}

void frmAddNewAppointment_Reminder::Build_Task() {
  lblNameOfEvent = Make_Label(this, "lblNameOfEvent", "Name Of Task\\Event:");
  txtNameOfEvent = Make<QLineEdit>(this, "txtNameOfEvent");
  lblDescription = Make_Label(this, "lblDescription", "Description:");
  txtDescription = Make<QLineEdit>(this, "txtDescription");
  lblComments = Make_Label(this, "lblComments", "Comments:");
  txtComments = Make<QPlainTextEdit>(this, "txtComments");
  chkSelectTimeRange = Make<QCheckBox>(this, "chkSelectTimeRange", "Select Time Range");
  FraFrom = Make<QGroupBox>(this, "FraFrom", kAtCaption);
  FraTo = Make<QGroupBox>(this, "FraTo", "");
  Build_Moment(kTaskStart, FraFrom);
  Build_Moment(kTaskFinish, FraTo);
}

void frmAddNewAppointment_Reminder::Build_Moment(int moment, QGroupBox* frame) {
  const auto index = static_cast<std::size_t>(moment);
  for (const MomentRow& row : kMomentRows) {
    (this->*row.label)[index] = Make_Label(frame, controls::Array_Name(row.label_name, moment), row.caption);
    (this->*row.box)[index] = Make_List_Box(frame, controls::Array_Name(row.box_name, moment), row.items());
  }
}

void frmAddNewAppointment_Reminder::Build_Choices() {
  fraPerson = Make<QGroupBox>(this, "fraPerson", "Group Member");
  optExistingPerson = Make<QRadioButton>(fraPerson, "optExistingPerson", "Select An Existing Member");
  cboExistingPerson = controls::Make_Combo(fraPerson, "cboExistingPerson", false);
  controls::On_Got_Focus(cboExistingPerson, [this] { cboExistingPerson_GotFocus(); });
  optEnterNameOfNewPerson = Make<QRadioButton>(fraPerson, "optEnterNameOfNewPerson", "Enter Name Of New Member");
  txtNewPerson = Make<QLineEdit>(fraPerson, "txtNewPerson");
  optExistingPerson->setChecked(true);

  lblColor = Make_Label(this, "lblColor", "Task Color:");
  lblColorChoice = Make_Label(this, "lblColorChoice");
  lblColorChoice->setFrameShape(QFrame::Box);
  cmdSelect = Make_Button(this, "cmdSelect", "Select...");

  fraReminder = Make<QGroupBox>(this, "fraReminder", "Reminder");
  optOn = Make<QRadioButton>(fraReminder, "optOn", "On");
  optOff = Make<QRadioButton>(fraReminder, "optOff", "Off");
  optOff->setChecked(true);
  cmdSet = Make_Button(fraReminder, "cmdSet", "Set...");
  cmdSet->setEnabled(false);

  cmdAddThisEvent_AppointmentToTheSchedule =
      Make_Button(this, "cmdAddThisEvent_AppointmentToTheSchedule", "Add This Task\\Event To The Log");
  cmdClose = Make_Button(this, "cmdClose", "Close");
}

void frmAddNewAppointment_Reminder::Place_Controls() {
  const std::pair<QLabel*, QWidget*> fields[] = {
      {lblNameOfEvent, txtNameOfEvent}, {lblDescription, txtDescription}, {lblComments, txtComments}};
  const int tops[] = {kNameTop, kDescriptionTop, kCommentsTop};
  for (std::size_t i = 0; i < std::size(fields); ++i) {
    fields[i].first->setGeometry(kMargin, tops[i], kLabelWidth, kRowHeight);
    fields[i].second->setGeometry(kFieldLeft, tops[i], kFieldWidth, kRowHeight);
  }
  txtComments->resize(kFieldWidth, kCommentsHeight);
  chkSelectTimeRange->setGeometry(kMargin, kRangeTop, kFrameWidth, kRowHeight);

  FraFrom->setGeometry(kMargin, kFramesTop, kFrameWidth, kMomentFrameHeight);
  FraTo->setGeometry(kRightLeft, kFramesTop, kFrameWidth, kMomentFrameHeight);
  for (std::size_t moment = 0; moment < organizer::kTaskMoments; ++moment) {
    int top = kFrameRowsTop;
    for (const MomentRow& row : kMomentRows) {
      QLabel* label = (this->*row.label)[moment];
      label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
      label->setGeometry(kFrameLabelLeft, top, kFrameLabelWidth, kRowHeight);
      (this->*row.box)[moment]->setGeometry(kFrameBoxLeft, top, kFrameBoxWidth, kRowHeight);
      top += kFrameRowStep;
    }
  }

  fraPerson->setGeometry(kMargin, kChoicesTop, kFrameWidth, kPersonFrameHeight);
  optExistingPerson->setGeometry(10, 22, kFrameWidth - 20, 22);
  cboExistingPerson->setGeometry(30, 46, kFrameWidth - 50, kRowHeight);
  optEnterNameOfNewPerson->setGeometry(10, 76, kFrameWidth - 20, 22);
  txtNewPerson->setGeometry(30, 100, kFrameWidth - 50, kRowHeight);

  lblColor->setGeometry(kRightLeft, kChoicesTop + 4, 80, kRowHeight);
  lblColorChoice->setGeometry(kRightLeft + 84, kChoicesTop + 2, 80, kButtonHeight);
  cmdSelect->setGeometry(kRightLeft + kFrameWidth - 100, kChoicesTop + 2, 100, kButtonHeight);
  fraReminder->setGeometry(kRightLeft, kReminderTop, kFrameWidth, kReminderFrameHeight);
  optOn->setGeometry(14, 26, 80, 22);
  optOff->setGeometry(14, 56, 80, 22);
  cmdSet->setGeometry(kFrameWidth - 114, 38, 100, kButtonHeight);

  cmdAddThisEvent_AppointmentToTheSchedule->setGeometry(kMargin, kButtonsTop, kFrameWidth, 32);
  cmdClose->setGeometry(kWindowWidth - kMargin - 100, kButtonsTop, 100, 32);
  setFixedSize(kWindowWidth, kWindowHeight);
}

void frmAddNewAppointment_Reminder::Connect_Controls() {
  connect(chkSelectTimeRange, &QCheckBox::toggled, this, [this] { chkSelectTimeRange_Click(); });
  connect(optExistingPerson, &QRadioButton::toggled, this, [this](bool set) {
    if (set) optExistingPerson_Click();
  });
  connect(optEnterNameOfNewPerson, &QRadioButton::toggled, this, [this](bool set) {
    if (set) optEnterNameOfNewPerson_Click();
  });
  connect(optOn, &QRadioButton::toggled, this, [this](bool set) { cmdSet->setEnabled(set); });
  connect(cmdSelect, &QPushButton::clicked, this, [this] { cmdSelect_Click(); });
  connect(cmdSet, &QPushButton::clicked, this, [this] { cmdSet_Click(); });
  connect(cmdAddThisEvent_AppointmentToTheSchedule, &QPushButton::clicked, this,
          [this] { cmdAddThisEvent_AppointmentToTheSchedule_Click(); });
  connect(cmdClose, &QPushButton::clicked, this, [this] { cmdClose_Click(); });
}

// ---- The window's behaviour -----------------------------------------------------------------

Value frmAddNewAppointment_Reminder::Store_Reminder_Variables(const std::string& name, const std::string& verb,
                                                              const Value& value) {
  return reminder_variables_.Store(name, verb, value);
}

void frmAddNewAppointment_Reminder::chkSelectTimeRange_Click() {
  const bool range = chkSelectTimeRange->isChecked();
  FraFrom->setTitle(range ? kFromCaption : kAtCaption);
  FraTo->setTitle(range ? kToCaption : "");
  for (const MomentRow& row : kMomentRows) {
    (this->*row.label)[kTaskFinish]->setEnabled(range);
    controls::Enable_Input((this->*row.box)[kTaskFinish], range);
  }
}

void frmAddNewAppointment_Reminder::optExistingPerson_Click() {
  optEnterNameOfNewPerson->setChecked(false);
  Enable_Person_Input(true);
}

void frmAddNewAppointment_Reminder::optEnterNameOfNewPerson_Click() {
  optExistingPerson->setChecked(false);
  Enable_Person_Input(false);
}

void frmAddNewAppointment_Reminder::Enable_Person_Input(bool existing) {
  controls::Enable_Input(cboExistingPerson, existing);
  controls::Enable_Input(txtNewPerson, !existing);
}

void frmAddNewAppointment_Reminder::cboExistingPerson_GotFocus() {
  const QListWidget* members = Window<frmScheduler_Reminder>().lstListOfPeople;
  cboExistingPerson->clear();
  for (int entry = 0; entry < members->count(); ++entry) cboExistingPerson->addItem(members->item(entry)->text());
  cboExistingPerson->setCurrentIndex(-1);
}

// The palette is shown in front first and told its caller afterwards: it takes the caller's
// colour once its activation has come through.
void frmAddNewAppointment_Reminder::cmdSelect_Click() {
  frmColorPalette& palette = Window<frmColorPalette>();
  controls::Show_In_Front(palette);
  controls::Set_Caption(palette.lblStoreCallingProcedureArgument, std::string(organizer::kNewTaskSelectColour));
}

void frmAddNewAppointment_Reminder::cmdSet_Click() { organizer::Open_Set_Reminder_Window(kWindowName); }

void frmAddNewAppointment_Reminder::cmdClose_Click() { hide(); }

// ---- Adding the task ----------------------------------------------------------------------------

organizer::NewTaskEntries frmAddNewAppointment_Reminder::Read_Entries() const {
  organizer::NewTaskEntries entries;
  for (std::size_t moment = 0; moment < organizer::kTaskMoments; ++moment) {
    entries.moments[moment] = {Text_Of(ComboMonths[moment]), Text_Of(ComboDate[moment]),
                               Text_Of(ComboCentury[moment]), Text_Of(ComboYear[moment]),
                               Text_Of(cboHour[moment]),      Text_Of(cboMinute[moment])};
  }
  entries.time_range = chkSelectTimeRange->isChecked();
  entries.person = organizer::New_Task_Person(cboExistingPerson->isEnabled(), Text_Of(cboExistingPerson),
                                              txtNewPerson->isEnabled(), Text_Of(txtNewPerson));
  entries.name = Text_Of(txtNameOfEvent);
  return entries;
}

organizer::NewTaskDetails frmAddNewAppointment_Reminder::Read_Details() {
  organizer::NewTaskDetails details;
  details.description = Text_Of(txtDescription);
  details.comments = controls::Lines_Of(txtComments);
  details.colour = Value(static_cast<long long>(controls::Back_Color(lblColorChoice)));
  details.reminder_on = optOn->isChecked();
  for (std::size_t i = 0; i < organizer::ReminderVariables::kNames.size(); ++i) {
    details.reminder[i] = Store_Reminder_Variables(std::string(organizer::ReminderVariables::kNames[i]), "Get");
  }
  return details;
}

void frmAddNewAppointment_Reminder::Add_Member_If_New(const std::string& person) {
  QListWidget* members = Window<frmScheduler_Reminder>().lstListOfPeople;
  for (int entry = 0; entry < members->count(); ++entry) {
    if (members->item(entry)->text().toStdString() == person) return;
  }
  if (person.empty()) return;
  members->addItem(QString::fromStdString(person));
  organizer::Generate_Person_Marker_Record(organizer::kScheduleFile, person);
}

void frmAddNewAppointment_Reminder::cmdAddThisEvent_AppointmentToTheSchedule_Click() {
  platform::Platform& machine = platform::Machine();
  const organizer::NewTaskEntries entries = Read_Entries();
  const organizer::NewTaskCheck check = organizer::Check_New_Task(entries, machine.System_Date());
  if (check.code != 0) {
    platform::Show_Message(organizer::New_Task_Message(check));
    return;
  }
  if (platform::Show_Message(organizer::Confirm_New_Task_Message()) == vbCancel) return;

  organizer::ScheduleRecord task = organizer::New_Task_Record(entries, check, Read_Details());
  if (txtNewPerson->isEnabled()) Add_Member_If_New(entries.person);
  task.Record_Number = organizer::Generate_Record_Number(organizer::kScheduleFile);
  organizer::Append_New_Task(task, organizer::kScheduleFile, organizer::kTaskReminderFile);

  Choose_Random_Colour();
  Clear_For_Next_Task();
  frmScheduler_Reminder& organizer_window = Window<frmScheduler_Reminder>();
  organizer_window.Refresh_Organizer_Screen(organizer::kAddThisEvent);
  organizer_window.Refresh_Set_Reminder_Window();
  organizer_window.Display_A_Persons_TaskList();
  Window<frmLargeCalendar>().Refresh_Calendar_TaskList();
  platform::Show_Message(organizer::New_Task_Added_Message());
  organizer_window.Save_File_Prompt_Flag = 1;
}

void frmAddNewAppointment_Reminder::Choose_Random_Colour() {
  platform::Platform& machine = platform::Machine();
  machine.Randomize(organizer::Seconds_Since_Midnight(machine.System_Time()));
  const int index = organizer::Random_Colour_Index([&machine] { return machine.Rnd(); });
  const QLabel* colour = Window<frmColorPalette>().lblColor.at(static_cast<std::size_t>(index));
  controls::Set_Back_Color(lblColorChoice, controls::Back_Color(colour));
}

// The date and time boxes, the time range and the choice of person stay for the next task.
void frmAddNewAppointment_Reminder::Clear_For_Next_Task() {
  for (QLineEdit* box : {txtNewPerson, txtDescription, txtNameOfEvent}) box->clear();
  txtComments->clear();
  optOff->setChecked(true);
}

// ---- The keeper as the reminder window reaches it -------------------------------------------------

namespace organizer {

Value New_Task_Reminder_Variables(const std::string& name, const std::string& verb, const Value& value) {
  return Window<frmAddNewAppointment_Reminder>().Store_Reminder_Variables(name, verb, value);
}

}  // namespace organizer

}  // namespace orrivane
