// A program that shows a bare window or the course's menu, and reports when it was painted; or
// waits at a page's end for ten seconds and reports the processor time that this took.
#include <time.h>

#include <QApplication>
#include <QPaintEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "display/lesson_window.h"
#include "engine/navigation.h"
#include "lessons/registry.h"
#include "platform/program.h"
#include "session/session.h"
#include "shell/menu.h"

namespace {

double Milliseconds(const timespec& t) {
  return t.tv_sec * 1e3 + t.tv_nsec / 1e6;
}

double started = 0;  // milliseconds of the monotonic clock

double SinceStart() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return Milliseconds(now) - started;
}

// Of this program alone: the resource usage that the system reports begins with the parent's.
double PeakMegabytes() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;)
    if (word == "VmHWM:") {
      double kilobytes = 0;
      status >> kilobytes;
      return kilobytes / 1024;
    }
  return 0;
}

double ProcessorMilliseconds() {
  timespec used{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
  return Milliseconds(used);
}

[[noreturn]] void Report(double milliseconds) {
  std::printf("%f %f\n", milliseconds, PeakMegabytes());
  std::fflush(stdout);
  std::_Exit(0);
}

class BareWindow : public QWidget {
 protected:
  void paintEvent(QPaintEvent*) override {
    QTimer::singleShot(0, [] { Report(SinceStart()); });
  }
};

int ShowBareWindow(int argc, char** argv) {
  QApplication application(argc, argv);
  BareWindow window;
  window.resize(892, 660);
  window.show();
  return application.exec();
}

int ShowMenu(int argc, char** argv) {
  platform::Application application(argc, argv);
  course::LoadMenu();
  course::frmMenu->form.OnFirstShown = [] { Report(SinceStart()); };
  return application.Run();
}

int WaitAtPageEnd(int argc, char** argv) {
  platform::Application application(argc, argv);
  course::LoadLessonWindow();
  course::session.gActivity = course::activity::Lesson;
  double before = 0;
  QTimer::singleShot(1000, [&] { before = ProcessorMilliseconds(); });
  QTimer::singleShot(11000, [&] { Report(ProcessorMilliseconds() - before); });
  course::MakeLesson("Simple Inequalities")->Run();
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string kind = argc > 1 ? argv[1] : "";
  if (argc > 2) started = std::atof(argv[2]) / 1e6;
  if (kind == "bare") return ShowBareWindow(argc, argv);
  if (kind == "menu") return ShowMenu(argc, argv);
  if (kind == "wait") return WaitAtPageEnd(argc, argv);
  std::fprintf(stderr, "startup-probe bare | menu | wait  STARTED\n");
  return 1;
}
