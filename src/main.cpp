#include "platform/program.h"

int main(int argc, char** argv) {
  platform::Application application(argc, argv);
  return application.Run();
}
