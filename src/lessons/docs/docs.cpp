#include "lessons/docs/docs.h"

#include <algorithm>

#include "display/grid.h"
#include "display/lesson_window.h"
#include "display/print.h"
#include "display/word_wrap.h"
#include "engine/lesson_script.h"
#include "engine/navigation.h"
#include "engine/page.h"
#include "lessons/docs/docs_form.h"
#include "lessons/docs/docs_topics.h"
#include "lessons/registry.h"
#include "platform/stop.h"
#include "session/catalogue.h"
#include "session/session.h"

namespace course {
namespace {

constexpr std::size_t kCallWidth = 38;  // columns, with two of indent for the lines that follow
constexpr double kAboutRow = 3;
constexpr double kCallRow = 6;  // at least; behind the sentences about the module

// A statement a line; a longer one is broken at a blank, or else behind a parenthesis.
std::vector<std::string> CallLines(const std::string& call) {
  std::vector<std::string> lines;
  std::string rest = call + ";";
  bool continued = false;
  while (!rest.empty()) {
    const std::size_t wid = continued ? kCallWidth - 2 : kCallWidth;
    std::size_t end = std::min(rest.find("; "), rest.size() - 1) + 1;  // behind the semicolon
    const bool whole = end <= wid;
    if (!whole) {
      const std::size_t blank = rest.rfind(' ', wid);
      const std::size_t parenthesis = rest.rfind('(', wid - 1);
      end = blank != std::string::npos && blank > 0 ? blank
            : parenthesis != std::string::npos      ? parenthesis + 1
                                                    : wid;
    }
    lines.push_back((continued ? "  " : "") + rest.substr(0, end));
    rest.erase(0, end);
    if (!rest.empty() && rest.front() == ' ') rest.erase(0, 1);
    continued = !whole;
  }
  return lines;
}

// The samples of one topic, a screen each.
class TopicScript final : public LessonScript {
 public:
  explicit TopicScript(Topic topic) : LessonScript("Documentation"), topic_(std::move(topic)) {}

 private:
  std::vector<Screen> Screens() override {
    std::vector<Screen> screens;
    for (const Sample& sample : topic_.samples)
      screens.push_back({[this, &sample] { ShowSample(sample); }});
    return screens;
  }
  void ShowSample(const Sample& sample) {
    NewScreen();
    Locate(2, 1);
    isColorPrint(topic_.module, platform::colour::Cyan);
    Locate(kAboutRow, 1);
    WordWrap(topic_.about);
    UpdateCursorCell();
    Locate(std::max(kCallRow, frmPR->lessonText.cursorRow + 0.0), 1);
    for (const std::string& line : CallLines(sample.call))
      isColorPrint(line, platform::colour::Yellow);
    UpdateCursorCell();
    if (frmPR->lessonText.cursorRow > kSampleRow)
      platform::Stop("Docs: no room for the call " + sample.call);
    Locate(kSampleRow, 1);
    sample.draw();
    PageEnd();
  }

  // The tabs that lead to a problem are hidden.
  void DrawProblem(RandomStream&) override { platform::Stop("Docs: a topic has no problem"); }
  void ShowProblem() override {}
  void ExplainProblem() override {}

  Topic topic_;
};

// What the present run of the documentation lesson shows; it lasts over the dispatcher's passes.
struct DocsRun {
  DocsChoice choice = DocsChoice::Leave;
  int topic = 0;
};
DocsRun docsRun;

void ShowTopic() {
  session.gHideNav = kTrue;  // there is no problem to go to
  TopicScript(DocsTopics().at(static_cast<std::size_t>(docsRun.topic))).Run();
  // The pages are over, and there is no example to go on with: the menu of topics comes next.
  if (session.gRunAgain == 1 && session.gActivity != activity::Lesson) {
    session.gActivity = activity::Lesson;
    session.gScreenNum = 1;
    docsRun.choice = DocsChoice::Leave;
  }
}

void AskForTopic(const std::vector<PictureHolder>& holders) {
  std::vector<std::string> names;
  for (const Topic& topic : DocsTopics()) names.push_back(topic.module);
  const DocsAnswer answer = ShowDocsMenu(names, docsRun.topic, holders);
  docsRun = {answer.choice, answer.choice == DocsChoice::Topic ? answer.topic : docsRun.topic};
  if (docsRun.choice == DocsChoice::Practice) picNav_Click(activity::Practice);
}

}  // namespace

std::vector<std::unique_ptr<LessonScript>> MakeDocsScripts() {
  std::vector<std::unique_ptr<LessonScript>> scripts;
  for (Topic topic : DocsTopics())
    scripts.push_back(std::make_unique<TopicScript>(std::move(topic)));
  return scripts;
}

void Docs(const std::vector<PictureHolder>& holders) {
  if (docsRun.choice == DocsChoice::Leave) {
    AskForTopic(holders);
    if (docsRun.choice == DocsChoice::Leave) {
      docsRun = {};
      return;
    }
    session.gRunAgain = 1;  // from a cleared window
    return;
  }
  if (docsRun.choice == DocsChoice::Practice)
    MakeLesson(kBlankLesson)->Run();
  else
    ShowTopic();
  if (session.gRunAgain != 1) docsRun = {};
}

}  // namespace course
