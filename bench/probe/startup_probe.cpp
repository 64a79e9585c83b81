// A program that shows a bare window or the course's menu, and reports when it was painted; or waits at a
// page's end for ten seconds and reports the processor time that this took.
#include <sys/resource.h>
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
#include "lessons/lesson_table.h"
#include "engine/navigation.h"
#include "platform/program.h"
#include "session/session.h"
#include "shell/menu.h"

namespace {

double Milliseconds(const timespec& t) { return t.tv_sec * 1e3 + t.tv_nsec / 1e6; }

// Since the process was started, by the kernel's own stamp, to a hundredth of a second.
double SinceProcessStart() {
  std::ifstream stat("/proc/self/stat");
  std::string field;
  for (int i = 1; i <= 22; ++i) stat >> field;
  const double started = std::atof(field.c_str()) * 1e3 / sysconf(_SC_CLK_TCK);
  timespec now{};
  clock_gettime(CLOCK_BOOTTIME, &now);
  return Milliseconds(now) - started;
}

double PeakMegabytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss / 1024.0;
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
  void paintEvent(QPaintEvent*) override { QTimer::singleShot(0, [] { Report(SinceProcessStart()); }); }
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
  course::frmMenu->form.OnFirstShown = [] { Report(SinceProcessStart()); };
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
  if (kind == "bare") return ShowBareWindow(argc, argv);
  if (kind == "menu") return ShowMenu(argc, argv);
  if (kind == "wait") return WaitAtPageEnd(argc, argv);
  std::fprintf(stderr, "startup-probe bare | menu | wait\n");
  return 1;
}
