// Documents on their way to the printer: the preview, the person's help, PDF files.
#include "platform/printer.h"

#include "support/course_fixture.h"
#include "support/expect_stop.h"
#include "support/scratch_folder.h"
#include "support/test_printer.h"

namespace course::testing {
namespace {

using platform::Answer;
using platform::Orientation;
using platform::PrintError;
using platform::PrintTarget;

class PrinterTest : public CourseTest {
 protected:
  static platform::PrintDocument ThreePages() {
    platform::PrintDocument document{.title = "Three Pages", .pages = {}};
    for (const char* text : {"first", "second", "third"})
      document.pages.push_back({{.x = 0.5, .y = 0.5, .text = text}});
    return document;
  }
  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const platform::Message& message : user.messages) texts.push_back(message.text);
    return texts;
  }
};

TEST_F(PrinterTest, ThePersonHelpsUntilTheStepIsDone) {
  TestPrinter printer;
  printer.errors = {PrintError::DeviceTimeout, PrintError::DeviceTimeout, PrintError::None,
                    PrintError::None, PrintError::OutOfPaper};
  user.Answer(Answer::Ok).Answer(Answer::Ok).Answer(Answer::Ok);
  EXPECT_TRUE(platform::PrintOut(printer, ThreePages()));
  EXPECT_EQ(Texts(), (std::vector<std::string>{
                         "Turn printer on, then click OK to continue.",
                         "Turn printer on, then click OK to continue.",
                         "Printer is out of paper.\nInsert paper, then click OK to continue"}));
  ASSERT_EQ(printer.printed.pages.size(), 3u);
  EXPECT_EQ(printer.Lines(1), std::vector<std::string>{"second"});
  EXPECT_EQ(printer.ended, 1);
  EXPECT_EQ(printer.abandoned, 0);
}

TEST_F(PrinterTest, APrintIsGivenUpWhenThePersonCancelsOrNobodyCanHelp) {
  TestPrinter printer;
  printer.errors = {PrintError::None, PrintError::None, PrintError::OutOfPaper};
  user.Answer(Answer::Cancel);
  EXPECT_FALSE(platform::PrintOut(printer, ThreePages()));
  EXPECT_EQ(printer.printed.pages.size(), 1u);
  EXPECT_EQ(printer.abandoned, 1);

  printer.errors = {PrintError::None, PrintError::None, PrintError::None, PrintError::None,
                    PrintError::CannotWriteFile};
  user.Answer(Answer::Ok);
  EXPECT_FALSE(platform::PrintOut(printer, ThreePages()));
  EXPECT_EQ(user.messages.back().text, "Error =75");
  EXPECT_EQ(printer.ended, 0);
  EXPECT_EQ(printer.abandoned, 2);
}

TEST_F(PrinterTest, ThePreviewTurnsPagesAndPrintsOrSaves) {
  TestPrinter printer;
  const auto page = [] { return dynamic_cast<platform::Label&>(FindControl("lblPage")).Caption(); };
  user.At("frmPrintPreview").ClickRefused("cmdPrevious").Click("cmdNext");
  user.Do("look", [&] {
    EXPECT_EQ(page(), "Page 2 of 3");
    EXPECT_EQ(FindControl("prvPages").AccessibleText(), "second\n");
  });
  user.Click("cmdNext").ClickRefused("cmdNext").Click("cmdPrevious");
  user.Click("cmdZoomIn").Click("cmdZoomOut");
  printer.chosen = false;
  user.Click("cmdPrint");
  user.Do("choose a file this time", [&] {
    EXPECT_EQ(printer.printed.pages.size(), 0u);
    printer.chosen = true;
  });
  user.Click("cmdSave");
  platform::PrintAfterPreview(ThreePages());
  EXPECT_EQ(printer.target, PrintTarget::PdfFile);
  EXPECT_EQ(printer.printed.pages.size(), 3u);
  EXPECT_EQ(printer.printed.title, "Three Pages");
}

TEST_F(PrinterTest, ThePreviewClosesWithoutAPrintAndStaysAfterAFailedOne) {
  TestPrinter printer;
  user.Press(27);
  platform::PrintAfterPreview(ThreePages());
  user.CloseBox();
  platform::PrintAfterPreview(ThreePages());
  EXPECT_EQ(printer.ended, 0);

  printer.errors = {PrintError::DeviceTimeout};
  user.Answer(Answer::Cancel);
  user.Press(13).Click("cmdPrint");
  platform::PrintAfterPreview(ThreePages());
  EXPECT_EQ(printer.target, PrintTarget::Paper);
  EXPECT_EQ(printer.ended, 1);
  ExpectStop("PrintAfterPreview",
             [] { platform::PrintAfterPreview({.title = "Nothing", .pages = {}}); });
}

TEST_F(PrinterTest, PagesAndTextsAreMeasuredInInches) {
  EXPECT_EQ(platform::PageWidth(Orientation::Portrait), 8.5);
  EXPECT_EQ(platform::PageHeight(Orientation::Portrait), 11);
  EXPECT_EQ(platform::PageWidth(Orientation::Landscape), 11);
  // Ten characters an inch at 12 points, fifteen at 8.
  platform::PrintDocument document = ThreePages();
  EXPECT_NEAR(platform::PrintedWidth(document, std::string(75, 'x')), 7.5, 0.01);
  document.points = 8;
  EXPECT_NEAR(platform::PrintedWidth(document, std::string(75, ' ')), 5, 0.01);
}

TEST_F(PrinterTest, AFileHoldsAllPagesOrIsNotThere) {
  const ScratchFolder folder;
  platform::PrintDocument document = ThreePages();
  document.orientation = Orientation::Landscape;
  for (const auto& make : {platform::MakePdfPrinter, platform::MakePaperPrinter}) {
    EXPECT_TRUE(platform::PrintOut(*make(folder.Path() + "pages.pdf"), document));
    const std::string bytes = folder.Bytes("pages.pdf");
    EXPECT_EQ(bytes.substr(0, 5), "%PDF-");
    EXPECT_NE(bytes.rfind("%%EOF"), std::string::npos);
    EXPECT_NE(bytes.find("/Count 3"), std::string::npos);
    EXPECT_NE(bytes.find("LiberationMono"), std::string::npos);
    std::filesystem::remove(folder.Path() + "pages.pdf");

    user.Answer(Answer::Ok);
    EXPECT_FALSE(platform::PrintOut(*make(folder.Path()), document));
    EXPECT_EQ(user.messages.back().text, "Error =75");
  }
}

}  // namespace
}  // namespace course::testing
