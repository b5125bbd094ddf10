#include "platform/platform.h"

#include <QFont>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <stdexcept>

namespace orrivane::platform {

namespace {
Platform* installed = nullptr;
int failures_being_told = 0;
}  // namespace

FailureBeingTold::FailureBeingTold() { ++failures_being_told; }
FailureBeingTold::~FailureBeingTold() { --failures_being_told; }
bool FailureBeingTold::Now() { return failures_being_told > 0; }

Platform& Machine() {
  if (installed == nullptr) throw std::logic_error("no platform installed");
  return *installed;
}

void Install(Platform* platform) { installed = platform; }

void Platform::Print_Window(QWidget& window, const std::string& document_name) {
  WindowPrintJob job(document_name, *this);
  job.Add_Sheet(window);
}

WindowPrintJob::WindowPrintJob(const std::string& document_name, Platform& machine) : machine_(machine) {
  machine_.Begin_Print_Job(document_name);
}

WindowPrintJob::~WindowPrintJob() { machine_.End_Print_Job(); }

void WindowPrintJob::Add_Sheet(QWidget& window) { machine_.Print_Sheet(window); }

void Require_Timer_Interval(int interval_ms) {
  if (interval_ms <= 0) throw std::invalid_argument("a timer needs an interval of more than 0 milliseconds");
}

void TimerTick::Run() {
  if (running_ || FailureBeingTold::Now()) return;
  running_ = true;
  // Reset also when the tick fails, so that the failure does not silence the timer.
  struct Finished {
    bool& running;
    ~Finished() { running = false; }
  } finished{running_};
  tick_();
}

void RandomSequence::Seed(double seed) {
  // Fold the bits of the seed into the 24-bit state, so that near seeds part at once.
  std::uint64_t bits = 0;
  static_assert(sizeof bits == sizeof seed);
  std::memcpy(&bits, &seed, sizeof bits);
  const unsigned folded = static_cast<unsigned>((bits >> 40) ^ (bits >> 16) ^ bits);
  state_ = (folded ^ 0x50000u) & 0xFFFFFFu;
}

double RandomSequence::Next() {
  state_ = (state_ * 1140671485u + 12820163u) & 0xFFFFFFu;
  return static_cast<double>(state_) / 16777216.0;
}

std::vector<QImage> Render_Text_Pages(const std::vector<TextPage>& pages, int dots_per_inch) {
  std::vector<QImage> images;
  const double dots_per_twip = dots_per_inch / 1440.0;
  for (const TextPage& page : pages) {
    QImage image(static_cast<int>(8.5 * dots_per_inch), 11 * dots_per_inch, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QFont font("Sans");
    font.setPixelSize(std::max(6, static_cast<int>(std::lround(10.0 / 72.0 * dots_per_inch))));
    painter.setFont(font);
    painter.setPen(Qt::black);
    for (const PrintedText& item : page) {
      const QPointF top_left(item.x_twips * dots_per_twip, item.y_twips * dots_per_twip);
      painter.drawText(QRectF(top_left, QSizeF(image.width(), font.pixelSize() * 1.5)),
                       Qt::AlignLeft | Qt::AlignTop, QString::fromStdString(item.text));
    }
    painter.end();
    images.push_back(image);
  }
  return images;
}

}  // namespace orrivane::platform
