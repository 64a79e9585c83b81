#include "engine/program_exit.h"

#include "engine/hooks.h"
#include "platform/program.h"
#include "platform/stop.h"

namespace course {

void ExitProgram() {
  const auto folderAbove = platform::ProgramFolder() / "..";
  for (const char* name : {"SumwrightMenu", "SumwrightMenu.exe"}) {
    if (platform::FileExists(folderAbove / name)) {
      platform::StartProgram(folderAbove / name);
      break;
    }
  }
  // The click on the entry may stand inside a running lesson's wait, whose forms are still in use.
  platform::EndProgram();
}

void SaveAndExit() {
  SavePracticeRecord();
  ExitProgram();
}

}  // namespace course
