#include "engine/mistakes.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "engine/choices.h"

namespace course {
namespace {

// Verbs that follow an "and": there "forgets brackets and parentheses" has a noun.  One line a
// letter.
constexpr std::string_view kSecondVerbs =
    " "
    "adds applies "
    "cancels changes combines compares counts "
    "divides does drops "
    "exchanges "
    "forgets "
    "gives "
    "has "
    "ignores is "
    "keeps "
    "leaves loses "
    "makes mixes moves multiplies "
    "overlooks "
    "puts "
    "raises reads reduces reverses rounds "
    "sees squares stops subtracts swaps switches "
    "takes treats turns "
    "uses "
    "works writes ";

bool IsSecondVerb(std::string_view word) {
  return kSecondVerbs.find(" " + std::string(word) + " ") != std::string_view::npos;
}

constexpr std::pair<std::string_view, std::string_view> kIrregular[] = {
    {"is", "are"}, {"has", "have"}, {"was", "were"}};
constexpr std::pair<std::string_view, std::string_view> kOurs[] = {
    {"his", "our"}, {"her", "our"}, {"himself", "ourselves"}, {"herself", "ourselves"}};

template <std::size_t count>
std::string_view Found(const std::pair<std::string_view, std::string_view> (&table)[count],
                       std::string_view word) {
  const auto* row =
      std::ranges::find(table, word, &std::pair<std::string_view, std::string_view>::first);
  return row == std::end(table) ? std::string_view{} : row->second;
}

// The verb as "we" use it; a word that is no verb in the third person stays.
std::string Plural(std::string_view verb) {
  if (const std::string_view irregular = Found(kIrregular, verb); !irregular.empty())
    return std::string(irregular);
  if (!verb.ends_with('s') || verb.ends_with("ss")) return std::string(verb);
  if (verb.ends_with("ies") && verb.size() > 4)
    return std::string(verb.substr(0, verb.size() - 3)) + "y";
  constexpr std::array<std::string_view, 6> kLongEndings = {"sses", "shes", "ches",
                                                            "xes",  "zzes", "oes"};
  const bool isLong =
      std::ranges::any_of(kLongEndings, [&](std::string_view end) { return verb.ends_with(end); });
  return std::string(verb.substr(0, verb.size() - (isLong ? 2 : 1)));
}

bool JoinsVerbs(std::string_view word) {
  return word == "and" || word == "or" || word == "but" || word == "then";
}

// The first verb is the first word in "s", behind an adverb at most.
class Sentence {
 public:
  std::string Turned(std::string_view word) {
    if (word.ends_with(',')) {
      std::string turned = Turned(word.substr(0, word.size() - 1)) + ",";
      joined_ = true;
      return turned;
    }
    const bool joined = std::exchange(joined_, JoinsVerbs(word));
    if (const std::string_view ours = Found(kOurs, word); !ours.empty()) return std::string(ours);
    const bool isVerb =
        joined ? IsSecondVerb(word) : !hasVerb_ && word.ends_with('s') && word != "always";
    if (!isVerb) return std::string(word);
    hasVerb_ = true;
    return Plural(word);
  }

 private:
  bool hasVerb_ = false;
  bool joined_ = false;  // the word before joins two verbs
};

}  // namespace

std::vector<NamedMistake> NamedMistakes(const Problem& problem, const std::vector<int>& order,
                                        int studentsBox) {
  std::vector<NamedMistake> mistakes;
  for (int box = 1; box <= ChoiceCountOf(problem.kind); ++box) {
    const int choice = order.at(static_cast<std::size_t>(box));
    std::string name = MistakeOf(problem, choice);
    if (choice == problem.correct || name.empty() || name == kFiller) continue;
    const bool rounded = name.ends_with(kRounded);
    if (rounded) name.resize(name.size() - kRounded.size());
    mistakes.push_back({name, ChoiceText(problem, choice), box == studentsBox, rounded});
  }
  std::ranges::stable_partition(mistakes, &NamedMistake::own);
  return mistakes;
}

std::string InOurWords(const std::string& name) {
  std::string words;
  Sentence sentence;
  for (std::size_t at = 0; at < name.size();) {
    const std::size_t end = std::min(name.find(' ', at), name.size());
    words += (at == 0 ? "" : " ") + sentence.Turned(std::string_view(name).substr(at, end - at));
    at = end + 1;
  }
  return words;
}

}  // namespace course
