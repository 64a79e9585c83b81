#include "lessons/page/page_error.h"

#include <cmath>

#include "mathkit/expressions.h"
#include "platform/stop.h"
#include "session/session.h"

namespace course::page {

void StopPage(const std::string& what) {
  platform::Stop(session.gLessonName + ": " + what);
}

std::string CellText(double value) {
  return NumStr(std::round(10 * value) / 10);
}

}  // namespace course::page
