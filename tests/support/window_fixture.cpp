#include "support/window_fixture.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

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

long long Floor_Div(long long a, long long b) { return a / b - ((a % b != 0) && ((a < 0) != (b < 0))); }

}  // namespace

void FakePlatform::Set_Now(int year, int month, int day, int hour, int minute, int second) {
  now_ = Days_From_Civil(year, month, day) * 86400 + hour * 3600 + minute * 60 + second;
}

void FakePlatform::Advance_Seconds(long long seconds) { now_ += seconds; }

std::string FakePlatform::System_Date() {
  long long y;
  int m, d;
  Civil_From_Days(Floor_Div(now_, 86400), y, m, d);
  return platform::Format_System_Date(static_cast<int>(y), m, d);
}

std::string FakePlatform::System_Time() {
  const long long s = now_ - Floor_Div(now_, 86400) * 86400;
  return platform::Format_System_Time(static_cast<int>(s / 3600), static_cast<int>(s / 60 % 60),
                                      static_cast<int>(s % 60));
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

void FakePlatform::Print_Window(QWidget& window) { jobs_.push_back({{window.grab().toImage()}, {}}); }

void FakePlatform::Print_Text(const std::vector<platform::TextPage>& pages) {
  jobs_.push_back({platform::Render_Text_Pages(pages, 72), pages});
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

void WindowTest::SetUp() {
  folder_ = std::make_unique<QTemporaryDir>();
  ASSERT_TRUE(folder_->isValid());
  previous_folder_ = QDir::currentPath();
  QDir::setCurrent(folder_->path());
  platform::Install(&machine_);
  machine_.Set_Now(2024, 3, 15, 10, 30, 0);
}

void WindowTest::TearDown() {
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

void WindowTest::When_Modal(std::function<void()> action) { QTimer::singleShot(0, qApp, std::move(action)); }

void WindowTest::Process_Events() { QCoreApplication::processEvents(); }

}  // namespace orrivane::testing
