#include "engine/title_table.h"

#include "platform/stop.h"
#include "session/catalogue.h"

namespace course {

std::size_t PlaceInCourse(std::string_view title) {
  static const std::vector<std::string> keys = [] {
    std::vector<std::string> titles;
    for (const CatalogueLesson& lesson : CatalogueLessons())
      titles.push_back(UpperCase(std::string(lesson.title)));
    titles.push_back(UpperCase(std::string(kBlankLesson)));
    return titles;
  }();
  const auto place = std::ranges::find(keys, UpperCase(std::string(title)));
  if (place == keys.end())
    platform::Stop("TitleTable: the catalogue has no lesson \"" + std::string(title) + "\"");
  return static_cast<std::size_t>(place - keys.begin());
}

void StopAtRepeatedTitle(std::string_view title) {
  platform::Stop("TitleTable: \"" + std::string(title) + "\" stands twice");
}

void StopAtLateTitle(std::string_view title) {
  platform::Stop("TitleTable: \"" + std::string(title) + "\" comes after the table was read");
}

}  // namespace course
