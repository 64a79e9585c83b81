// The course: brings up the toolkit, then the menu, whose start-up is that of the program.
#include "platform/program.h"
#include "shell/menu.h"

int main(int argc, char** argv) {
  platform::Application application(argc, argv);
  course::LoadMenu();
  return application.Run();
}
