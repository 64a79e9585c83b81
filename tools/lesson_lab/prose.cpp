// lesson-lab prose: what lessons say, page by page, as text.
#include "lesson_check/prose/prose.h"

#include <cstdio>

#include "lesson_lab/commands.h"

namespace lesson_lab {

int PrintProse(const std::string& title) {
  const std::vector<std::string> titles = TitlesOf(title);
  if (titles.empty()) return 1;
  lesson_check::PageReader reader;
  for (const std::string& each : titles) {
    try {
      const std::string text = lesson_check::ReadProse(*FindLesson(each), reader).Text();
      std::printf("%s%s", text.c_str(), each == titles.back() ? "" : "\n\n");
    } catch (const lesson_check::StoppedRun& stopped) {
      std::fprintf(stderr, "%s: %s\n", each.c_str(), stopped.what());
      return 1;
    }
  }
  return 0;
}

}  // namespace lesson_lab
