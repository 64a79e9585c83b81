// The program tour: its steps, and that the course is afterwards as it was before.
#include "display/lesson_window.h"
#include "journeys/shell_fixture.h"
#include "platform/picture_box.h"
#include "shell/guidance_binding.h"
#include "shell/tour_steps.h"
#include "support/record_fixture.h"

namespace course::testing {
namespace {

class TourTest : public MenuTest {
 protected:
  void SetUp() override {
    MenuTest::SetUp();
    BindGuidance(startUp);
    settings.gDataPath = folder_.Path();
    LogIn("Elena Novak");
    engineHooks.SavePracticeRecord = [this] { ++saved; };
    engineHooks.SaveTestRecord = [this] { ++saved; };
    Load();
    Choose(3, 2);
  }
  static std::string Heading() { return FindControl("picTourBkgd").AccessibleName(); }
  static bool NextIsOffered() { return FindControl("cmdNav(2)").Enabled(); }
  void ClickNext(int times) {
    for (int i = 0; i < times; ++i) user.At("frmTour").Click("cmdNav(2)");
  }

  ScratchFolder folder_;
  int saved = 0;
};

TEST_F(TourTest, GoesToItsLastStepBeginsAgainAndShowsTheMenuAtItsEnd) {
  user.At("frmTour").Do("look at the first step", [] {
    EXPECT_FALSE(frmMenu->form.Shown());
    EXPECT_EQ(Heading(), "Who are you?");
    EXPECT_TRUE(NextIsOffered());
  });
  ClickNext(kTourSteps - 1);
  user.At("frmTour").Do("look at the last step", [] {
    EXPECT_EQ(Heading(), "Diagnostic test");
    EXPECT_FALSE(NextIsOffered());
  });
  user.At("frmTour").ClickRefused("cmdNav(2)");
  user.At("frmTour").Click("cmdNav(1)");
  user.At("frmTour").Do("look at the first step again", [] {
    EXPECT_EQ(Heading(), "Who are you?");
    EXPECT_TRUE(NextIsOffered());
  });
  user.At("frmTour").Click("cmdNav(3)");
  startUp.forms.ProgramTour();
  EXPECT_TRUE(frmMenu->form.Shown());
  EXPECT_TRUE(frmMenu->cmdStart.CanBeClicked());
}

TEST_F(TourTest, LeavesSessionRecordsAndMenuAlone) {
  session.gProblemsAttempted = 7;
  session.gScreenNum = 3;
  session.gProblemsGenerated[3][2] = 4;
  const Session before = session;
  MainMenu* const menu = frmMenu.get();
  user.At("frmTour").Press(27);
  startUp.forms.ProgramTour();
  EXPECT_EQ(frmMenu.get(), menu);
  EXPECT_EQ(frmPR, nullptr);
  EXPECT_EQ(menu->lstChapter.ListIndex(), 2);
  EXPECT_EQ(menu->lstLesson.ListIndex(), 1);
  EXPECT_EQ(saved, 0);
  EXPECT_TRUE(std::filesystem::is_empty(folder_.Path()));
  EXPECT_EQ(session.gStudentName, before.gStudentName);
  EXPECT_EQ(session.gDataPath, before.gDataPath);
  EXPECT_EQ(session.gProblemsAttempted, before.gProblemsAttempted);
  EXPECT_EQ(session.gScreenNum, before.gScreenNum);
  EXPECT_EQ(session.gProblemsGenerated, before.gProblemsGenerated);
  EXPECT_EQ(session.gProgressCodes, before.gProgressCodes);
  EXPECT_EQ(session.gSessionRecords, before.gSessionRecords);
  EXPECT_EQ(session.gActivity, before.gActivity);
  EXPECT_EQ(session.gLessonTest, before.gLessonTest);
  EXPECT_EQ(user.messages.size(), 0u);
}

// The frame shows what lies under it, not what the callout has covered.
TEST_F(TourTest, FramesThePartUnderDiscussion) {
  const std::vector<TourStep> steps = TourSteps();
  ASSERT_EQ(steps.size(), static_cast<std::size_t>(kTourSteps));
  for (std::size_t i = 0; i < steps.size(); ++i) {
    user.At("frmTour").Do(steps[i].heading, [&step = steps[i]] {
      const auto& inner = dynamic_cast<platform::PictureBox&>(FindControl("picTourNavBoxInner"));
      const platform::PixelRect& part = step.frame;
      const int clear = (inner.PixelWidth() - part.width) / 2;
      for (int y = 0; y < part.height; y += 3)
        for (int x = 0; x < part.width; x += 3)
          ASSERT_EQ(inner.Pixel(x + clear, y + clear),
                    step.screen->Pixel(part.left + x, part.top + y))
              << step.heading << " at " << x << ", " << y;
    });
    user.At("frmTour").Click(i + 1 < steps.size() ? "cmdNav(2)" : "cmdNav(3)");
  }
  ShowTour(steps);
}

// A writer looks at the tour's pictures while the documentation lesson stands open.
TEST_F(TourTest, GivesItsPicturesToTheGalleryDuringALesson) {
  frmPR = std::make_unique<LessonWindow>();
  LessonWindow* const open = frmPR.get();
  session.gScreenNum = 2;
  for (const PictureHolder& holder : TourHolders())
    for (int number : {1, holder.count})
      EXPECT_GT(holder.picture(number)->PixelWidth(), 40) << holder.name;
  EXPECT_EQ(frmPR.get(), open);
  EXPECT_EQ(session.gScreenNum, 2);
  frmPR.reset();
}

}  // namespace
}  // namespace course::testing
