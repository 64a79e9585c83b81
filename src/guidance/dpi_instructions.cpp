#include "guidance/dpi_instructions.h"

#include <array>
#include <vector>

#include "platform/stop.h"

namespace course {
namespace {

struct Version {
  const char* code;  // as the system's version is told
  const char* name;
  const char* others;  // the two others, as the alert names them
  // The steps, a line each; what stands between two bars is bold.
  std::vector<const char*> steps;
};

const std::array<Version, kDpiVersions>& Versions() {
  static const std::array<Version, kDpiVersions> versions = {{
      {"XP",
       "Windows XP",
       "Windows Vista or Windows 7",
       {"1. Right click on the Desktop, then select |Properties|.",
        "2. Click the |Settings| tab, then click |Advanced|.",
        "3. Look for |DPI Setting|.  Change the setting to", "   |Normal size (96 DPI)|.",
        "4. Click |OK|, then re-start your PC."}},
      {"VISTA",
       "Windows Vista",
       "Windows XP or Windows 7",
       {"1. Right click on the Desktop, then select |Personalize|.",
        "2. In the Personalization window, click", "   |Adjust font size (DPI)|.",
        "3. Select |Default size (96 DPI)|.", "4. Click |OK|, then re-start your PC."}},
      {"7",
       "Windows 7",
       "Windows XP or Windows Vista",
       {"1. Right click on the Desktop, then select |Screen Resolution|.",
        "2. Click the choice |Make text|", "   |and other items larger or smaller|.",
        "   Then select |Smaller|, click |Apply|, and re-start your PC."}},
  }};
  return versions;
}

const Version& VersionOf(int version) {
  if (version < 1 || version > kDpiVersions)
    platform::Stop("DPI instructions: no version " + std::to_string(version));
  return Versions()[static_cast<std::size_t>(version - 1)];
}

constexpr double kLeft = 1.0;  // inches
constexpr double kTop = 1.0;
constexpr double kLineHeight = 1.0 / 6;
constexpr double kCharacterWidth = 0.1;  // of 12 point Courier New

// Lines down one page.
class Paper {
 public:
  explicit Paper(platform::Page& page) : page_(page) {}

  // What stands between two bars is bold.
  void Print(const std::string& line) {
    bool bold = false;
    double x = kLeft;
    for (std::size_t start = 0; start <= line.size();) {
      const std::size_t bar = std::min(line.find('|', start), line.size());
      const std::string part = line.substr(start, bar - start);
      if (!part.empty()) page_.push_back({x, y_, part, bold});
      x += kCharacterWidth * static_cast<double>(part.size());
      bold = !bold;
      start = bar + 1;
    }
    y_ += kLineHeight;
  }
  void Skip() { y_ += kLineHeight; }

 private:
  platform::Page& page_;
  double y_ = kTop;
};

}  // namespace

std::string DpiVersionName(int version) {
  return VersionOf(version).name;
}

int DpiVersionOf(const std::string& windowsVersionName) {
  for (int version = 1; version <= kDpiVersions; ++version)
    if (windowsVersionName == VersionOf(version).code) return version;
  return 0;
}

std::string DpiAlertText(int version) {
  std::string text =
      "It appears that your screen's DPI setting may cause the overlapping of characters in "
      "the lessons of this program.  This problem can be corrected quite easily by changing "
      "your screen's DPI setting.  NOTE - The DPI setting is different from the screen's "
      "resolution.  The DPI setting is a number such as 96, while screen resolution is something "
      "like 1024 x 768.\n\n";
  if (version == 0)
    return text +
           "Please select your version of Windows in the box to the left.  On another "
           "system, set the scale of the display to 100 % in the system's settings, "
           "then start the program again.";
  const Version& chosen = VersionOf(version);
  text +=
      "Please follow the instructions below to change your screen's DPI setting.  The "
      "instructions are shown for " +
      std::string(chosen.name) + ".  You can view the steps for " + chosen.others +
      " by selecting one of the choices in the box to the left.\n\n"
      "Click the button |Print These Instructions| to obtain a printed copy of "
      "the instructions that you can refer to when changing the DPI setting.\n\n" +
      "|" + chosen.name + " - Steps to Change DPI Setting|\n";
  for (const std::string step : chosen.steps) text += "\n" + step;
  return text;
}

platform::PrintDocument DpiInstructions(int version) {
  const Version& chosen = VersionOf(version);
  platform::PrintDocument document;
  document.title = "Change DPI Setting";
  Paper paper(document.pages.emplace_back());
  paper.Print("You don't want to be running one of the Sumwright programs when you");
  paper.Print("perform these steps.  You should be looking at the Windows Desktop.");
  paper.Skip();
  paper.Print("|" + std::string(chosen.name) + " - Steps to Change DPI Setting|");
  paper.Skip();
  for (const char* step : chosen.steps) paper.Print(step);
  paper.Skip();
  paper.Print("NOTE - After you have re-started your PC,  please try running the");
  paper.Print("       Sumwright program again.  It should run successfully.");
  return document;
}

}  // namespace course
