#pragma once
// Pictures of windows for a person to look at: a window's image is saved as <name>.png in the
// folder named by ORRIVANE_SCREENSHOT_DIR; without it the picture is only drawn, which checks
// that the window draws.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QString>
#include <QWidget>

namespace orrivane::testing {

inline void Keep_Screenshot(QWidget& window, const QString& name) {
  QApplication::processEvents();
  const QImage image = window.grab().toImage();
  EXPECT_FALSE(image.isNull());
  const QByteArray folder = qgetenv("ORRIVANE_SCREENSHOT_DIR");
  if (folder.isEmpty()) return;
  QDir().mkpath(QString::fromLocal8Bit(folder));
  EXPECT_TRUE(image.save(QDir(QString::fromLocal8Bit(folder)).filePath(name + ".png")));
}

}  // namespace orrivane::testing
