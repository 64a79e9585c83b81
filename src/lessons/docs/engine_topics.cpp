#include "display/grid.h"
#include "display/images.h"
#include "display/print.h"
#include "engine/answers.h"
#include "engine/header.h"
#include "engine/navigation.h"
#include "engine/rules_and_hints.h"
#include "lessons/docs/docs_topics.h"
#include "mathkit/expressions.h"
#include "session/session.h"

namespace course {
namespace {

// A problem with four choices, for the samples of the answer boxes.
Problem SampleProblem(int kind) {
  Problem problem;
  problem.kind = kind;
  problem.Right(1, "x = 4");
  problem.Wrong(2, "forgets the sign", "x = -4");
  problem.Wrong(3, "multiplies", "x = 16");
  problem.Wrong(4, "adds", "x = 1/4");
  return problem;
}
Problem FourChoices() {
  return SampleProblem(choice_kind::FourShuffled);
}
Problem FourChoicesAndNone() {
  return SampleProblem(choice_kind::FourShuffledAndNone);
}

}  // namespace

std::vector<Topic> EngineTopics() {
  return {
      {"engine/answers.h",
       "A problem page says where its boxes stand; the engine shuffles the choices, and "
       "waits.",
       {DOCS_SAMPLE(picAnswerSetParameters(2, 14, 1, 21, 0, 16, 50, 27);
                    AnswerChoicesShow(FourChoices())),
        DOCS_SAMPLE(picAnswerSetParameters(4, 14, 1, 14, 27, 13, 50, 27);
                    answerParameters.lastBoxFontSize = 12;
                    AnswerChoicesShow(FourChoicesAndNone()))}},
      {"engine/header.h",
       "Header clears the screen and what lies over it.  A problem page begins with its banner.",
       {DOCS_SAMPLE(isPrint("Header(title) cleared the page before.");
                    isPrint("Title: " + session.gLessonName)),
        DOCS_SAMPLE(session.gMode = mode::NewProblem; ProblemBanner(10);
                    session.gMode = mode::Lesson)}},
      {"engine/problem.h",
       "A drawn problem: the question as lines, the choices, each wrong one with its mistake, and "
       "the kind.",
       {DOCS_SAMPLE(Problem problem; problem.Right(1, "7"); problem.Wrong(2, "adds", "9");
                    isPrint(ChoiceText(problem, 1) + ", not " + ChoiceText(problem, 2))),
        DOCS_SAMPLE(isPrint(NumStr(ChoiceCountOf(choice_kind::FourShuffledAndNone)) + " boxes"))}},
      {"engine/rules_and_hints.h",
       "A lesson may offer a card of rules beside its practice problems, which the student shows "
       "and hides.",
       {DOCS_SAMPLE(session.gRulesShown = kTrue; session.gMode = mode::NewProblem;
                    ShowRulesPicture(gallery::OrderOfOperations, 12, 12);
                    session.gMode = mode::Lesson; session.gRulesShown = kFalse),
        DOCS_SAMPLE(ShowRulesPicture(gallery::OrderOfOperations);
                    isPrint("Nothing shows outside practice."))}},
      {"mathkit/random_stream.h",
       "DrawProblem gets the stream of the problem's seed and draws from it alone.  The same "
       "seed gives the same problem.",
       {DOCS_SAMPLE(RandomStream random(7); isPrint(NumStr(random.Rand(1, 6)))),
        DOCS_SAMPLE(RandomStream random(7);
                    for (const int n
                         : random.RandSeq(4, 4)) isPrints(NumStr(n) + " "))}},
      {"mathkit/expressions.h",
       "How numbers and terms become text, joined from left to right.",
       {DOCS_SAMPLE(isPrint(CoefText(-1) + "x" + SignedCoefText(3) + "y")),
        DOCS_SAMPLE(isPrint(FractionText(6, -8) + ", " + MixedNumberText(2.75))),
        DOCS_SAMPLE(
            isPrint(MoneyText(12) + ", 1 mile" + PluralSuffix(1) + ", 2 mile" + PluralSuffix(2)))}},
  };
}

std::vector<Topic> DocsTopics() {
  std::vector<Topic> topics = PageTopics();
  for (const auto& more : {TextTopics(), FigureTopics(), EngineTopics()})
    topics.insert(topics.end(), more.begin(), more.end());
  return topics;
}

}  // namespace course
