#include "login_fixture.h"
#include "platform/text_box.h"

namespace course::testing {
namespace {

const std::string kDuplicate = "Another student already has the name ";

// The menu of a student who has logged in; the roster is Ada, Bob, Cleo with numbers 1 to 3.
class RosterTest : public LoginTest {
 protected:
  void SetUp() override {
    LoginTest::SetUp();
    PutStudents({"Cleo", "Ada", "Bob"});
    PassLogo();
    user.At("frmLogin").Select("lstStudents", 0).Click("cmdLogin");
    Load();
  }
  void OpenRoster() { EXPECT_TRUE(frmMenu->mnuRecordsStudents->Click()); }
  // Which of the four buttons can be clicked: "1234", "1  4" ...
  void ExpectOffer(const std::string& offered) {
    user.Do("look", [offered] {
      std::string enabled;
      for (const char index : {'1', '2', '3', '4'})
        enabled +=
            FindControl(std::string("cmdStudent(") + index + ")").CanBeClicked() ? index : ' ';
      EXPECT_EQ(enabled, offered);
    });
  }
  void ExpectNames(const Strings& names) {
    user.Do("look", [names] { EXPECT_EQ(Names("lstStudents"), names); });
  }
};

TEST_F(RosterTest, AFreedNumberIsUsedAgain) {
  ExpectOffer("1  4");
  user.At("frmStudents").Select("lstStudents", 1);
  ExpectOffer("1234");
  user.Click("cmdStudent(3)").Answer(platform::Answer::Yes);
  ExpectNames({"Ada", "Cleo"});
  ExpectOffer("1  4");
  AddStudent("Dora");
  ExpectNames({"Ada", "Cleo", "Dora"});
  user.Click("cmdMenu");
  OpenRoster();
  EXPECT_EQ(user.messages[0].text, "Bob\n\nAre you sure you want to delete this student?");
  EXPECT_EQ(user.messages[0].buttons, platform::Buttons::YesNo);
  EXPECT_EQ(user.messages[0].icon, platform::Icon::Warning);
  EXPECT_EQ(folder.Bytes("STUDENTS.DAT"),
            "Cleo                 1 99Ada                  2 99Dora                 3 99");
}

TEST_F(RosterTest, ADeletedStudentsRecordsGoAndTheOthersStay) {
  const std::string ofCleo = "C299010115260101004003005";
  const std::string ofBob = "C299030115260153005003004";
  folder.Put("RECORDS.DAT", ofCleo + ofBob + ofCleo);
  folder.Put("Diag.dat", "results");
  user.At("frmStudents").Select("lstStudents", 2).Click("cmdStudent(3)");
  user.Answer(platform::Answer::No);
  ExpectOffer("1  4");
  ExpectNames({"Ada", "Bob", "Cleo"});
  user.Select("lstStudents", 2).Click("cmdStudent(3)").Answer(platform::Answer::Yes);
  user.Click("cmdMenu");
  OpenRoster();
  EXPECT_EQ(folder.Bytes("RECORDS.DAT"), ofBob);
  EXPECT_EQ(folder.Bytes("STUDENTS.DAT"), "Ada                  2 99Bob                  3 99");
  EXPECT_EQ(folder.Bytes("Diag.dat"), "results");
}

TEST_F(RosterTest, ANameIsGivenOnce) {
  for (const char* taken : {"Ada", " aDA  "}) {
    user.At("frmStudents").Click("cmdStudent(1)").TypeIn("txtName", taken).Click("cmdOK");
    user.Answer(platform::Answer::Ok).At("frmAddStudent").Press(27);
  }
  // Editing meets the student's own name.
  user.At("frmStudents").Select("lstStudents", 1).Click("cmdStudent(2)");
  user.At("frmAddStudent").Do("look", [] {
    EXPECT_EQ(LabelText("Label1"), "In the box below, enter new name of student: Bob");
    EXPECT_EQ(dynamic_cast<platform::TextBox&>(FindControl("txtName")).Text(), "Bob");
  });
  user.Click("cmdOK").Answer(platform::Answer::Ok);
  user.At("frmAddStudent").TypeIn("txtName", "Bobby").Press(13);
  ExpectNames({"Ada", "Bobby", "Cleo"});
  user.Click("cmdMenu");
  OpenRoster();
  Strings told;
  for (const platform::Message& message : user.messages) told.push_back(message.text);
  EXPECT_EQ(told, (Strings{kDuplicate + "\"Ada\".\n\nPlease try another name.",
                           kDuplicate + "\"aDA\".\n\nPlease try another name.",
                           kDuplicate + "\"Bob\".\n\nPlease try another name."}));
  EXPECT_EQ(folder.Bytes("STUDENTS.DAT").substr(50), "Bobby                3 99");
}

TEST_F(RosterTest, NamesAtTheirLimits) {
  const std::string longName = "Wilhelmina Windermere-Wolff";
  AddStudent(longName.substr(0, 21));
  AddStudent(longName);  // compared at its full length, stored cut
  AddStudent("\xc9lodie \"A\" O'Hara");
  user.At("frmStudents").Click("cmdStudent(1)").TypeIn("txtName", "\xe9LODIE \"a\" o'hara");
  user.Click("cmdOK").Answer(platform::Answer::Ok).TypeIn("txtName", "   ").Click("cmdOK");
  const std::string cut = longName.substr(0, 21);
  ExpectNames({"Ada", "Bob", "Cleo", cut, cut, "\xc9lodie \"A\" O'Hara"});
  user.Click("cmdMenu");
  OpenRoster();
  EXPECT_EQ(folder.Bytes("STUDENTS.DAT").substr(75),
            cut + "4 99" + cut + "5 99" + "\xc9lodie \"A\" O'Hara    6 99");
}

TEST_F(RosterTest, ErasingAllLeavesNothingToErase) {
  folder.Put("RECORDS.DAT", "C299010115260101004003005");
  user.At("frmStudents").Click("cmdStudent(4)").Answer(platform::Answer::No);
  user.Click("cmdStudent(4)").Answer(platform::Answer::Yes);
  ExpectNames({});
  ExpectOffer("1   ");
  user.CloseBox();
  OpenRoster();
  EXPECT_EQ(user.messages[0].text, "Are you sure you want to clear ALL student names?");
  EXPECT_EQ(folder.Bytes("STUDENTS.DAT"), "");
  EXPECT_EQ(folder.Bytes("RECORDS.DAT"), "");
}

TEST_F(LoginTest, AFirstUserMayDeleteWhatHeEntered) {
  // Records of a roster that is gone; the menu lists no unit as yet.
  folder.Put("RECORDS.DAT", "C299010115260101004003005C299020115260101004003005");
  PassLogo();
  user.At("frmWelcome").Press(13);
  AddStudent("Adda");
  user.At("frmStudents").Select("lstStudents", 0).Click("cmdStudent(3)");
  user.Answer(platform::Answer::Yes).Press(27);
  user.At("frmLogin").Click("cmdSkip");
  Load();
  EXPECT_EQ(folder.Bytes("RECORDS.DAT"), "C299020115260101004003005");
  EXPECT_EQ(frmMenu->lstChapter.ListCount(), 12);
}

}  // namespace
}  // namespace course::testing
