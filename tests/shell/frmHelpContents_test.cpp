// "Orrivane Help" driven as a user drives it: a category chosen in the box by the keyboard, a
// topic clicked, double-clicked or reached by the keyboard, the window closed and opened again.
#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QScrollBar>
#include <QTest>
#include <string>
#include <string_view>
#include <vector>

#include "calendar/Form1.h"
#include "calendar/frmLargeCalendar.h"
#include "platform/controls.h"
#include "platform/window_registry.h"
#include "shell/frmHelpContents.h"
#include "shell/help_topics.h"
#include "support/window_fixture.h"

namespace orrivane {
namespace {

class frmHelpContentsTest : public testing::WindowTest {
 protected:
  frmHelpContents& Help() { return Window<frmHelpContents>(); }

  // Opens the window and gives it the focus, as the menu entry does.
  void Open() {
    Help().show();
    Help().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Help()));
  }

  // Presses a key on the widget that has the focus.
  void Press(Qt::Key key) {
    QWidget* focused = QApplication::focusWidget();
    ASSERT_NE(focused, nullptr);
    QTest::keyClick(focused, key);
  }

  // Chooses a category in the closed box with the arrow keys.
  void Choose_Category(const QString& name) {
    QComboBox* box = Help().cboCategory;
    const int target = box->findText(name);
    ASSERT_GE(target, 0) << name.toStdString();
    box->setFocus();
    while (box->currentIndex() < target) Press(Qt::Key_Down);
    while (box->currentIndex() > target) Press(Qt::Key_Up);
  }

  QListWidgetItem* Topic_Item(const QString& topic) {
    const QList<QListWidgetItem*> found = Help().lstSelectATopic->findItems(topic, Qt::MatchExactly);
    EXPECT_EQ(found.size(), 1) << topic.toStdString();
    return found.isEmpty() ? nullptr : found.front();
  }
  QPoint Centre_Of(QListWidgetItem* item) { return Help().lstSelectATopic->visualItemRect(item).center(); }

  void Click_Topic(const QString& topic) {
    QListWidgetItem* item = Topic_Item(topic);
    ASSERT_NE(item, nullptr);
    Help().lstSelectATopic->scrollToItem(item);
    QTest::mouseClick(Help().lstSelectATopic->viewport(), Qt::LeftButton, {}, Centre_Of(item));
  }
  void Double_Click_Topic(const QString& topic) {
    QListWidgetItem* item = Topic_Item(topic);
    ASSERT_NE(item, nullptr);
    Help().lstSelectATopic->scrollToItem(item);
    // What the window system sends for a double click: a click, then the double click itself
    // and its release.
    QWidget* viewport = Help().lstSelectATopic->viewport();
    QTest::mouseClick(viewport, Qt::LeftButton, {}, Centre_Of(item));
    QTest::mouseDClick(viewport, Qt::LeftButton, {}, Centre_Of(item));
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, Centre_Of(item));
  }

  std::vector<std::string> Listed_Topics() {
    std::vector<std::string> topics;
    for (int row = 0; row < Help().lstSelectATopic->count(); ++row) {
      topics.push_back(Help().lstSelectATopic->item(row)->text().toStdString());
    }
    return topics;
  }
  static std::vector<std::string> As_Strings(const std::vector<std::string_view>& names) {
    return {names.begin(), names.end()};
  }

  std::string Shown_Text() { return Help().txtTopic->toPlainText().toStdString(); }
  std::string Shown_Name() { return controls::Caption(Help().lblTopicName); }
  // A help text as the box shows it: one line break for each carriage return and line feed.
  static std::string As_Shown(std::string text) {
    for (std::size_t at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n", at + 1)) {
      text.erase(at, 1);
    }
    return text;
  }
};

TEST_F(frmHelpContentsTest, OpensWithTheWelcomeTextAndAnEmptyList) {
  Open();
  EXPECT_EQ(Help().windowTitle(), "Orrivane Help");
  EXPECT_EQ(Shown_Text(), "Welcome to Orrivane Help. Please select a category, then select the topic you want.");
  EXPECT_EQ(Help().lstSelectATopic->count(), 0);
  EXPECT_EQ(Help().cboCategory->currentIndex(), -1);
  EXPECT_EQ(Shown_Name(), "Topic:");
  EXPECT_FALSE(Help().cmdSelect->isEnabled());
  EXPECT_TRUE(Help().cmdCancel->isEnabled());
}

TEST_F(frmHelpContentsTest, ControlsCarryTheirCaptions) {
  EXPECT_EQ(Control<QLabel>(Help(), "lblCategoryCaption")->text(), "Select A Category");
  EXPECT_EQ(Control<QLabel>(Help(), "lblTopicListCaption")->text(), "Select A Topic");
  EXPECT_EQ(Control<QPushButton>(Help(), "cmdSelect")->text(), "Select");
  EXPECT_EQ(Control<QPushButton>(Help(), "cmdCancel")->text(), "Close");
  ASSERT_NE(Control<QComboBox>(Help(), "cboCategory"), nullptr);
  ASSERT_NE(Control<QListWidget>(Help(), "lstSelectATopic"), nullptr);
  QPlainTextEdit* text = Control<QPlainTextEdit>(Help(), "txtTopic");
  ASSERT_NE(text, nullptr);
  EXPECT_TRUE(text->isReadOnly());
  EXPECT_EQ(text->lineWrapMode(), QPlainTextEdit::WidgetWidth);
}

TEST_F(frmHelpContentsTest, TheCategoryBoxOffersTheFiveCategoriesInOrder) {
  QComboBox* box = Help().cboCategory;
  std::vector<std::string> offered;
  for (int i = 0; i < box->count(); ++i) offered.push_back(box->itemText(i).toStdString());
  EXPECT_EQ(offered, As_Strings(shell::Help_Categories()));
  EXPECT_FALSE(box->isEditable());
}

TEST_F(frmHelpContentsTest, ChoosingACategoryShowsItsIntroductionAndListsItsTopicsInTheirOrder) {
  Open();
  for (const char* category : {"General", "For Your Information", "Organizer", "Task Reminders", "All Topics"}) {
    Choose_Category(category);
    EXPECT_EQ(Shown_Name(), category);
    EXPECT_EQ(Shown_Text(), shell::Display_Category_Intro(category)) << category;
    EXPECT_EQ(Listed_Topics(), As_Strings(shell::Category_Topics(category))) << category;
  }
  EXPECT_FALSE(Help().lstSelectATopic->isSortingEnabled());
}

TEST_F(frmHelpContentsTest, AllTopicsListsTheOtherFourOneAfterTheOther) {
  Open();
  std::vector<std::string> sum;
  for (const char* category : {"Organizer", "General", "For Your Information", "Task Reminders"}) {
    Choose_Category(category);
    const std::vector<std::string> topics = Listed_Topics();
    sum.insert(sum.end(), topics.begin(), topics.end());
  }
  Choose_Category("All Topics");
  EXPECT_EQ(Listed_Topics(), sum);
  EXPECT_EQ(Help().lstSelectATopic->count(), 42);
}

TEST_F(frmHelpContentsTest, ClickingATopicEnablesSelectWhichShowsTheTopic) {
  Open();
  Choose_Category("General");
  EXPECT_FALSE(Help().cmdSelect->isEnabled());
  Click_Topic("Finding A Weekday");
  EXPECT_TRUE(Help().cmdSelect->isEnabled());
  EXPECT_EQ(Shown_Name(), "General") << "a click alone shows nothing yet";
  Click(Help().cmdSelect);
  EXPECT_EQ(Shown_Name(), "Finding A Weekday");
  EXPECT_EQ(Shown_Text(), As_Shown(shell::Get_Topic_Contents("Finding A Weekday")));
}

TEST_F(frmHelpContentsTest, ChangingTheCategoryDisablesSelectUntilATopicIsClickedAgain) {
  Open();
  Choose_Category("Organizer");
  Click_Topic("Saving A log");
  ASSERT_TRUE(Help().cmdSelect->isEnabled());
  Choose_Category("Task Reminders");
  EXPECT_FALSE(Help().cmdSelect->isEnabled());
  EXPECT_TRUE(Help().lstSelectATopic->selectedItems().isEmpty());
  Click(Help().cmdSelect);
  EXPECT_EQ(Shown_Name(), "Task Reminders") << "a disabled Select does nothing";
  Click_Topic("Task Reminders At Intervals");
  EXPECT_TRUE(Help().cmdSelect->isEnabled());
}

TEST_F(frmHelpContentsTest, DoubleClickingATopicShowsIt) {
  Open();
  Choose_Category("For Your Information");
  Double_Click_Topic("What is old style and new style?");
  EXPECT_EQ(Shown_Name(), "What is old style and new style?");
  EXPECT_EQ(Shown_Text(), As_Shown(shell::Get_Topic_Contents("What does O.S. and N.S. stand for?")));
}

TEST_F(frmHelpContentsTest, EverythingCanBeDoneWithTheKeyboard) {
  Open();
  Choose_Category("General");
  Press(Qt::Key_Tab);
  ASSERT_EQ(QApplication::focusWidget(), Help().lstSelectATopic);
  EXPECT_FALSE(Help().cmdSelect->isEnabled()) << "coming to the list chooses no topic";
  Press(Qt::Key_Down);  // the first topic has the focus mark, the second is chosen
  EXPECT_TRUE(Help().cmdSelect->isEnabled());
  Press(Qt::Key_Tab);
  ASSERT_EQ(QApplication::focusWidget(), Help().cmdSelect);
  Press(Qt::Key_Space);
  EXPECT_EQ(Shown_Name(), "Finding A Weekday");
  EXPECT_EQ(Shown_Text(), As_Shown(shell::Get_Topic_Contents("Finding A Weekday")));
  Press(Qt::Key_Tab);
  ASSERT_EQ(QApplication::focusWidget(), Help().cmdCancel);
  Press(Qt::Key_Space);
  EXPECT_FALSE(Help().isVisible());
}

TEST_F(frmHelpContentsTest, CloseHidesAndTheCategoryAndTopicStayForTheNextOpening) {
  Open();
  Choose_Category("General");
  Click_Topic("Short Cut Keys");
  Click(Help().cmdSelect);
  const std::string shown = Shown_Text();
  Click(Help().cmdCancel);
  EXPECT_FALSE(Help().isVisible());

  Open();
  EXPECT_EQ(Help().cboCategory->currentText(), "General");
  EXPECT_EQ(Listed_Topics(), As_Strings(shell::Category_Topics("General")));
  EXPECT_EQ(Shown_Name(), "Short Cut Keys");
  EXPECT_EQ(Shown_Text(), shown);
  EXPECT_TRUE(Help().cmdSelect->isEnabled());
  ASSERT_EQ(Help().lstSelectATopic->selectedItems().size(), 1);
  EXPECT_EQ(Help().lstSelectATopic->selectedItems().front()->text(), "Short Cut Keys");
}

TEST_F(frmHelpContentsTest, ClosingByTheFrameKeepsThemToo) {
  Open();
  Choose_Category("Task Reminders");
  Double_Click_Topic("Setting A Task Reminder");
  Help().close();
  EXPECT_FALSE(Help().isVisible());
  Open();
  EXPECT_EQ(Help().cboCategory->currentText(), "Task Reminders");
  EXPECT_EQ(Shown_Name(), "Setting A Task Reminder");
}

TEST_F(frmHelpContentsTest, SelectWithNoTopicChosenShowsNothing) {
  Open();
  Choose_Category("Organizer");
  Help().Select_A_Topic();
  EXPECT_EQ(Shown_Name(), "");
  EXPECT_EQ(Shown_Text(), "");
}

TEST_F(frmHelpContentsTest, ControlsStayInsideTheFixedWindowWithoutOverlapping) {
  Open();
  EXPECT_EQ(Help().minimumSize(), Help().maximumSize());
  const QList<QWidget*> controls = {Help().findChild<QWidget*>("lblCategoryCaption"), Help().cboCategory,
                                    Help().findChild<QWidget*>("lblTopicListCaption"), Help().lstSelectATopic,
                                    Help().cmdSelect, Help().cmdCancel, Help().lblTopicName, Help().txtTopic};
  for (int i = 0; i < controls.size(); ++i) {
    ASSERT_NE(controls[i], nullptr);
    EXPECT_TRUE(Help().rect().contains(controls[i]->geometry())) << controls[i]->objectName().toStdString();
    for (int j = i + 1; j < controls.size(); ++j) {
      EXPECT_FALSE(controls[i]->geometry().intersects(controls[j]->geometry()))
          << controls[i]->objectName().toStdString() << " and " << controls[j]->objectName().toStdString();
    }
  }
}

TEST_F(frmHelpContentsTest, EveryNameFitsItsPlaceAndTheTextsWrap) {
  Open();
  Choose_Category("All Topics");
  QListWidget* list = Help().lstSelectATopic;
  const int room = list->viewport()->width() - list->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  for (int row = 0; row < list->count(); ++row) {
    const QString name = list->item(row)->text();
    EXPECT_LT(list->fontMetrics().horizontalAdvance(name), room) << name.toStdString();
    EXPECT_LT(Help().lblTopicName->fontMetrics().horizontalAdvance(name), Help().lblTopicName->width())
        << name.toStdString();
  }
  EXPECT_FALSE(list->horizontalScrollBar()->isVisible());
  Click_Topic("Elapsed Time Between Two Times");
  Click(Help().cmdSelect);
  Process_Events();
  EXPECT_FALSE(Help().txtTopic->horizontalScrollBar()->isVisible());
}

// Each key of the calendar windows that the short cut keys name, and the menu entry it is.
struct Shortcut_Line {
  const char* line;
  const char* entry;  // on Form1 or on frmLargeCalendar
};
constexpr Shortcut_Line kCalendarKeys[] = {
    {"F1 - Help", "mnuContents"},
    {"F2 - Print Log", "mnuPrintLog"},
    {"'Ctrl' + F2 - Print Calendar", "mnuPrintCalendar"},
    {"F3 - Open the Organizer", "mnuScheduler_Reminder"},
    {"F4 - Toggle - Large Window\\Small Window", "mnuLargeWindow"},
    {"F4 - Toggle - Large Window\\Small Window", "mnuSmallWindow"},
    {"F5 - Minimize Main Window to task bar", "mnuMinimizeToTaskbar"},
    {"'Ctrl' + F5 - Maximize Main Window", "mnuMaximize"},
    {"'Shift' + F5 - Windowed", "mnuWindowed"},
    {"'Ctrl' + 'D' - Today's Date", "mnuTodaysDate"},
    {"'Ctrl' + 'N' - Display Next Month On Calendar", "mnuNext"},
    {"'Ctrl' + 'P' - Display Previous Month On Calendar", "mnuPrevious"},
    {"'Ctrl' + 'M' - Select a Month to Display on the Calendar", "mnuSelect"},
    {"'Ctrl' + 'O' - Open an existing log file", "mnuOpenLog"},
    {"'Ctrl' + 'S' - Save the Current Log", "mnuSaveLog"},
    {"'Ctrl' + 'V' - Save the Current Log to a different location", "mnuSaveLogAs"},
    {"'Ctrl' + 'E' - Add A New Task to the Current Log", "mnuAddNewTaskEventToLog"},
    {"'Ctrl' + 'G' - Add A New Group Member to the Current Log", "mnuAddNewGroupMember"},
    {"'Ctrl' + 'C' - Convert the displayed date in the Calendar Window", "mnuConvertDate"},
    {"'Ctrl' + 'H' - Find the Dates of Holidays", "mnuFindHolidayDates"},
    {"'Ctrl' + 'W' - Find a weekday for a Selected Date", "mnuFindADatesWeekday"},
    {"'Ctrl' + 'A' - Display the 'About' Window", "mnuAbout"},
    {"'Ctrl' + 'L' - Display the license", "mnuLicense"},
    {"'Ctrl' + 'Q' - Quit Orrivane", "mnuExit"},
};

// The key of a line: "'Ctrl' + 'D' - ..." is Ctrl+D.
QKeySequence Key_Of(std::string_view line) {
  QString key = QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size())).section(" - ", 0, 0);
  key.remove('\'').remove(' ');
  return QKeySequence(key);
}

TEST_F(frmHelpContentsTest, TheShortCutKeysOfTheCalendarWindowAreThoseOfTheirMenus) {
  Window<Form1>().show();
  Process_Events();
  const std::string text = shell::Get_Topic_Contents("Short Cut Keys");
  for (const Shortcut_Line& key : kCalendarKeys) {
    EXPECT_NE(text.find(std::string("\r\n") + key.line + "\r\n"), std::string::npos) << key.line;
    QAction* entry = Window<Form1>().findChild<QAction*>(key.entry);
    if (entry == nullptr) entry = Window<frmLargeCalendar>().findChild<QAction*>(key.entry);
    ASSERT_NE(entry, nullptr) << key.entry;
    EXPECT_EQ(entry->shortcut(), Key_Of(key.line)) << key.line;
  }
}

}  // namespace
}  // namespace orrivane
