#pragma once
// What the benchmarks of windows share: the machine's own platform, except that a message box
// ends the run (every request of a benchmark is valid, so a message means it no longer measures
// what it says), and a main that runs the benchmarks headless in a fresh current folder, where
// the program keeps its working files.
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

// The platform of the run, installed by Run_Window_Benchmarks.
inline BenchPlatform* machine = nullptr;

// The whole main of a window benchmark.
inline int Run_Window_Benchmarks(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  platform::Application app(argc, argv);
  BenchPlatform bench_machine;
  machine = &bench_machine;
  platform::Install(&bench_machine);
  QTemporaryDir folder;
  QDir::setCurrent(folder.path());

  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  Unload_All_Windows();
  platform::Install(nullptr);
  machine = nullptr;
  return 0;
}

}  // namespace orrivane::bench
