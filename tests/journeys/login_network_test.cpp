#include "login_fixture.h"
#include "platform/form_inspection.h"
#include "platform/robot.h"
#include "platform/text_box.h"
#include "support/expect_stop.h"

namespace course::testing {
namespace {

constexpr char kBackspace = 8;

// Three classes, two of them with a student 1; Ada and Cleo have passwords, "AB1" and "Z90ZZZ".
class NetworkLoginTest : public LoginTest {
 protected:
  void SetUp() override {
    LoginTest::SetUp();
    PutFiles();
  }
  void PutFiles() {
    folder.Put("Classes.dat", ClassRecord("Period 2", "75", 2) + ClassRecord("Period 1", "", 11) +
                                  ClassRecord("Odd percent", "7x5", 12));
    folder.Put("STUDENTS.DAT", StudentRecord("Zoe", 2, 2, "") + StudentRecord("Ada", 1, 2, "KL;") +
                                   StudentRecord("Bob", 1, 11, "") +
                                   StudentRecord("Cleo", 12, 11, "dC:ddd"));
    folder.Put("RECORDS.DAT", "");
  }
  static std::string ClassRecord(const std::string& name, const std::string& percent, int number) {
    return Padded(name, 27) + Padded(percent, 3) + Padded(std::to_string(number), 2);
  }
  static std::string StudentRecord(const std::string& name, int number, int classNum,
                                   const std::string& password) {
    return Padded(name, 21) + Padded(std::to_string(number), 2) +
           Padded(std::to_string(classNum), 2) + Padded(password, 6);
  }
  void Choose(int classRow, int studentRow) {
    user.At("frmNetworkLogin").Select("lstClasses", classRow);
    user.At("frmNetworkLogin").Select("lstStudents", studentRow);
    user.At("frmNetworkLogin").Click("cmdLogin");
  }
  void TryPassword(const std::string& keys) {
    user.At("frmPassword").TypeIn("txtPassword", keys);
    user.At("frmPassword").Click("cmdOK");
  }
  static std::string Typed() {
    return dynamic_cast<platform::TextBox&>(FindControl("txtPassword")).Text();
  }
  static void ExpectNobody() {
    EXPECT_EQ(session.gRecordKeepingEnabled, 0);
    EXPECT_EQ(session.gClassName, "");
    EXPECT_EQ(session.gStudentName, "");
    EXPECT_EQ(session.gClassNum, 0);
    EXPECT_EQ(session.gStudentNum, 0);
    EXPECT_EQ(session.gTestPassPercent, 60);
  }
};

TEST_F(NetworkLoginTest, AClassThenANameWithoutAPassword) {
  // The same number in the other class, and another course in his own.
  folder.Put("RECORDS.DAT",
             "C202020115260101005005001"
             "C211020115260103005005001"
             "B202020115260104005005001"
             "C202020115260152004003001");
  PassLogo();
  user.At("frmNetworkLogin").Do("look", [] {
    EXPECT_EQ(Names("lstClasses"), (Strings{"Odd percent", "Period 1", "Period 2"}));
    EXPECT_EQ(Names("lstStudents"), Strings{});
  });
  user.Select("lstClasses", 1).Do("look", [] {
    EXPECT_EQ(Names("lstStudents"), (Strings{"Bob", "Cleo"}));
    EXPECT_EQ(session.gTestPassPercent, 60);
    session.gTestPassPercent = 1;
  });
  user.Select("lstClasses", 0).Do("look", [] { EXPECT_EQ(session.gTestPassPercent, 60); });
  Choose(2, 1);
  LoadOnNetwork();
  EXPECT_EQ(session.gRecordKeepingEnabled, 1);
  EXPECT_EQ(session.gClassName, "Period 2                 ");
  EXPECT_EQ(session.gClassNum, 2);
  EXPECT_EQ(session.gStudentName, "Zoe                  ");
  EXPECT_EQ(session.gStudentNum, 2);
  EXPECT_EQ(session.gTestPassPercent, 75);
  EXPECT_EQ(frmMenu->lblTestPassPercent.Caption(), "Test Passing Percent: 75%");
  EXPECT_EQ(session.gProgressCodes[1][1], "W");
  EXPECT_EQ(session.gProgressCodes[1][2], "C");  // 3 of 4 are 75 percent
  EXPECT_EQ(session.gProgressCodes[1][3], "");
  EXPECT_EQ(session.gProgressCodes[1][4], "");
  EXPECT_FALSE(frmMenu->mnuRecordsStudents->Enabled());
  EXPECT_FALSE(frmMenu->mnuDiagnosticsResults->Visible());
}

TEST_F(NetworkLoginTest, APasswordTakesLettersAndDigitsOnly) {
  PassLogo();
  Choose(2, 0);
  user.At("frmPassword").Do("look", [] {
    EXPECT_EQ(LabelText("Label1"), "Enter Password For:\nAda                  ");
  });
  user.TypeIn("txtPassword", "a!b \xe9/:@[`{");
  user.Do("look", [] { EXPECT_EQ(Typed(), "AB"); });
  user.TypeIn("txtPassword", "7").Do("look", [] { EXPECT_EQ(Typed(), "AB7"); });
  user.TypeIn("txtPassword", std::string(1, kBackspace));
  user.Do("look", [] { EXPECT_EQ(Typed(), "AB"); });
  user.TypeIn("txtPassword", std::string(5, kBackspace) + "ab1").Press(13);
  LoadOnNetwork();
  EXPECT_EQ(session.gStudentNum, 1);
  EXPECT_EQ(session.gClassNum, 2);
  EXPECT_EQ(session.gRecordKeepingEnabled, 1);
}

TEST_F(NetworkLoginTest, ThePasswordBoxReadsTheKeyboard) {
  PassLogo();
  Choose(2, 0);
  user.At("frmPassword").Do("type", [] {
    const platform::Form& form = *platform::Form::ModalForm();
    for (const char key : {'a', 'X', '!', kBackspace, 'b', '1'}) platform::robot::Type(form, key);
  });
  user.Do("look", [] { EXPECT_EQ(Typed(), "AB1"); }).Click("cmdOK");
  LoadOnNetwork();
  EXPECT_EQ(session.gRecordKeepingEnabled, 1);
}

TEST_F(NetworkLoginTest, TheThirdWrongPasswordLeadsBackToTheNames) {
  PassLogo();
  Choose(1, 1);
  for (const char* wrong : {"ab1", "z90zz", ""}) {
    TryPassword(wrong);
    user.Answer(platform::Answer::Ok);
  }
  // Then with the counter at 0: two wrong ones and the right one.
  user.At("frmNetworkLogin").Do("look", [] {
    EXPECT_EQ(session.gRecordKeepingEnabled, 0);
    EXPECT_EQ(Names("lstStudents"), (Strings{"Bob", "Cleo"}));
  });
  user.Click("cmdLogin");
  for (const char* wrong : {"z90zzz9", "z90zzzzzz"}) {
    TryPassword(wrong);
    user.Answer(platform::Answer::Ok);
  }
  user.At("frmPassword").Do("look", [] { EXPECT_EQ(Typed(), ""); });
  TryPassword("z90zzz");
  LoadOnNetwork();
  Strings told;
  for (const platform::Message& message : user.messages) {
    EXPECT_EQ(message.title, "Password");
    told.push_back(message.text);
  }
  const std::string incorrect = "Password is incorrect.";
  EXPECT_EQ(told, (Strings{incorrect, incorrect, "3 Password attempts have failed.", incorrect,
                           incorrect}));
  EXPECT_EQ(session.gRecordKeepingEnabled, 1);
  EXPECT_EQ(session.gStudentNum, 12);
}

TEST_F(NetworkLoginTest, ThePasswordIsNotShown) {
  PassLogo();
  Choose(2, 0);
  user.At("frmPassword").Do("look", [] {
    EXPECT_TRUE(platform::inspection::HidesCharacters(FindControl("txtPassword")));
  });
  user.Click("cmdCancel").Click("cmdSkip");
  LoadOnNetwork();
}

TEST_F(NetworkLoginTest, WhoSkipsBehindAWrongPasswordIsNobody) {
  session.gDialogResult = kTrue;  // of some dialog before
  PassLogo();
  Choose(2, 0);
  TryPassword("wrong");
  user.Answer(platform::Answer::Ok).At("frmPassword").Press(27);
  user.At("frmNetworkLogin").Click("cmdSkip");
  LoadOnNetwork();
  ExpectNobody();
}

TEST_F(NetworkLoginTest, LoginWantsANameFirst) {
  PassLogo();
  user.At("frmNetworkLogin").Click("cmdLogin").Answer(platform::Answer::Ok);
  // Another class takes the name away that was picked.
  user.Select("lstClasses", 1).Select("lstStudents", 0).Select("lstClasses", 2);
  user.Click("cmdLogin").Answer(platform::Answer::Ok);
  user.CloseBox();
  LoadOnNetwork();
  ASSERT_EQ(user.messages.size(), 2u);
  for (const platform::Message& message : user.messages)
    EXPECT_EQ(message.text, "You must first select a class and then\rselect your name");
  ExpectNobody();
}

TEST_F(NetworkLoginTest, FilesThatCannotBeUsedEndTheProgram) {
  std::string classes;
  for (int i = 0; i < 100; ++i) classes += ClassRecord("Class", "", i % 90 + 1);
  folder.Put("Classes.dat", classes);
  PassLogo();
  ExpectStop("Failed in attempt to read file CLASSES.DAT", [this] { LoadOnNetwork(); });

  PutFiles();
  std::string students;
  for (int i = 0; i < 100; ++i) students += StudentRecord("Student", i % 90 + 1, 11, "");
  folder.Put("STUDENTS.DAT", students);
  PassLogo();
  user.At("frmNetworkLogin").Select("lstClasses", 1);
  ExpectStop("Failed in attempt to read file STUDENTS.DAT", [this] { LoadOnNetwork(); });

  PutFiles();
  std::filesystem::remove(folder.Path() + "RECORDS.DAT");
  PassLogo();
  Choose(1, 0);
  ExpectStop("Failed in attempt to read file RECORDS.DAT", [this] { LoadOnNetwork(); });
}

}  // namespace
}  // namespace course::testing
