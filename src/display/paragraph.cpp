#include "display/paragraph.h"

#include <string_view>

#include "display/exponents.h"
#include "platform/stop.h"

namespace course {
namespace {

constexpr std::size_t kMaxSegments = 20;

struct Macro {
  std::string_view written;
  std::string_view becomes;
};

// Trigonometry first: its right side still holds character macros.
constexpr Macro kMacros[] = {
    {R"(\ST\)", R"(sin \129\)"},
    {R"(\TST\)", R"(~sin \129\~)"},
    {R"(\CT\)", R"(cos \129\)"},
    {R"(\TCT\)", R"(~cos \129\~)"},
    {R"(\TT\)", R"(tan \129\)"},
    {R"(\TTT\)", R"(~tan \129\~)"},
    {R"(\COTT\)", R"(cot \129\)"},
    {R"(\TCOTT\)", R"(~cot \129\~)"},
    {R"(\SECT\)", R"(sec \129\)"},
    {R"(\TSECT\)", R"(~sec \129\~)"},
    {R"(\CSCT\)", R"(csc \129\)"},
    {R"(\TCSCT\)", R"(~csc \129\~)"},
    {R"(\S2T\)", R"(sin^2^\129\)"},
    {R"(\TS2T\)", R"(~sin^2^\129\~)"},
    {R"(\C2T\)", R"(cos^2^\129\)"},
    {R"(\TC2T\)", R"(~cos^2^\129\~)"},
    {R"(\T2T\)", R"(tan^2^\129\)"},
    {R"(\TT2T\)", R"(~tan^2^\129\~)"},
    {R"(\COT2T\)", R"(cot^2^\129\)"},
    {R"(\TCOT2T\)", R"(~cot^2^\129\~)"},
    {R"(\SEC2T\)", R"(sec^2^\129\)"},
    {R"(\TSEC2T\)", R"(~sec^2^\129\~)"},
    {R"(\CSC2T\)", R"(csc^2^\129\)"},
    {R"(\TCSC2T\)", R"(~csc^2^\129\~)"},
    {R"(\1ST\)", R"(1/sin \129\)"},
    {R"(\T1ST\)", R"(~1/sin \129\~)"},
    {R"(\1CT\)", R"(1/cos \129\)"},
    {R"(\T1CT\)", R"(~1/cos \129\~)"},
    {R"(\1S2T\)", R"(1/sin^2^\129\)"},
    {R"(\T1S2T\)", R"(~1/sin^2^\129\~)"},
    {R"(\1C2T\)", R"(1/cos^2^\129\)"},
    {R"(\T1C2T\)", R"(~1/cos^2^\129\~)"},
    {R"(\TSTOCT\)", R"(~sin \129\/cos \129\~)"},
    {R"(\TS2TOC2T\)", R"(~sin^2^\129\/cos^2^\129\~)"},
    {R"(\TCTOST\)", R"(~cos \129\/sin \129\~)"},
    {R"(\TC2TOS2T\)", R"(~cos^2^\129\/sin^2^\129\~)"},
    {R"(\TS2TPC2T\)", R"(~sin^2^\129\ + cos^2^\129\~)"},
    {R"(\T1MS2T\)", R"(~1-sin^2^\129\~)"},
    {R"(\T1MC2T\)", R"(~1-cos^2^\129\~)"},
    {"~", "\""},
    {"`", "\xFA"},
    {R"(\248\)", "\xF8"},
    {R"(\250\)", "\xFA"},
    {R"(\129\)", "\x81"},
    {R"(\216\)", "\xD8"},
    {R"(\249\)", "\xF9"},
    {R"(\141\)", "\x8D"},
};

void ReplaceAll(std::string& s, const Macro& macro) {
  for (std::size_t at = 0; (at = s.find(macro.written, at)) != std::string::npos;
       at += macro.becomes.size())
    s.replace(at, macro.written.size(), macro.becomes);
}

platform::Colour ColourOfLetter(char letter, platform::Colour current, const std::string& text) {
  switch (letter | 0x20) {
    case 'b':
      return platform::colour::Blue;
    case 'c':
      return platform::colour::Cyan;
    case 'g':
      return platform::colour::Green;
    case 'k':
      return platform::colour::Black;
    case 'm':
      return platform::colour::Magenta;
    case 'r':
      return platform::colour::Red;
    case 'w':
      return platform::colour::White;
    case 'y':
      return platform::colour::Yellow;
    case 'z':
      return current;
    default:
      platform::Stop(std::string("WordWrap: unknown colour code \\") + letter + " in \"" + text +
                     "\"");
  }
}

// Line breaks of one coloured segment.
void PrintSegment(const ParagraphTarget& target, std::string s, const std::string& lookahead) {
  for (std::size_t at; (at = s.find('\r')) != std::string::npos;) {
    if (at > 0) target.layOut(s.substr(0, at), lookahead);
    target.newLine();
    s.erase(0, at + 1);
    if (s.empty()) return;
  }
  target.layOut(s, lookahead);
}

}  // namespace

std::string ExpandMacros(const std::string& s) {
  std::string expanded = s;
  for (const Macro& macro : kMacros) ReplaceAll(expanded, macro);
  return expanded;
}

bool IsColourLetter(char letter) {
  return std::string_view("bcgkmrwyz").find(static_cast<char>(letter | 0x20)) !=
         std::string_view::npos;
}

std::vector<Segment> CutAtColours(const std::string& s, platform::Colour current) {
  std::vector<Segment> segments{{current, ""}};
  std::size_t i = 0;
  if (s.size() >= 2 && s[0] == '\\') {
    segments[0].colour = ColourOfLetter(s[1], current, s);
    i = 2;
  }
  for (; i < s.size(); ++i) {
    if (s[i] != '\\') {
      segments.back().text += s[i];
      continue;
    }
    ++i;
    if (i + 1 >= s.size()) break;  // a closing code at the end, whatever its letter
    segments.push_back({ColourOfLetter(s[i], current, s), ""});
  }
  if (segments.size() > kMaxSegments)
    platform::Stop("WordWrap: more than 20 coloured segments in \"" + s + "\"");
  return segments;
}

void PrintParagraph(const ParagraphTarget& target, const std::string& s, bool keepOnLine) {
  const std::vector<Segment> segments = CutAtColours(ExpandMacros(s), target.current);
  for (std::size_t i = 0; i < segments.size(); ++i) {
    target.setColour(segments[i].colour);
    std::string lookahead;
    for (std::size_t later = i + 1; later < segments.size(); ++later)
      lookahead += segments[later].text;
    PrintSegment(target, segments[i].text, ProtectExponentSpaces(lookahead));
  }
  if (!keepOnLine) target.newLine();
}

std::string LTrim(const std::string& s) {
  const std::size_t first = s.find_first_not_of(' ');
  return first == std::string::npos ? "" : s.substr(first);
}

}  // namespace course
