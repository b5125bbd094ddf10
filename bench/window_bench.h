#pragma once
// What the benchmarks of windows share: the program's own surroundings for them. The windows run
// headless unless a platform is asked for, on the machine's own platform whose message boxes end
// the run (every request of a benchmark is valid, so a message means it no longer measures what
// it says), in a temporary current folder for the working files.
#include <benchmark/benchmark.h>

#include <QDir>
#include <QTemporaryDir>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "platform/qt_platform.h"
#include "platform/window_registry.h"

namespace orrivane::bench {

class BenchPlatform : public platform::QtPlatform {
 public:
  int Message_Box(const std::string& text, int, int, const std::string& title) override {
    std::fprintf(stderr, "a benchmark met a message box: [%s] %s\n", title.c_str(), text.c_str());
    std::abort();
  }
  void Yield() override {
    ++yields;
    QtPlatform::Yield();
  }
  std::int64_t yields = 0;
};

inline BenchPlatform*& Installed() {
  static BenchPlatform* machine = nullptr;
  return machine;
}

// The platform of the running benchmarks.
inline BenchPlatform& Machine() { return *Installed(); }

// The main of a window benchmark: sets up the surroundings, runs the benchmarks, unloads the
// windows.
inline int Run_Window_Benchmarks(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  platform::Application app(argc, argv);
  BenchPlatform machine;
  Installed() = &machine;
  platform::Install(&machine);
  QTemporaryDir folder;
  QDir::setCurrent(folder.path());

  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  Unload_All_Windows();
  platform::Install(nullptr);
  Installed() = nullptr;
  return 0;
}

}  // namespace orrivane::bench
