#include "engine/screen_reader.h"

#include <array>
#include <string_view>
#include <vector>

#include "display/panel_views.h"
#include "engine/figure_words.h"
#include "platform/painting.h"

namespace course {
namespace {

struct Spoken {
  int code;
  std::string_view words;
};

// Characters that a program for the blind would skip or misread.
constexpr Spoken kSpoken[] = {
    {127, "delta"},
    {129, "theta"},
    {130, "-"},
    {131, "greater than or equal to"},
    {132, "less than or equal to"},
    {133, "square root of"},
    {134, "divided by"},
    {135, "left arrow"},
    {136, "right arrow"},
    {137, "down arrow"},
    {138, "up arrow"},
    {141, "times"},
    {157, "+"},
    {168, "congruent to"},
    {169, "parallel to"},
    {170, "perpendicular to"},
    {177, "similar to"},
    {178, "squared"},
    {191, "plus or minus"},
    {216, "degrees"},
    {217, "angle"},
    {218, "infinity"},
    {221, "not equal to"},
    {226, "approximately equal to"},
    {247, "-"},
    {248, "times"},
    {249, "pi"},
    {250, "sub"},
    {255, " "},
    {'^', " to the power "},
};

constexpr std::string_view WordsOf(char c) {
  for (const Spoken& spoken : kSpoken)
    if (spoken.code == static_cast<unsigned char>(c)) return spoken.words;
  return {};
}

// Words stand between blanks; a text that brings its own is left as it is.
void AppendWords(std::string& text, std::string_view words) {
  const bool isWord = words.size() > 1 && words.front() != ' ';
  if (isWord && !text.empty() && text.back() != ' ') text += ' ';
  text += words;
  if (isWord) text += ' ';
}

std::string Joined(const std::vector<std::string>& lines, const char* separator) {
  std::string text;
  for (const std::string& line : lines) {
    if (!text.empty()) text += separator;
    text += SpokenText(line);
  }
  return text;
}

}  // namespace

std::string SpokenText(const std::string& text) {
  std::string spoken;
  bool raised = false;
  for (const char c : text) {
    const std::string_view words = WordsOf(c);
    if (c == '^') raised = !raised;
    if (c == '^' && !raised)
      spoken += ' ';
    else if (words.empty())
      spoken += c;
    else
      AppendWords(spoken, words);
  }
  // Blanks only part the words here: several are one, and none stands at the ends.
  std::string single;
  for (const char c : spoken)
    if (c != ' ' || (!single.empty() && single.back() != ' ')) single += c;
  single.erase(single.find_last_not_of(' ') + 1);
  return single;
}

void UpdateAccessibleTexts() {
  if (platform::PaintingOff::Active()) return;  // no screen, no screen reader
  for (const PanelView& view : ShownPanels(*frmPR)) {
    switch (view.kind) {
      case PanelKind::Figure:
        view.control->SetAccessibleText(WordsOf(*view.items));
        break;
      case PanelKind::Table:
      case PanelKind::Picture:  // has its description
        break;
      case PanelKind::Note:  // is read from its label
        frmPR->lblNotes[view.index].SetAccessibleName(Joined(view.Lines(), " "));
        break;
      case PanelKind::Answer:
        view.control->SetAccessibleText(std::string(1, static_cast<char>('A' + view.index - 1)) +
                                        ": " + Joined(view.Lines(), " "));
        break;
      default:
        view.control->SetAccessibleText(Joined(view.Lines(), "\n"));
    }
  }
}

}  // namespace course
