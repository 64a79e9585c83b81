// The documentation lesson, run whole: a sample that stops, or whose call leaves it no room, fails
// here.
#include "lessons/docs/docs.h"

#include "display/lesson_window.h"
#include "engine/navigation.h"
#include "lesson_check/pages/entry.h"
#include "lessons/docs/docs_form.h"
#include "lessons/docs/docs_topics.h"
#include "lessons/docs/gallery_form.h"
#include "lessons/docs/layout_form.h"
#include "lessons/docs/tutor_chars_form.h"
#include "platform/picture_box.h"
#include "platform/text_box.h"
#include "shell/dispatcher.h"
#include "support/course_fixture.h"

namespace course::testing {
namespace {

class DocsTest : public CourseTest {
 protected:
  // As the hidden key of the menu runs it.
  static void RunDocs() {
    session.gShowDocumentation = kTrue;
    RunLesson(
        {},
        {.EnableMenu = {}, .RefreshProgress = {}, .RunScript = {}, .Chapter_Test = {}, .Docs = [] {
           Docs();
         }});
    session.gShowDocumentation = kFalse;
  }
  template <class T>
  static T& The(const std::string& name) {
    return dynamic_cast<T&>(FindControl(name));
  }
};

TEST_F(DocsTest, EverySampleRunsBelowItsCall) {
  const std::vector<Topic> topics = DocsTopics();
  const auto scripts = MakeDocsScripts();
  ASSERT_EQ(scripts.size(), topics.size());
  for (std::size_t i = 0; i < topics.size(); ++i) {
    SCOPED_TRACE(topics[i].module);
    EXPECT_GE(topics[i].samples.size(), 2u);
    EXPECT_LE(topics[i].samples.size(), 5u);
    LoadLessonWindow();
    frmPR->ready = 1;
    lesson_check::WantEntry(mode::Lesson, 0);
    for (const Sample& sample : topics[i].samples)
      user.At("PageEnd").Do("read the sample", [&sample] {
        const std::string first = sample.call.substr(0, sample.call.find_first_of("( "));
        bool called = false;
        for (const Fragment& fragment : frmPR->lessonText.Transcript())
          called = called || fragment.text.find(first) != std::string::npos;
        EXPECT_TRUE(called) << sample.call;
        session.gProceed = 1;
      });
    scripts[i]->Run();
    UnloadLessonWindow();
  }
}

TEST_F(DocsTest, TheMenuOfTopicsComesBackAfterATopicAndLeadsOut) {
  user.At("frmDocs").Do("choose the second topic", [] {
    The<platform::ListBox>("lstTopics").SetListIndex(1);
    The<platform::Button>("cmdShow").Click();
  });
  for (std::size_t i = 0; i < DocsTopics()[1].samples.size(); ++i)
    user.At("PageEnd").Do("go on", [this] {
      clock.Advance(1);
      The<platform::Button>("cmdNavigate(2)").Click();
    });
  user.At("frmDocs").Do("see the topic that was read", [] {
    EXPECT_EQ(The<platform::ListBox>("lstTopics").ListIndex(), 1);
    The<platform::Button>("cmdShow").Click();
  });
  user.At("PageEnd").Do("jump to the third screen", [this] {
    clock.Advance(1);
    EXPECT_EQ(session.gHideNav, kTrue);
    The<platform::PictureBox>("picScreenNum(3)").Click();
  });
  user.At("PageEnd").Do("leave", [this] {
    clock.Advance(1);
    EXPECT_EQ(session.gScreenNum, 3);
    The<platform::Button>("cmdNavigate(3)").Click();
  });
  RunDocs();
  EXPECT_EQ(session.gHideNav, kFalse);

  user.At("frmDocs").Click("cmdClose");
  RunDocs();
}

TEST_F(DocsTest, PracticeRunsByItselfUntilTheCounterIsUsedUp) {
  user.At("frmDocs").Click("cmdPractice");
  user.Type("minus three").Answer(platform::Answer::Ok).Type("-3").Answer(platform::Answer::Ok);
  user.Type("4");
  user.At("AnswerWait").Do("the counter has run out", [this] {
    clock.Advance(1);
    EXPECT_EQ(session.gTestingCounter, 0);
    EXPECT_EQ(session.gMode, mode::NewProblem);
    The<platform::Button>("cmdNavigate(3)").Click();
  });
  int glances = 0;
  user.OnPause = [&glances](double seconds) { glances += seconds == 0.5 ? 1 : 0; };
  RunDocs();
  EXPECT_EQ(glances, 4);
  EXPECT_EQ(session.gProblemsAttempted, 0) << "nothing was answered";
}

TEST_F(DocsTest, ATestingCounterIsAWholeNumberOf16Bits) {
  EXPECT_EQ(TestingCounterOf("25"), 25);
  EXPECT_EQ(TestingCounterOf("0"), 0);
  EXPECT_EQ(TestingCounterOf("32767"), 32767);
  for (const char* bad : {"", "-1", "2.5", "x", "32768", "999999", "7 "})
    EXPECT_EQ(TestingCounterOf(bad), -1) << bad;
}

TEST_F(DocsTest, TheGalleryRefusesANumberThatItDoesNotHold) {
  const auto show = [](const std::string& number) {
    The<platform::TextBox>("txtImageNumber").SetText(number);
    The<platform::Button>("cmdDisplay").Click();
    return The<platform::Label>("lblImageInfo").Caption();
  };
  user.At("frmViewpicGalleryImages").Do("ask for images", [&show] {
    EXPECT_EQ(show("1").rfind("about ", 0), 0u);
    for (const char* bad : {"0", "6", "-1", "", "one", "99999"}) EXPECT_EQ(show(bad), "") << bad;
  });
  for (int i = 0; i < 6; ++i) user.Answer(platform::Answer::Ok);
  user.Click("cmdExit");
  ShowGallery({});
}

std::string Repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

TEST_F(DocsTest, TheChartAndTheLayoutUtilityOpenFromTheMenuOfTopics) {
  user.At("frmDocs").Click("cmdCharacters");
  user.At("frmTutorCharsDisplay").Click("cmdClose");
  user.At("frmDocs").Click("cmdLayout");
  // What cannot be printed stays in its box, and the next try is as good as ever.
  const std::vector<std::string> bad = {"x^2",
                                        "x^\\r2^",
                                        "a\\q b",
                                        "a`2",
                                        std::string(47, 'x'),
                                        "a^" + std::string(46, ' ') + "^",
                                        std::string(46, '\xD8'),
                                        Repeated("\\ra", 20),
                                        Repeated("a^2^ ", 20)};
  user.At("frmGeoUtility").Do("type what cannot be printed", [&bad] {
    for (const std::string& text : bad) {
      The<platform::TextBox>("txtStatement").SetText(text);
      The<platform::Button>("cmdAdd").Click();
      EXPECT_EQ(The<platform::TextBox>("txtStatement").Text(), text);
    }
  });
  for (std::size_t i = 0; i < bad.size(); ++i) user.Answer(platform::Answer::Ok);
  user.At("frmGeoUtility").Do("add statements until the panel is full", [] {
    for (int i = 1; i <= 12; ++i) {
      The<platform::TextBox>("txtStatement").SetText("AB^2^ = \\rCD\\z");
      The<platform::TextBox>("txtReason").SetText("given");
      The<platform::Button>("cmdAdd").Click();
    }
  });
  for (int i = 0; i < 4; ++i) user.Answer(platform::Answer::Ok);
  user.At("frmGeoUtility").Press(27);
  user.At("frmDocs").Click("cmdClose");
  RunDocs();
}

}  // namespace
}  // namespace course::testing
