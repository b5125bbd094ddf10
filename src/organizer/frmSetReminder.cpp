#include "organizer/frmSetReminder.h"

#include <vector>

#include "engine/vocabulary.h"
#include "organizer/frmSetRemToTaskTime.h"
#include "organizer/frmTaskInformation.h"
#include "organizer/new_task_reminder_keeper.h"
#include "organizer/ReminderBoxes.h"
#include "organizer/organizer_callers.h"
#include "organizer/reminder_labels.h"
#include "organizer/set_reminder_opening.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/platform.h"
#include "platform/window_registry.h"

namespace orrivane {

namespace {

using controls::Array_Name;
using controls::Caption;
using controls::Make_Button;
using controls::Make_Combo;
using controls::Make_Label;
using controls::Set_Caption;
using organizer::ReminderVariables;
using reminder_boxes::Enable;
// Every box starts empty: an empty box of a moment stands for the present.
using reminder_boxes::Fill;

// ---- The kinds of reminder -----------------------------------------------------------------------

// Each option: the kind it stands for and the captions it gives the two moments' frames.
struct ReminderKind {
  QRadioButton* frmSetReminder::* option;
  int kind;
  const char* first_moment;
  const char* second_moment;  // empty: the one reminder has no second moment
};
constexpr ReminderKind kKinds[] = {
    {&frmSetReminder::optOnlyOneReminder, organizer::kOnlyOneReminder, "Date\\Time Of Reminder", ""},
    {&frmSetReminder::optIntermittently1, organizer::kSeriesFromFirstMoment, "First Message At",
     "Last Message Before"},
    {&frmSetReminder::optIntermittently2, organizer::kSeriesToLastMoment, "First Message After", "Last Message At"},
};

const ReminderKind* Kind_Row(int kind) {
  for (const ReminderKind& row : kKinds) {
    if (row.kind == kind) return &row;
  }
  return nullptr;
}

// ---- The keepers of the calling windows ---------------------------------------------------------

// The names under which the keeper holds the moments, the kind and the period.
constexpr std::array<std::string_view, frmSetReminder::kMoments> kDateStringNames{ReminderVariables::kNames[0],
                                                                                 ReminderVariables::kNames[2]};
constexpr std::array<std::string_view, frmSetReminder::kMoments> kTimeStringNames{ReminderVariables::kNames[1],
                                                                                 ReminderVariables::kNames[3]};
constexpr std::string_view kReminderIntervalName = ReminderVariables::kNames[4];
// In the order of lblRI: minutes, hours, days.
constexpr std::array<std::string_view, frmSetReminder::kIntervalCounts> kIntervalNames{
    ReminderVariables::kNames[7], ReminderVariables::kNames[6], ReminderVariables::kNames[5]};
static_assert(kDateStringNames[1] == "Date_String(1)" && kIntervalNames[0] == "Interval_Minutes");

using ReminderKeeper = Value (*)(const std::string& name, const std::string& verb, const Value& value);
// What a calling window does besides keeping the values once a reminder is set: the kind and the
// period's days, hours and minutes.
using AfterSetting = void (*)(int kind, const std::string& days, const std::string& hours,
                              const std::string& minutes);

Value Task_Information_Reminder_Variables(const std::string& name, const std::string& verb, const Value& value) {
  return Window<frmTaskInformation>().Store_Reminder_Variables(name, verb, value);
}

// The task information window differs from the log from now on, and describes the new reminder.
void Show_On_Task_Information(int kind, const std::string& days, const std::string& hours,
                              const std::string& minutes) {
  frmTaskInformation& information = Window<frmTaskInformation>();
  information.Set_Record_Changed_Flag(true);
  information.Set_Reminder_Labels(kind, days, hours, minutes);
}

struct KeeperRoute {
  std::string_view caller;
  ReminderKeeper keeper;
  AfterSetting after_setting;  // nullptr: nothing more
};
constexpr KeeperRoute kKeeperRoutes[] = {
    {organizer::kNewTaskWindow, &organizer::New_Task_Reminder_Variables, nullptr},
    {organizer::kTaskInformationWindow, &Task_Information_Reminder_Variables, &Show_On_Task_Information},
};

// The route of a calling window's name, exactly compared; nothing for another name.
const KeeperRoute* Route_Of(std::string_view caller) {
  for (const KeeperRoute& route : kKeeperRoutes) {
    if (route.caller == caller) return &route;
  }
  return nullptr;
}

Value Get(const KeeperRoute& route, std::string_view name) { return route.keeper(std::string(name), "Get", {}); }
void Put(const KeeperRoute& route, std::string_view name, const Value& value) {
  route.keeper(std::string(name), "Put", value);
}

// ---- Building ------------------------------------------------------------------------------------

std::vector<std::string> Month_Names() {
  std::vector<std::string> months;
  for (int month = 1; month <= 12; ++month) months.push_back(engine::Full_Month_Name(month));
  return months;
}

QGroupBox* Make_Frame(QWidget* parent, const QString& name, const QString& caption = {}) {
  return controls::Make<QGroupBox>(parent, name, caption);
}

// ---- Geometry, in pixels -------------------------------------------------------------------------

constexpr int kMargin = 12;
constexpr int kWindowWidth = 640;
constexpr int kInnerWidth = kWindowWidth - 2 * kMargin;
constexpr int kRowHeight = 24;
constexpr int kButtonHeight = 28;

constexpr int kKindTop = 8;
constexpr int kKindHeight = 100;
constexpr int kOptionTop = 22;
constexpr int kOptionStep = 24;

constexpr int kIntervalTop = kKindTop + kKindHeight + 6;
constexpr int kIntervalHeight = 90;
constexpr int kIntervalBoxTop = 24;
constexpr int kChosenTop = 58;

constexpr int kMomentTop = kIntervalTop + kIntervalHeight + 6;
constexpr int kMomentWidth = (kInnerWidth - kMargin) / 2;
constexpr int kMomentHeight = 226;

constexpr int kButtonsTop = kMomentTop + kMomentHeight + 10;
constexpr int kButtonWidth = 96;
constexpr int kWindowHeight = kButtonsTop + kButtonHeight + kMargin;

// An amount box and its label, side by side in the period's frame.
struct IntervalPlace {
  int box_left;
  int box_width;
  int label_width;
};
constexpr std::array<IntervalPlace, organizer::kAmountBoxes> kIntervalPlaces{{
    {10, 60, 92}, {170, 60, 80}, {318, 60, 66}, {452, 70, 50}}};
constexpr char const* kIntervalCaptions[] = {"Minute(s) and", "Hour(s) and", "Day(s)  +", "Days"};

// A count of the period and its label, on the row under the boxes.
struct CountPlace {
  const char* caption;
  int left;
  int label_width;
};
constexpr std::array<CountPlace, frmSetReminder::kIntervalCounts> kCountPlaces{{
    {"Minutes:", 150, 58}, {"Hours:", 262, 48}, {"Days:", 364, 42}}};
constexpr int kCountWidth = 48;

// Inside a moment's frame: three rows of boxes, the buttons, then the moment's two texts.
constexpr int kCaptionLeft = 10;
constexpr int kCaptionWidth = 80;
constexpr int kFirstBoxLeft = 92;
constexpr int kSecondCaptionLeft = 150;
constexpr int kSecondCaptionWidth = 54;
constexpr int kSecondBoxLeft = 208;
constexpr int kNarrowBox = 54;
constexpr int kMonthBox = 110;
constexpr int kDateRow = 24;
constexpr int kYearRow = 56;
constexpr int kTimeRow = 88;
constexpr int kButtonRow = 122;
constexpr int kDateTextRow = 160;
constexpr int kTimeTextRow = 190;
constexpr int kTextCaptionWidth = 44;
constexpr int kTextLeft = 56;

// The boxes of a moment, each with the caption before it (the day's box stands beside the month's
// and shares its caption), its list (two-digit texts in a range, or the months' names) and its
// place in the frame.
struct MomentBox {
  frmSetReminder::Moments<QLabel> frmSetReminder::* caption;  // nullptr: no caption of its own
  const char* caption_name;
  const char* caption_text;
  int caption_left;
  int caption_width;
  frmSetReminder::Moments<QComboBox> frmSetReminder::* box;
  const char* box_name;
  const organizer::TwoDigitRange* range;  // nullptr: the months
  int box_left;
  int box_width;
  int top;
};
constexpr MomentBox kMomentBoxes[] = {
    {&frmSetReminder::LblSelectDate, "LblSelectDate", "Month\\Date:", kCaptionLeft, kCaptionWidth,
     &frmSetReminder::ComboMonths, "ComboMonths", nullptr, kFirstBoxLeft, kMonthBox, kDateRow},
    {nullptr, nullptr, nullptr, 0, 0, &frmSetReminder::ComboDate, "ComboDate", &organizer::kDateBoxRange,
     kSecondBoxLeft, kNarrowBox, kDateRow},
    {&frmSetReminder::LblCentury, "LblCentury", "Century:", kCaptionLeft, kCaptionWidth,
     &frmSetReminder::ComboCentury, "ComboCentury", &organizer::kReminderCenturyRange, kFirstBoxLeft, kNarrowBox,
     kYearRow},
    {&frmSetReminder::LblYear, "LblYear", "Year:", kSecondCaptionLeft, kSecondCaptionWidth,
     &frmSetReminder::ComboYear, "ComboYear", &organizer::kYearBoxRange, kSecondBoxLeft, kNarrowBox, kYearRow},
    {&frmSetReminder::lblHour, "lblHour", "Hour:", kCaptionLeft, kCaptionWidth, &frmSetReminder::cboHour, "cboHour",
     &organizer::kHourBoxRange, kFirstBoxLeft, kNarrowBox, kTimeRow},
    {&frmSetReminder::lblMin, "lblMin", "Minute:", kSecondCaptionLeft, kSecondCaptionWidth,
     &frmSetReminder::cboMinute, "cboMinute", &organizer::kMinuteBoxRange, kSecondBoxLeft, kNarrowBox, kTimeRow},
};

}  // namespace

// ---- The window ----------------------------------------------------------------------------------

frmSetReminder::frmSetReminder() {
  setObjectName("frmSetReminder");
  setWindowTitle("Set Reminder");
  Build_Controls();
  Place_Controls();
  Connect_Controls();
  // As the window is drawn: one reminder at one moment.
  optOnlyOneReminder->setChecked(true);
}

void frmSetReminder::Build_Controls() {
  Frame1 = Make_Frame(this, "Frame1", "Remind Me");
  optOnlyOneReminder = controls::Make<QRadioButton>(Frame1, "optOnlyOneReminder",
                                                    "With Only One Reminder At One Time Specified Below");
  optIntermittently1 = controls::Make<QRadioButton>(
      Frame1, "optIntermittently1", "Intermittently With The First Reminder At the Begin Time Specified Below");
  optIntermittently2 = controls::Make<QRadioButton>(
      Frame1, "optIntermittently2", "Intermittently With The Last Reminder At the Ending Time Specified Below");

  FraSelectInterval = Make_Frame(this, "FraSelectInterval", "I Want To Be Reminded Every");
  for (int box = 0; box < organizer::kAmountBoxes; ++box) {
    cboInterval[box] = Make_Combo(FraSelectInterval, Array_Name("cboInterval", box), true);
    Fill(cboInterval[box], organizer::Amount_Choices(box));
    lblInterval[box] = Make_Label(FraSelectInterval, Array_Name("lblInterval", box), kIntervalCaptions[box]);
  }
  lblReminderInterval = Make_Label(FraSelectInterval, "lblReminderInterval", "Reminder Interval:");
  for (int count = 0; count < kIntervalCounts; ++count) {
    lblRILabel[count] = Make_Label(FraSelectInterval, Array_Name("lblRILabel", count), kCountPlaces[count].caption);
    lblRI[count] = Make_Label(FraSelectInterval, Array_Name("lblRI", count));
  }

  for (int index = 0; index < kMoments; ++index) Build_Moment(index);

  cmdOK = Make_Button(this, "cmdOK", "OK");
  cmdSet = Make_Button(this, "cmdSet", "SET");
  cmdClose = Make_Button(this, "cmdClose", "Close");
}

void frmSetReminder::Build_Moment(int index) {
  const auto name = [index](const char* control) { return Array_Name(control, index); };
  QGroupBox* frame = fraDateTimeSelection[index] = Make_Frame(this, name("fraDateTimeSelection"));
  for (const MomentBox& row : kMomentBoxes) {
    if (row.caption != nullptr) {
      (this->*row.caption)[index] = Make_Label(frame, name(row.caption_name), row.caption_text);
    }
    QComboBox* box = (this->*row.box)[index] = Make_Combo(frame, name(row.box_name), true);
    Fill(box, row.range != nullptr ? organizer::Two_Digit_Texts(*row.range) : Month_Names());
    box->setMaxVisibleItems(12);
  }
  cmdSelect[index] = Make_Button(frame, name("cmdSelect"), "Select");
  cmdUseTaskTime[index] = Make_Button(frame, name("cmdUseTaskTime"), "Use Task Time");
  lblDateLabel[index] = Make_Label(frame, name("lblDateLabel"), "Date:");
  lblDate[index] = Make_Label(frame, name("lblDate"));
  lblTimeLabel[index] = Make_Label(frame, name("lblTimeLabel"), "Time:");
  lblTime[index] = Make_Label(frame, name("lblTime"));
}

void frmSetReminder::Place_Controls() {
  Frame1->setGeometry(kMargin, kKindTop, kInnerWidth, kKindHeight);
  int option_top = kOptionTop;
  for (const ReminderKind& row : kKinds) {
    QRadioButton* option = this->*row.option;
    // As wide as its caption, so that a click beside the caption falls on nothing.
    option->move(10, option_top);
    option->adjustSize();
    option_top += kOptionStep;
  }

  FraSelectInterval->setGeometry(kMargin, kIntervalTop, kInnerWidth, kIntervalHeight);
  for (int box = 0; box < organizer::kAmountBoxes; ++box) {
    const IntervalPlace& place = kIntervalPlaces[box];
    cboInterval[box]->setGeometry(place.box_left, kIntervalBoxTop, place.box_width, kRowHeight);
    lblInterval[box]->setGeometry(place.box_left + place.box_width + 4, kIntervalBoxTop, place.label_width,
                                  kRowHeight);
  }
  lblReminderInterval->setGeometry(10, kChosenTop, 130, kRowHeight);
  for (int count = 0; count < kIntervalCounts; ++count) {
    const CountPlace& place = kCountPlaces[count];
    lblRILabel[count]->setGeometry(place.left, kChosenTop, place.label_width, kRowHeight);
    lblRI[count]->setGeometry(place.left + place.label_width + 2, kChosenTop, kCountWidth, kRowHeight);
  }

  for (int index = 0; index < kMoments; ++index) {
    fraDateTimeSelection[index]->setGeometry(kMargin + index * (kMomentWidth + kMargin), kMomentTop, kMomentWidth,
                                             kMomentHeight);
    for (const MomentBox& row : kMomentBoxes) {
      if (row.caption != nullptr) {
        QLabel* caption = (this->*row.caption)[index];
        caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        caption->setGeometry(row.caption_left, row.top, row.caption_width, kRowHeight);
      }
      (this->*row.box)[index]->setGeometry(row.box_left, row.top, row.box_width, kRowHeight);
    }
    cmdSelect[index]->setGeometry(kCaptionLeft, kButtonRow, 120, kButtonHeight);
    cmdUseTaskTime[index]->setGeometry(kCaptionLeft + 130, kButtonRow, 130, kButtonHeight);
    lblDateLabel[index]->setGeometry(kCaptionLeft, kDateTextRow, kTextCaptionWidth, kRowHeight);
    lblDate[index]->setGeometry(kTextLeft, kDateTextRow, kMomentWidth - kTextLeft - 8, kRowHeight);
    lblTimeLabel[index]->setGeometry(kCaptionLeft, kTimeTextRow, kTextCaptionWidth, kRowHeight);
    lblTime[index]->setGeometry(kTextLeft, kTimeTextRow, kMomentWidth - kTextLeft - 8, kRowHeight);
  }

  const int buttons_left = kWindowWidth - kMargin - 3 * kButtonWidth - 2 * 8;
  int left = buttons_left;
  for (QPushButton* button : {cmdOK, cmdSet, cmdClose}) {
    button->setGeometry(left, kButtonsTop, kButtonWidth, kButtonHeight);
    left += kButtonWidth + 8;
  }
  setFixedSize(kWindowWidth, kWindowHeight);
}

void frmSetReminder::Connect_Controls() {
  // An option set from the program acts as clicked, as one set by the user does.
  connect(optOnlyOneReminder, &QRadioButton::toggled, this, [this](bool set) {
    if (set) optOnlyOneReminder_Click();
  });
  connect(optIntermittently1, &QRadioButton::toggled, this, [this](bool set) {
    if (set) optIntermittently1_Click();
  });
  connect(optIntermittently2, &QRadioButton::toggled, this, [this](bool set) {
    if (set) optIntermittently2_Click();
  });
  for (int box = 0; box < organizer::kAmountBoxes; ++box) {
    connect(cboInterval[box], &QComboBox::activated, this, [this, box] { cboInterval_Click(box); });
  }
  for (int index = 0; index < kMoments; ++index) {
    connect(cmdSelect[index], &QPushButton::clicked, this, [this, index] { cmdSelect_Click(index); });
    connect(cmdUseTaskTime[index], &QPushButton::clicked, this, [this, index] { cmdUseTaskTime_Click(index); });
  }
  connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
  connect(cmdSet, &QPushButton::clicked, this, [this] { cmdSet_Click(); });
  connect(cmdClose, &QPushButton::clicked, this, [this] { cmdClose_Click(); });
}

Value frmSetReminder::Store_Calling_Form_Origin(const std::string& verb, const Value& value) {
  if (verb == "Put") Calling_Form_Origin = value;
  return Calling_Form_Origin;
}

// ---- The kind of reminder ------------------------------------------------------------------------

void frmSetReminder::optOnlyOneReminder_Click() { Show_Kind(organizer::kOnlyOneReminder); }
void frmSetReminder::optIntermittently1_Click() { Show_Kind(organizer::kSeriesFromFirstMoment); }
void frmSetReminder::optIntermittently2_Click() { Show_Kind(organizer::kSeriesToLastMoment); }

void frmSetReminder::Show_Kind(int kind) {
  const ReminderKind& row = *Kind_Row(kind);
  if (kind == organizer::kOnlyOneReminder) {
    Enable_FraSelectInterval(false);
    Enable_Second_Time_Selection(false);
  } else {
    Enable_Intermittent_Reminder_Features();
  }
  fraDateTimeSelection[0]->setTitle(row.first_moment);
  fraDateTimeSelection[1]->setTitle(row.second_moment);
}

void frmSetReminder::Enable_Second_Time_Selection(bool Value_) {
  constexpr int k = 1;
  Enable({fraDateTimeSelection[k], LblSelectDate[k], LblCentury[k], LblYear[k], lblHour[k], lblMin[k],
          cmdUseTaskTime[k], cmdSelect[k], lblDateLabel[k], lblDate[k], lblTimeLabel[k], lblTime[k]},
         {ComboMonths[k], ComboDate[k], ComboCentury[k], ComboYear[k], cboHour[k], cboMinute[k]}, Value_);
}

void frmSetReminder::Enable_FraSelectInterval(bool Value_) {
  Enable({FraSelectInterval, lblInterval[0], lblInterval[1], lblInterval[2], lblInterval[3], lblReminderInterval,
          lblRILabel[0], lblRILabel[1], lblRILabel[2], lblRI[0], lblRI[1], lblRI[2]},
         {cboInterval[0], cboInterval[1], cboInterval[2], cboInterval[3]}, Value_);
}

void frmSetReminder::Enable_Intermittent_Reminder_Features() {
  Enable_FraSelectInterval(true);
  Enable_Second_Time_Selection(true);
}

int frmSetReminder::Chosen_Kind() const {
  for (const ReminderKind& row : kKinds) {
    if ((this->*row.option)->isChecked()) return row.kind;
  }
  return 0;  // not reached: the window always has one option set
}

void frmSetReminder::Set_Option_Of_Kind(const Value& kind) {
  for (const ReminderKind& row : kKinds) {
    if (kind == Value(row.kind)) (this->*row.option)->setChecked(true);
  }
}

// ---- The period ----------------------------------------------------------------------------------

void frmSetReminder::cboInterval_Click(int Index) {
  using organizer::kDaysBox;
  using organizer::kHundredsOfDaysBox;
  if (Index == kDaysBox || Index == kHundredsOfDaysBox) {
    Set_Caption(lblRI[kDaysBox], organizer::Interval_Days_Text(controls::Text_Of(cboInterval[kDaysBox]),
                                                               controls::Text_Of(cboInterval[kHundredsOfDaysBox])));
    return;
  }
  Set_Caption(lblRI[Index], organizer::Count_Text(controls::Text_Of(cboInterval[Index])));
}

// ---- The moments ---------------------------------------------------------------------------------

void frmSetReminder::cmdSelect_Click(int Index) {
  using controls::Text_Of;
  const organizer::MomentEntries entries{Text_Of(ComboMonths[Index]), Text_Of(ComboDate[Index]),
                                         Text_Of(ComboCentury[Index]), Text_Of(ComboYear[Index]),
                                         Text_Of(cboHour[Index]),      Text_Of(cboMinute[Index])};
  const platform::ClockReading now = platform::Machine().Read_Clock();
  const organizer::ChosenMoment moment = organizer::Choose_Reminder_Moment(entries, now.date, now.time);
  if (!moment.refusal.empty()) {
    platform::Show_Message(moment.refusal);
    return;
  }
  Set_Caption(lblDate[Index], moment.Date);
  Set_Caption(lblTime[Index], moment.Time);
}

void frmSetReminder::cmdUseTaskTime_Click(int Index) {
  frmSetRemToTaskTime& task_time = Window<frmSetRemToTaskTime>();
  task_time.Store_Calling_Sub_Origin("Put", Index);
  controls::Show_In_Front(task_time);
}

// ---- Setting the reminder ------------------------------------------------------------------------

void frmSetReminder::Set_Reminder(std::string_view Calling_Sub_Origin) {
  const int kind = Chosen_Kind();
  std::array<std::string, kIntervalCounts> counts;
  for (int count = 0; count < kIntervalCounts; ++count) counts[count] = Caption(lblRI[count]);
  if (organizer::Lacks_Interval(kind, counts[0], counts[1], counts[2])) {
    platform::Show_Message(organizer::Set_Reminder_Message(organizer::kNoIntervalChosen));
    return;
  }

  if (const KeeperRoute* route = Route_Of(Store_Calling_Form_Origin("Get").text())) {
    for (int index = 0; index < kMoments; ++index) {
      Put(*route, kDateStringNames[index], Caption(lblDate[index]));
      Put(*route, kTimeStringNames[index], Caption(lblTime[index]));
    }
    Put(*route, kReminderIntervalName, kind);
    for (int count = 0; count < kIntervalCounts; ++count) Put(*route, kIntervalNames[count], counts[count]);
    if (route->after_setting != nullptr) route->after_setting(kind, counts[2], counts[1], counts[0]);
  }

  if (Calling_Sub_Origin == organizer::kSetReminderCmdOK) {
    hide();
  } else if (Calling_Sub_Origin == organizer::kSetReminderCmdSet) {
    platform::Show_Message(organizer::Set_Reminder_Message(organizer::kReminderSet));
  }
}

void frmSetReminder::cmdOK_Click() { Set_Reminder(organizer::kSetReminderCmdOK); }
void frmSetReminder::cmdSet_Click() { Set_Reminder(organizer::kSetReminderCmdSet); }
void frmSetReminder::cmdClose_Click() { hide(); }

// ---- The opening ---------------------------------------------------------------------------------

void frmSetReminder::Open_For(std::string_view caller_window_name) {
  Store_Calling_Form_Origin("Put", caller_window_name);
  if (const KeeperRoute* route = Route_Of(caller_window_name)) {
    for (int index = 0; index < kMoments; ++index) {
      Set_Caption(lblDate[index], Get(*route, kDateStringNames[index]).text());
      Set_Caption(lblTime[index], Get(*route, kTimeStringNames[index]).text());
    }
    Set_Option_Of_Kind(Get(*route, kReminderIntervalName));
    for (int count = 0; count < kIntervalCounts; ++count) {
      Set_Caption(lblRI[count], Get(*route, kIntervalNames[count]).text());
    }
  }
  controls::Show_In_Front(*this);
}

namespace organizer {

void Open_Set_Reminder_Window(std::string_view caller_window_name) {
  Window<frmSetReminder>().Open_For(caller_window_name);
}

}  // namespace organizer

}  // namespace orrivane
