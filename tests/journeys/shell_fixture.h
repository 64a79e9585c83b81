// A loaded main menu, with settings, login and screen chosen by the test.
#pragma once

#include <string>

#include "engine/hooks.h"
#include "shell/menu.h"
#include "support/course_fixture.h"

namespace course::testing {

class MenuTest : public CourseTest {
 protected:
  void SetUp() override {
    CourseTest::SetUp();
    engineHooks = EngineHooks{};
    startUp.ReadSettings = [this] { return settings; };
    startUp.ReadScreen = [this] { return screen; };
  }
  void TearDown() override {
    frmMenu.reset();
    engineHooks = EngineHooks{};
    CourseTest::TearDown();
  }

  // Every entry opens something.
  void OfferAllForms() {
    const auto opened = [] {};
    startUp.forms = {opened, opened, opened, opened, opened, opened, opened};
    engineHooks.ShowProgramOverview = opened;
    engineHooks.ShowTechSupport = opened;
    engineHooks.ShowAbout = opened;
  }
  void LogIn(const std::string& student) {
    startUp.Login = [student] {
      session.gRecordKeepingEnabled = 1;
      session.gStudentName = student;
    };
  }
  void Load(int gversion = 2) {
    settings.gversion = gversion;
    LoadMenu(startUp);
  }
  static void Choose(int unit, int row) {
    frmMenu->lstChapter.SetListIndex(unit - 1);
    frmMenu->lstLesson.SetListIndex(row - 1);
  }

  platform::InstallationSettings settings{2, "/records"};
  ScreenFacts screen;
  StartUp startUp;
};

}  // namespace course::testing
