// A window of choices goes away when another window of the program becomes active, and stays
// while its own message box has the focus.
#include "platform/HideOnDeactivate.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMessageBox>
#include <QWidget>

#include "support/window_fixture.h"

namespace orrivane {
namespace {

class HideOnDeactivateTest : public testing::WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    window_.show();
    Process_Events();
  }
  void Deactivate() {
    QEvent deactivate(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(&window_, &deactivate);
  }

  QWidget window_;
  HideOnDeactivate* hide_ = new HideOnDeactivate(window_);
};

TEST_F(HideOnDeactivateTest, AnotherWindowBecomingActivePutsItAway) {
  Deactivate();
  EXPECT_FALSE(window_.isVisible());
}

TEST_F(HideOnDeactivateTest, ItsMessageIsShownAndAnswered) {
  machine().Answer_Next(vbOK, "Check");
  EXPECT_EQ(hide_->Show_Message(Exclamation_Message("Check", "Please select a month.")), vbOK);
  ASSERT_EQ(machine().Messages().size(), 1u);
  EXPECT_EQ(machine().Messages()[0].icon, vbExclamation);
  EXPECT_TRUE(window_.isVisible());
}

TEST_F(HideOnDeactivateTest, AMessageBoxTakingTheFocusDoesNotPutItAway) {
  QMessageBox box;
  box.setText("Reminder");
  bool stayed = false;
  When_Modal([&] {
    Deactivate();
    stayed = window_.isVisible();
    box.accept();
  });
  box.exec();
  EXPECT_TRUE(stayed);
}

}  // namespace
}  // namespace orrivane
