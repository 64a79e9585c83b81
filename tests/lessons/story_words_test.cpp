// Words of the stories on work and mixtures that few problems show, or none.
#include "lessons/families/stories/story_words.h"

#include "lessons/families/stories/shared_job.h"
#include "support/course_fixture.h"

namespace course::testing {
namespace {

using namespace stories;

class StoryWordsTest : public CourseTest {};

// No pair of workers bakes yet; the row must be right when one does.
TEST_F(StoryWordsTest, EveryThingHasItsOwnHours) {
  const Thing cake = ThingAt(4);
  EXPECT_EQ(cake.noun, "cake");
  EXPECT_EQ(cake.leastQuarters, 3);
  EXPECT_EQ(cake.mostQuarters, 10);
  const Thing house = ThingAt(2);
  EXPECT_EQ(house.noun, "house");
  EXPECT_EQ(house.leastQuarters, 16);
  EXPECT_EQ(house.mostQuarters, 48);
  EXPECT_EQ(ThingAt(9).noun, "mural");
}

TEST_F(StoryWordsTest, ArticlesFollowTheSoundOfANumber) {
  for (const int percent : {8, 11, 18, 80, 88})
    EXPECT_EQ(ArticleOfNumber(percent), "an") << percent;
  for (const int percent : {1, 10, 12, 28, 70, 100})
    EXPECT_EQ(ArticleOfNumber(percent), "a") << percent;
}

TEST_F(StoryWordsTest, AnArticleOfANameIsRaisedOrLeftOut) {
  EXPECT_EQ(AtStart("the Blue pump"), "The Blue pump");
  EXPECT_EQ(WithoutArticle("the Blue pump"), "Blue pump");
  EXPECT_EQ(WithoutArticle("Pete's Paints"), "Pete's Paints");
}

}  // namespace
}  // namespace course::testing
