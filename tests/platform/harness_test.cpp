// The window tests' own tools: menu entries and buttons used only when the user could use them,
// keys pressed to the focused control, modal windows waited for, golden files read.
#include <gtest/gtest-spi.h>

#include <QAction>
#include <QDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <algorithm>

#include "support/golden.h"
#include "support/window_fixture.h"

namespace orrivane {
namespace {

using namespace std::chrono_literals;
using testing::Golden_Cases;
using testing::WindowTest;

// A window with a menu entry that has a shortcut, a button and a text box.
class HarnessTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    QMenu* menu = window_.menuBar()->addMenu("Month");
    menu->setObjectName("mnuMonth");
    next_ = menu->addAction("Next");
    next_->setObjectName("mnuNext");
    next_->setShortcut(QKeySequence("Ctrl+N"));
    QObject::connect(next_, &QAction::triggered, [this] { ++used_; });
    auto* central = new QWidget(&window_);
    button_ = new QPushButton("Go", central);
    button_->setObjectName("cmdGo");
    QObject::connect(button_, &QPushButton::clicked, [this] { ++used_; });
    text_ = new QLineEdit(central);
    text_->move(0, 40);
    window_.setCentralWidget(central);
    window_.show();
  }

  QMainWindow window_;
  QAction* next_ = nullptr;
  QPushButton* button_ = nullptr;
  QLineEdit* text_ = nullptr;
  int used_ = 0;
};

TEST_F(HarnessTest, TriggerUsesAnEnabledEntryOrButton) {
  EXPECT_TRUE(Trigger(window_, "mnuNext"));
  EXPECT_TRUE(Trigger(window_, "cmdGo"));
  EXPECT_EQ(used_, 2);
}

TEST_F(HarnessTest, TriggerFailsTheTestForADisabledEntryOrButtonAndUsesNothing) {
  next_->setEnabled(false);
  button_->setEnabled(false);
  EXPECT_NONFATAL_FAILURE(Trigger(window_, "mnuNext"), "the menu entry mnuNext is disabled");
  EXPECT_NONFATAL_FAILURE(Trigger(window_, "cmdGo"), "the button cmdGo is disabled");
  EXPECT_EQ(used_, 0);
}

TEST_F(HarnessTest, TriggerFailsTheTestForAnEntryInADisabledMenuOrMenuBar) {
  window_.findChild<QMenu*>("mnuMonth")->setEnabled(false);
  EXPECT_NONFATAL_FAILURE(Trigger(window_, "mnuNext"), "the menu entry mnuNext is disabled");
  window_.findChild<QMenu*>("mnuMonth")->setEnabled(true);
  window_.menuBar()->setEnabled(false);
  EXPECT_NONFATAL_FAILURE(Trigger(window_, "mnuNext"), "the menu entry mnuNext is disabled");
  EXPECT_EQ(used_, 0);
}

TEST_F(HarnessTest, TriggerFailsTheTestForANameThatIsNotThere) {
  EXPECT_NONFATAL_FAILURE(Trigger(window_, "mnuNone"), "no menu entry or button named mnuNone");
}

TEST_F(HarnessTest, KeysGoToTheFocusedControlAndTheirShortcutsToTheWindow) {
  Press_Keys(window_, QKeySequence("Ctrl+N"));
  EXPECT_EQ(used_, 1);
  text_->setFocus();
  Press_Keys(QKeySequence("A"));
  Press_Keys(QKeySequence("B, C"));
  EXPECT_EQ(text_->text().toStdString(), "abc");
}

TEST_F(HarnessTest, WhenModalActsInsideTheModalWindowOnceItIsOpen) {
  QDialog dialog;
  bool open_inside = false;
  When_Modal([&] {
    open_inside = dialog.isVisible() && QApplication::activeModalWidget() == &dialog;
    dialog.accept();
  });
  dialog.exec();
  EXPECT_TRUE(open_inside);
}

TEST_F(HarnessTest, WhenModalFailsTheTestWhenNoModalWindowOpensInTime) {
  EXPECT_NONFATAL_FAILURE(
      {
        When_Modal([] {}, 20ms);
        QTest::qWait(100);
      },
      "no modal window opened within 20 ms");
}

TEST_F(HarnessTest, WhenModalFailsTheTestWhenTheNextOneComesBeforeAnyModalWindow) {
  QDialog dialog;
  EXPECT_NONFATAL_FAILURE(
      {
        When_Modal([] {});
        When_Modal([&] { dialog.accept(); });
      },
      "a When_Modal was still waiting before the next When_Modal");
  dialog.exec();
}

TEST(GoldenFiles, ASuitesCasesAreItsFoldersInNameOrderWithTheirExpectedBytes) {
  const auto cases = Golden_Cases("saved_holiday_list");
  ASSERT_GE(cases.size(), 2u);
  EXPECT_TRUE(std::is_sorted(cases.begin(), cases.end(), [](const auto& a, const auto& b) { return a.name < b.name; }));
  const auto easter = std::find_if(cases.begin(), cases.end(), [](const auto& c) { return c.name == "easter_2003"; });
  ASSERT_NE(easter, cases.end());
  EXPECT_EQ(easter->Expected(), "\"Easter, Sunday, April 20, 2003\"\r\n");
  EXPECT_EQ(easter->Lines("requests.txt"), std::vector<std::string>{"Easter|2003"});
  EXPECT_TRUE(Golden_Cases("no_such_suite").empty());
}

}  // namespace
}  // namespace orrivane
