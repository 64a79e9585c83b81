#include "lessons/families/stories/two_vehicles_explanation.h"

#include "engine/header.h"
#include "engine/page.h"
#include "lessons/families/stories/story_words.h"
#include "lessons/page/boxes.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"

namespace course::stories {

using namespace page;

void ExplainTwoVehicles(const TwoVehicles& vehicles, const Problem& problem) {
  ProblemBanner();
  SayAt(4, OneParagraph(vehicles.Question()));
  PageEnd();
  GoBelow();
  Conclude(problem);
}

}  // namespace course::stories
