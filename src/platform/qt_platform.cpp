#include "platform/qt_platform.h"

#include "platform/WindowKeys.h"

#include <QDateTime>
#include <QDir>
#include <QFontMetrics>
#include <QGridLayout>
#include <QMessageBox>
#include <QSpacerItem>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QWidget>
#include <algorithm>
#include <cstdlib>
#include <memory>

#include "core/runtime_failure.h"

namespace orrivane::platform {

std::string Format_System_Date(int year, int month, int day) {
  return std::to_string(month) + "/" + std::to_string(day) + "/" + std::to_string(year);
}

std::string Format_System_Time(int hour, int minute, int second) {
  const int twelve = hour % 12 == 0 ? 12 : hour % 12;
  auto two = [](int n) { return (n < 10 ? "0" : "") + std::to_string(n); };
  return std::to_string(twelve) + ":" + two(minute) + ":" + two(second) + (hour < 12 ? " AM" : " PM");
}

ClockReading Clock_Reading_Of(const QDateTime& moment) {
  const QDate d = moment.date();
  const QTime t = moment.time();
  return {Format_System_Date(d.year(), d.month(), d.day()), Format_System_Time(t.hour(), t.minute(), t.second())};
}

ClockReading QtPlatform::Read_Clock() { return Clock_Reading_Of(QDateTime::currentDateTime()); }

QtPlatform::~QtPlatform() {
  End_Print_Job();
  for (const auto& [id, timer] : timers_) delete timer;
}

TimerId QtPlatform::Start_Timer(int interval_ms, std::function<void()> tick) {
  Require_Timer_Interval(interval_ms);
  auto* timer = new QTimer(QCoreApplication::instance());
  auto runs = std::make_shared<TimerTick>(std::move(tick));
  QObject::connect(timer, &QTimer::timeout, timer, [runs] { runs->Run(); });
  timer->start(interval_ms);
  timers_[++last_timer_] = timer;
  return last_timer_;
}

void QtPlatform::Stop_Timer(TimerId timer) {
  const auto found = timers_.find(timer);
  if (found == timers_.end()) return;
  found->second->stop();
  // Later, not at once: the timer may be stopped from inside its own tick.
  found->second->deleteLater();
  timers_.erase(found);
}

namespace {

QMessageBox::Icon To_Qt_Icon(int icon) {
  switch (icon) {
    case vbCritical: return QMessageBox::Critical;
    case vbQuestion: return QMessageBox::Question;
    case vbExclamation: return QMessageBox::Warning;
    case vbInformation: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
  }
}

struct ButtonAnswer {
  QMessageBox::StandardButton button;
  int answer;
};

std::vector<ButtonAnswer> Buttons_Of(int buttons) {
  switch (buttons) {
    case vbOKCancel: return {{QMessageBox::Ok, vbOK}, {QMessageBox::Cancel, vbCancel}};
    case vbYesNoCancel:
      return {{QMessageBox::Yes, vbYes}, {QMessageBox::No, vbNo}, {QMessageBox::Cancel, vbCancel}};
    case vbYesNo: return {{QMessageBox::Yes, vbYes}, {QMessageBox::No, vbNo}};
    default: return {{QMessageBox::Ok, vbOK}};
  }
}

// A PDF page is drawn at this resolution: the print quality of an office printer. At the 1200 dots
// of a high-resolution printer a window's page came to 3 to 5 MB and took seconds to draw.
constexpr int kPdfDotsPerInch = 300;

// The printer to use: the default one, or a PDF file in the current folder when there is none,
// named by the document when it has a name.
void Set_Up_Printer(QPrinter& printer, const std::string& document_name = {}) {
  const QString document = QString::fromStdString(document_name);
  if (!document.isEmpty()) printer.setDocName(document);
  if (!QPrinterInfo::defaultPrinter().isNull()) return;
  static int job = 0;
  const QString name = !document.isEmpty() ? document + ".pdf"
                                           : QString("Orrivane-print-%1-%2.pdf")
                                                 .arg(QDateTime::currentDateTime().toString("yyyyMMdd-HHmmss"))
                                                 .arg(++job);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QDir::current().filePath(name));
  printer.setResolution(kPdfDotsPerInch);
}

// A window manager cuts a title that is wider than its window ("Remin... Added"): the box is
// made wide enough for its title and the buttons of the frame.
void Make_Room_For_Title(QMessageBox& box) {
  constexpr int kFrameButtonsWidth = 120;
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  if (grid == nullptr) return;
  QFont title_font = box.font();
  title_font.setBold(true);
  const int width = QFontMetrics(title_font).horizontalAdvance(box.windowTitle()) + kFrameButtonsWidth;
  grid->addItem(new QSpacerItem(width, 0, QSizePolicy::Minimum, QSizePolicy::Fixed), grid->rowCount(), 0, 1,
                grid->columnCount());
}

}  // namespace

int QtPlatform::Message_Box(const std::string& text, int buttons, int icon, const std::string& title) {
  QMessageBox box(To_Qt_Icon(icon), QString::fromStdString(title), QString::fromStdString(text),
                  QMessageBox::NoButton, QApplication::activeWindow());
  const auto set = Buttons_Of(buttons);
  for (const auto& b : set) box.addButton(b.button);
  box.setDefaultButton(set.front().button);
  Make_Room_For_Title(box);
  const auto pressed = static_cast<QMessageBox::StandardButton>(box.exec());
  for (const auto& b : set) {
    if (b.button == pressed) return b.answer;
  }
  // Closed by its frame: the way out of the box.
  return set.size() == 1 ? vbOK : (buttons == vbYesNo ? vbNo : vbCancel);
}

void QtPlatform::Begin_Print_Job(const std::string& document_name) {
  End_Print_Job();
  print_document_ = document_name;
}

// The printer is opened at the first sheet, so that a job without sheets leaves no file.
void QtPlatform::Print_Sheet(QWidget& window) {
  // Each page is turned to its window's shape, so that the image fills it. A printer that can't
  // turn a page in the middle of a job keeps the first sheet's way, and the image is scaled down
  // to fit.
  const auto orientation = window.width() > window.height() ? QPageLayout::Landscape : QPageLayout::Portrait;
  if (!painter_) {
    printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    Set_Up_Printer(*printer_, print_document_);
    printer_->setPageOrientation(orientation);
    painter_ = std::make_unique<QPainter>(printer_.get());
  } else {
    printer_->setPageOrientation(orientation);
    printer_->newPage();
  }
  // The printable part of the page, within its margins, in the printer's own dots: the window
  // is drawn there at that resolution, scaled to fill it and centred across.
  const QSize page(printer_->width(), printer_->height());
  const double scale = std::min(page.width() / static_cast<double>(window.width()),
                                page.height() / static_cast<double>(window.height()));
  painter_->resetTransform();
  painter_->translate((page.width() - window.width() * scale) / 2, 0);
  painter_->scale(scale, scale);
  window.render(painter_.get(), QPoint(), QRegion(), QWidget::DrawWindowBackground | QWidget::DrawChildren);
}

void QtPlatform::End_Print_Job() {
  if (painter_) painter_->end();
  painter_.reset();
  printer_.reset();
  print_document_.clear();
}

void QtPlatform::Print_Text(const std::vector<TextPage>& pages) {
  QPrinter printer(QPrinter::HighResolution);
  Set_Up_Printer(printer);
  QPainter painter(&printer);
  const double dots_per_twip = printer.resolution() / 1440.0;
  QFont font("Sans", 10);
  painter.setFont(font);
  for (std::size_t p = 0; p < pages.size(); ++p) {
    if (p > 0) printer.newPage();
    for (const PrintedText& item : pages[p]) {
      const QPointF at(item.x_twips * dots_per_twip, item.y_twips * dots_per_twip);
      painter.drawText(QRectF(at, QSizeF(printer.width(), printer.resolution())), Qt::AlignLeft | Qt::AlignTop,
                       QString::fromStdString(item.text));
    }
  }
}

void QtPlatform::Beep() { QApplication::beep(); }

void QtPlatform::Yield() { QCoreApplication::processEvents(); }

void QtPlatform::End_Process(int exit_code) { std::exit(exit_code); }

Application::Application(int& argc, char** argv) : QApplication(argc, argv) { Install_Window_Keys(*this); }

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    try {
      return QApplication::notify(receiver, event);
    } catch (const RuntimeFailure& failure) {
      Report_Unhandled_Failure(failure.number(), failure.description());
    }
  } catch (const ProcessEnded&) {
    // A test's stand-in for the end of the process: nothing more runs of this event.
  }
  return true;
}

void Report_Unhandled_Failure(int number, const std::string& description) {
  Platform& machine = Machine();
  const FailureBeingTold telling;
  machine.Message_Box("Run-time error '" + std::to_string(number) + "':\n\n" + description, vbOKOnly, vbCritical,
                      "Orrivane");
  machine.End_Process(1);
}

}  // namespace orrivane::platform
