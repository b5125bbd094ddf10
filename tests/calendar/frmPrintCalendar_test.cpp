// Printing the calendar: the look of the main grid copied into the print window as it stands,
// the question before the page goes out, and the page itself as the printer receives it.
#include <QImage>
#include <vector>

#include "calendar/calendar_window_test.h"
#include "calendar/frmPrintCalendar.h"

namespace orrivane {
namespace {

using controls::Back_Color;
using controls::Caption;
using controls::Fore_Color;
using testing::CalendarWindowTest;

class PrintCalendarTest : public CalendarWindowTest {
 protected:
  frmPrintCalendar& Print_Window() { return Window<frmPrintCalendar>(); }

  // Starts on 15 March 2024 in the green of the first colour, so that no red but the
  // selected date's is on the page.
  void Start_In_March_2024() {
    machine().Set_Now(2024, 3, 15);
    machine().Script_Rnd(0.0);  // colour 1
    Start_Program();
  }

  void Print_With(int answer) {
    machine().Answer_Next(answer, "Print Calendar");
    Click(main().cmdPrintTheCalendar);
  }

  const QImage& Printed_Page() {
    EXPECT_EQ(machine().Print_Jobs().size(), 1u);
    return machine().Print_Jobs().back().pages.front();
  }

  static int Red_Pixels(const QImage& image) {
    int red = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) red += image.pixel(x, y) == qRgb(255, 0, 0);
    return red;
  }
};

TEST_F(PrintCalendarTest, TheQuestionComesBeforeThePage) {
  Start_In_March_2024();
  Print_With(platform::vbOK);
  ASSERT_EQ(machine().Messages().size(), 1u);
  EXPECT_EQ(machine().Messages()[0].title, "Print Calendar");
  EXPECT_EQ(machine().Messages()[0].text, "To print the calendar, click 'OK', otherwise click 'Cancel'.");
  EXPECT_EQ(machine().Messages()[0].buttons, platform::vbOKCancel);
  EXPECT_EQ(machine().Messages()[0].icon, platform::vbNoIcon);
  ASSERT_EQ(machine().Print_Jobs().size(), 1u);
  EXPECT_EQ(machine().Print_Jobs()[0].document_name, "Orrivane-calendar-March-2024");
  EXPECT_EQ(Printed_Page().size(), Print_Window().size());
  EXPECT_FALSE(Print_Window().isVisible());
}

TEST_F(PrintCalendarTest, ThePrintCopiesTheLookOfTheMainGridAsItStands) {
  Start_In_March_2024();
  Print_With(platform::vbOK);
  frmPrintCalendar& print = Print_Window();
  EXPECT_EQ(Caption(print.lblMonthYear), "March 2024");
  EXPECT_EQ(Caption(print.lblCalendarNameOverCalendar), "GREGORIAN CALENDAR");
  EXPECT_EQ(Fore_Color(print.lblMonthYear), Fore_Color(main().lblMonthYear));
  for (int i = 0; i < 42; ++i) {
    EXPECT_EQ(Caption(print.face.lblCalDate[i]), Cell(main(), i)) << i;
    EXPECT_EQ(Fore_Color(print.face.lblCalDate[i]), Cell_Colour(main(), i)) << i;
  }
  EXPECT_EQ(Fore_Color(print.face.lblCalDate[19]), controls::kRed);
  EXPECT_EQ(Fore_Color(print.face.lblCalDate[4]), controls::kGrayText);
  EXPECT_EQ(Back_Color(print.face.lblCalendarWeekDaysBackground), 32768u);
  EXPECT_EQ(Back_Color(print.face.lblCalendarDatesBackground), Back_Color(main().face.lblCalendarDatesBackground));
  const char* full_names[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
  for (int i = 0; i < 7; ++i) {
    EXPECT_EQ(Caption(print.lblCalendarWeekDayName2[i]), full_names[i]);
    EXPECT_EQ(Fore_Color(print.lblCalendarWeekDayName2[i]), Fore_Color(main().face.lblCalendarWeekdayName[i]));
    EXPECT_EQ(Fore_Color(print.face.lblCalendarWeekdayName[i]), Fore_Color(main().face.lblCalendarWeekdayName[i]));
  }
  // No side calendars on the page.
  EXPECT_EQ(print.findChild<QLabel*>("lblPriorMonthCalDate(0)"), nullptr);
  EXPECT_EQ(print.findChild<QLabel*>("lblNextMonthName"), nullptr);
}

TEST_F(PrintCalendarTest, TheLinesPrintInTheColourTheyHaveOnTheMainGrid) {
  Start_In_March_2024();
  controls::Set_Fore_Color(main().face.lneCalendarWeekdayAndDateBorder, 0x00FF00);
  controls::Set_Fore_Color(main().face.lneCalendarInnerBorder[10], 0x808080);
  controls::Set_Fore_Color(main().face.lneCalendarOuterBorder[3], 0xFF0000);
  Print_With(platform::vbOK);
  CalendarFace& page = Print_Window().face;
  EXPECT_EQ(Fore_Color(page.lneCalendarWeekdayAndDateBorder), 0x00FF00u);
  EXPECT_EQ(Fore_Color(page.lneCalendarInnerBorder[10]), 0x808080u);
  EXPECT_EQ(Fore_Color(page.lneCalendarOuterBorder[3]), 0xFF0000u);
  EXPECT_EQ(Fore_Color(page.lneCalendarInnerBorder[0]), CalendarFace::kGridLineColour);
}

TEST_F(PrintCalendarTest, AfterASelectedDateThePageHasOneRedDate) {
  Start_In_March_2024();
  Print_With(platform::vbOK);
  int red_cells = 0;
  for (QLabel* cell : Print_Window().face.lblCalDate) red_cells += Fore_Color(cell) == controls::kRed;
  EXPECT_EQ(red_cells, 1);
  EXPECT_GT(Red_Pixels(Printed_Page()), 0);
}

TEST_F(PrintCalendarTest, DirectlyAfterAMonthStepThePageHasNoRedDate) {
  Start_In_March_2024();
  Click(large().cmdNextMonth);
  Print_With(platform::vbOK);
  EXPECT_EQ(Caption(Print_Window().lblMonthYear), "April 2024");
  for (QLabel* cell : Print_Window().face.lblCalDate) EXPECT_NE(Fore_Color(cell), controls::kRed);
  EXPECT_EQ(Red_Pixels(Printed_Page()), 0);
  EXPECT_EQ(machine().Print_Jobs()[0].document_name, "Orrivane-calendar-April-2024");
}

TEST_F(PrintCalendarTest, ACancelledPrintLeavesTheMainWindowUnchanged) {
  Start_In_March_2024();
  Click(large().cmdNextMonth);
  auto look = [this] {
    std::vector<std::string> captions;
    std::vector<unsigned> colours;
    for (QLabel* label : main().findChildren<QLabel*>()) {
      captions.push_back(Caption(label));
      colours.push_back(Fore_Color(label));
      colours.push_back(Back_Color(label));
    }
    return std::make_pair(captions, colours);
  };
  const auto before = look();
  Print_With(platform::vbCancel);
  EXPECT_EQ(machine().Print_Jobs().size(), 0u);
  EXPECT_EQ(look(), before);
  EXPECT_EQ(machine().Messages().size(), 1u);
  // The print window took the look all the same, where no one sees it.
  EXPECT_EQ(Caption(Print_Window().lblMonthYear), "April 2024");
  EXPECT_FALSE(Print_Window().isVisible());
}

TEST_F(PrintCalendarTest, TheLargeCalendarPrintsTheMonthOfTheMainWindow) {
  Start_In_March_2024();
  machine().Answer_Next(platform::vbOK, "Print Calendar");
  ASSERT_TRUE(Trigger(large(), "mnuPrintCalendar"));
  ASSERT_EQ(machine().Print_Jobs().size(), 1u);
  EXPECT_EQ(machine().Print_Jobs()[0].document_name, "Orrivane-calendar-March-2024");
  EXPECT_EQ(Caption(Print_Window().lblMonthYear), Label(main(), "lblMonthYear"));
}

TEST_F(PrintCalendarTest, BothCalendarFacesCarryTheGridLines) {
  Start_In_March_2024();
  for (QWidget* window : {static_cast<QWidget*>(&main()), static_cast<QWidget*>(&large())}) {
    EXPECT_NE(window->findChild<QFrame*>("lneCalendarWeekdayAndDateBorder"), nullptr);
    for (int i = 0; i < 11; ++i) {
      QFrame* line = Control<QFrame>(*window, controls::Array_Name("lneCalendarInnerBorder", i));
      ASSERT_NE(line, nullptr);
      EXPECT_EQ(Fore_Color(line), CalendarFace::kGridLineColour);
    }
    for (int i = 0; i < 4; ++i) {
      EXPECT_NE(Control<QFrame>(*window, controls::Array_Name("lneCalendarOuterBorder", i)), nullptr);
    }
    EXPECT_EQ(window->findChild<QFrame*>("lneCalendarInnerBorder(11)"), nullptr);
  }
}

TEST_F(PrintCalendarTest, TheLinesRunBetweenTheCellsOfTheGrid) {
  Start_In_March_2024();
  const CalendarFace& face = main().face;
  // The six lines between the columns stand at the left edges of the cells of columns 1 to 6,
  // the five between the rows at the top edges of the rows 1 to 5.
  for (int col = 1; col < 7; ++col) EXPECT_EQ(face.lneCalendarInnerBorder[col - 1]->x(), face.lblCalDate[col]->x());
  for (int row = 1; row < 6; ++row) {
    EXPECT_EQ(face.lneCalendarInnerBorder[5 + row]->y(), face.lblCalDate[7 * row]->y());
  }
  EXPECT_EQ(face.lneCalendarWeekdayAndDateBorder->y(), face.lblCalDate[0]->y());
  const QRect grid = face.lblCalendarWeekDaysBackground->geometry().united(face.lblCalendarDatesBackground->geometry());
  EXPECT_EQ(face.lneCalendarOuterBorder[0]->y(), grid.top());
  EXPECT_EQ(face.lneCalendarOuterBorder[1]->x(), grid.right());
  EXPECT_EQ(face.lneCalendarOuterBorder[2]->y(), grid.bottom());
  EXPECT_EQ(face.lneCalendarOuterBorder[3]->x(), grid.left());
}

}  // namespace
}  // namespace orrivane
