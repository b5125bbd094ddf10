#include "support/window_fixture.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <algorithm>

#include "platform/qt_platform.h"
#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif
#include "platform/window_registry.h"

namespace orrivane::testing {

namespace {

// Days from 1 January 1970 to a proleptic Gregorian date, and back.
long long Days_From_Civil(long long y, int m, int d) {
  y -= m <= 2;
  const long long era = (y >= 0 ? y : y - 399) / 400;
  const long long yoe = y - era * 400;
  const long long doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const long long doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + doe - 719468;
}

void Civil_From_Days(long long z, long long& y, int& m, int& d) {
  z += 719468;
  const long long era = (z >= 0 ? z : z - 146096) / 146097;
  const long long doe = z - era * 146097;
  const long long yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const long long doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const long long mp = (5 * doy + 2) / 153;
  d = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
  m = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
  y = yoe + era * 400 + (m <= 2);
}

constexpr long long kMillisecondsPerDay = 86400 * 1000LL;

long long Floor_Div(long long a, long long b) { return a / b - ((a % b != 0) && ((a < 0) != (b < 0))); }

// A user reaches a menu entry when it is enabled and so is some menu it stands in, up to the
// menu bar; an entry in no menu is reached by its shortcut alone.
bool Reachable(const QAction& action) {
  if (!action.isEnabled()) return false;
  const QObjectList places = action.associatedObjects();
  return places.isEmpty() || std::any_of(places.begin(), places.end(), [](const QObject* place) {
           if (const auto* menu = qobject_cast<const QMenu*>(place)) return Reachable(*menu->menuAction());
           if (const auto* widget = qobject_cast<const QWidget*>(place)) return widget->isEnabled();
           return true;
         });
}

// Runs an action as an event of the application, so that its failures reach the event dispatch
// as those of the machine's own timers do.
class DispatchedAction : public QObject {
 public:
  explicit DispatchedAction(std::function<void()> action) : action_(std::move(action)) {}
  bool event(QEvent* event) override {
    if (event->type() != QEvent::User) return QObject::event(event);
    action_();
    return true;
  }

 private:
  std::function<void()> action_;
};

void Dispatch(std::function<void()> action) {
  DispatchedAction receiver(std::move(action));
  QEvent event(QEvent::User);
  QCoreApplication::sendEvent(&receiver, &event);
}

}  // namespace

void FakePlatform::Set_Now(int year, int month, int day, int hour, int minute, int second) {
  Set_Clock_To(Days_From_Civil(year, month, day) * kMillisecondsPerDay + ((hour * 60LL + minute) * 60 + second) * 1000);
}

void FakePlatform::Set_Clock_To(long long moment) {
  // The machine's timers count their waits apart from the clock, so each keeps the wait it had
  // left, whichever way the clock was set.
  const long long shift = moment - now_;
  for (auto& [id, timer] : timers_) timer.due += shift;
  if (moving_to_) *moving_to_ += shift;
  now_ = moment;
}

void FakePlatform::Advance_Milliseconds(long long milliseconds) { Move_Clock_To(now_ + milliseconds); }

platform::ClockReading FakePlatform::Read_Clock() {
  ++readings_;
  long long y;
  int m, d;
  const long long day = Floor_Div(now_, kMillisecondsPerDay);
  Civil_From_Days(day, y, m, d);
  const long long s = (now_ - day * kMillisecondsPerDay) / 1000;
  platform::ClockReading reading{
      platform::Format_System_Date(static_cast<int>(y), m, d),
      platform::Format_System_Time(static_cast<int>(s / 3600), static_cast<int>(s / 60 % 60), static_cast<int>(s % 60))};
  if (step_per_reading_ != 0) Advance_Milliseconds(step_per_reading_);
  return reading;
}

platform::TimerId FakePlatform::Start_Timer(int interval_ms, std::function<void()> tick) {
  platform::Require_Timer_Interval(interval_ms);
  timers_[++last_timer_] = {interval_ms, now_ + interval_ms, std::make_shared<platform::TimerTick>(std::move(tick))};
  return last_timer_;
}

void FakePlatform::Stop_Timer(platform::TimerId timer) { timers_.erase(timer); }

void FakePlatform::Move_Clock_To(long long moment) {
  if (moment < now_) {
    Set_Clock_To(moment);  // time never runs back: the clock was set
    return;
  }
  if (moving_to_) {
    // From inside a tick: the ticks still due run after it, in their order.
    now_ = moment;
    moving_to_ = std::max(*moving_to_, moment);
    return;
  }
  Run_Ticks_Due_Until(moment);
}

void FakePlatform::Run_Ticks_Due_Until(long long moment) {
  moving_to_ = moment;
  struct Arrived {
    FakePlatform& machine;
    ~Arrived() {
      machine.now_ = *machine.moving_to_;
      machine.moving_to_.reset();
    }
  } arrived{*this};
  while (Timer* next = Next_Due(*moving_to_)) {
    now_ = next->due;
    next->due += next->interval_ms;
    const std::shared_ptr<platform::TimerTick> tick = next->tick;  // the tick may stop its timer
    Dispatch([&tick] { tick->Run(); });
  }
}

FakePlatform::Timer* FakePlatform::Next_Due(long long moment) {
  // A program that has ended runs no more ticks.
  if (exit_code_) return nullptr;
  Timer* first = nullptr;
  for (auto& [id, timer] : timers_) {
    if (timer.due <= moment && (first == nullptr || timer.due < first->due)) first = &timer;
  }
  return first;
}

void FakePlatform::Answer_Next(int answer, std::optional<std::string> title) {
  answers_.push_back({answer, std::move(title)});
}

int FakePlatform::Message_Box(const std::string& text, int buttons, int icon, const std::string& title) {
  int answer;
  if (answers_.empty()) {
    ADD_FAILURE() << "unexpected message: [" << title << "] " << text;
    answer = buttons == platform::vbOKOnly ? platform::vbOK
             : buttons == platform::vbYesNo ? platform::vbNo
                                             : platform::vbCancel;
  } else {
    const Expected expected = answers_.front();
    answers_.pop_front();
    if (expected.title && *expected.title != title) {
      ADD_FAILURE() << "message titled [" << title << "] where [" << *expected.title << "] was expected: " << text;
    }
    answer = expected.answer;
  }
  messages_.push_back({title, text, buttons, icon, answer});
  return answer;
}

void FakePlatform::Begin_Print_Job(const std::string& document_name) {
  if (open_job_) ADD_FAILURE() << "a print job begun while " << open_job_->document_name << " was open";
  open_job_ = PrintJob{{}, {}, document_name};
}

void FakePlatform::Print_Sheet(QWidget& window) {
  if (!open_job_) {
    ADD_FAILURE() << "a sheet printed outside a print job";
    return;
  }
  open_job_->pages.push_back(window.grab().toImage());
}

void FakePlatform::End_Print_Job() {
  if (open_job_ && !open_job_->pages.empty()) jobs_.push_back(std::move(*open_job_));
  open_job_.reset();
}

void FakePlatform::Print_Text(const std::vector<platform::TextPage>& pages) {
  jobs_.push_back({platform::Render_Text_Pages(pages, 72), pages, {}});
}

void FakePlatform::Randomize(double seed) {
  seed_ = seed;
  random_.Seed(seed);
}

double FakePlatform::Rnd() {
  if (rnd_script_.empty()) return random_.Next();
  const double next = rnd_script_.front();
  rnd_script_.pop_front();
  return next;
}

void FakePlatform::Yield() {
  ++yields_;
  QCoreApplication::processEvents();
  if (on_yield_) on_yield_();
}

void FakePlatform::End_Process(int exit_code) {
  exit_code_ = exit_code;
  throw platform::ProcessEnded{exit_code};
}

// A When_Modal under way: it looks for the modal window at each turn of the event loop, runs
// the action once one is open, and fails the test when none opens in time.
class WindowTest::ModalWait {
 public:
  ModalWait(std::function<void()> action, std::chrono::milliseconds limit)
      : action_(std::move(action)), limit_(limit), open_before_(QApplication::activeModalWidget()) {
    since_.start();
    QObject::connect(&poll_, &QTimer::timeout, &poll_, [this] { Look(); });
    poll_.start(0);  // the first look at the first turn of the event loop, then every few ms
  }

  bool Done() const { return done_; }

 private:
  void Look() {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal != nullptr && modal != open_before_) {
      Finish();
      // Queued, so that the action runs from the modal window's own event loop and may itself
      // wait for the next modal window, which replaces this one.
      QMetaObject::invokeMethod(qApp, std::move(action_), Qt::QueuedConnection);
    } else if (since_.elapsed() >= limit_.count()) {
      Finish();
      ADD_FAILURE() << "no modal window opened within " << limit_.count() << " ms";
    } else {
      poll_.setInterval(10);
    }
  }
  void Finish() {
    poll_.stop();
    done_ = true;
  }

  std::function<void()> action_;
  std::chrono::milliseconds limit_;
  QWidget* open_before_;
  QElapsedTimer since_;
  QTimer poll_;
  bool done_ = false;
};

WindowTest::WindowTest() = default;
WindowTest::~WindowTest() = default;

void WindowTest::SetUp() {
  folder_ = std::make_unique<QTemporaryDir>();
  ASSERT_TRUE(folder_->isValid());
  previous_folder_ = QDir::currentPath();
  QDir::setCurrent(folder_->path());
  platform::Install(&machine_);
  machine_.Set_Now(2024, 3, 15, 10, 30, 0);
}

void WindowTest::TearDown() {
  Expect_No_Modal_Wait_Left("at the end of the test");
  Unload_All_Windows();
  Process_Events();
  EXPECT_EQ(machine_.Unanswered(), 0u) << "answers scripted for messages that never came";
  platform::Install(nullptr);
  QDir::setCurrent(previous_folder_);
  folder_.reset();
}

std::string WindowTest::Folder() const { return folder_->path().toStdString(); }

std::string WindowTest::Path(const std::string& name) const { return Folder() + "/" + name; }

std::string WindowTest::Read_File(const std::string& name) const {
  QFile file(QString::fromStdString(Path(name)));
  if (!file.open(QIODevice::ReadOnly)) {
    ADD_FAILURE() << "cannot read " << name;
    return {};
  }
  return file.readAll().toStdString();
}

void WindowTest::Write_File(const std::string& name, const std::string& content) const {
  QFile file(QString::fromStdString(Path(name)));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  file.write(content.data(), static_cast<qint64>(content.size()));
}

bool WindowTest::File_Present(const std::string& name) const {
  return QFile::exists(QString::fromStdString(Path(name)));
}

void WindowTest::Click(QWidget* widget) {
  ASSERT_NE(widget, nullptr);
  QTest::mouseClick(widget, Qt::LeftButton);
}

void WindowTest::Until_The_End(const std::function<void()>& action) {
#if defined(__SANITIZE_ADDRESS__)
  __lsan_disable();
#endif
  action();
#if defined(__SANITIZE_ADDRESS__)
  __lsan_enable();
#endif
  EXPECT_TRUE(machine_.Exit_Code().has_value()) << "the program did not end";
}

void WindowTest::Type(QWidget* widget, const QString& text) {
  ASSERT_NE(widget, nullptr);
  if (auto* edit = qobject_cast<QLineEdit*>(widget)) edit->clear();
  QTest::keyClicks(widget, text);
}

bool WindowTest::Trigger(QWidget& window, const QString& name) {
  if (auto* button = window.findChild<QAbstractButton*>(name)) {
    if (!button->isEnabled()) {
      ADD_FAILURE() << "the button " << name.toStdString() << " is disabled";
      return false;
    }
    Click(button);
    return true;
  }
  QAction* entry = window.findChild<QAction*>(name);
  if (entry == nullptr) {
    ADD_FAILURE() << "no menu entry or button named " << name.toStdString();
    return false;
  }
  if (!Reachable(*entry)) {
    ADD_FAILURE() << "the menu entry " << name.toStdString() << " is disabled";
    return false;
  }
  entry->trigger();
  return true;
}

void WindowTest::Press_Keys(const QKeySequence& keys) {
  for (int i = 0; i < keys.count(); ++i) {
    // Asked at each key: a key may move the focus.
    QWidget* target = QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : QApplication::activeWindow();
    if (target == nullptr) {
      ADD_FAILURE() << "no window is active to take " << keys.toString().toStdString();
      return;
    }
    QTest::keyClick(target, keys[i].key(), keys[i].keyboardModifiers());
  }
}

void WindowTest::Press_Keys(QWidget& window, const QKeySequence& keys) {
  ASSERT_TRUE(window.isVisible()) << "keys pressed to a hidden window";
  window.raise();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window)) << "the window did not come to the front";
  // A window hidden while it was active stays the focus window of the offscreen platform, which
  // then takes its activation for no change; the click on its frame makes it active all the same.
  if (QApplication::activeWindow() != &window) QApplication::setActiveWindow(&window);
  Press_Keys(keys);
}

void WindowTest::When_Modal(std::function<void()> action, std::chrono::milliseconds limit) {
  Expect_No_Modal_Wait_Left("before the next When_Modal");
  modal_wait_ = std::make_unique<ModalWait>(std::move(action), limit);
}

void WindowTest::Expect_No_Modal_Wait_Left(const char* when) {
  if (modal_wait_ && !modal_wait_->Done()) {
    ADD_FAILURE() << "a When_Modal was still waiting " << when << ": no modal window opened";
  }
  modal_wait_.reset();
}

void WindowTest::Process_Events() { QCoreApplication::processEvents(); }

}  // namespace orrivane::testing
