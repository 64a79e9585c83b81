#include "lessons/families/polynomials/look_alike_terms.h"

#include <iterator>

#include "platform/stop.h"

namespace course::polynomials {
namespace {

struct Row {
  const char* letters;
  const char* otherExponents;
  const char* otherLetterCount;
  const char* otherLetter;
};
constexpr Row kRows[] = {{"a", "aa", "ab", "b"},    {"b", "bb", "ab", "a"},
                         {"aa", "a", "aab", "bb"},  {"bb", "b", "abb", "aa"},
                         {"ab", "aab", "a", "bb"},  {"aab", "ab", "aa", "abb"},
                         {"abb", "ab", "bb", "aab"}};

}  // namespace

std::string InLetters(std::string_view part, std::string_view pair) {
  std::string letters;
  for (const char c : part) letters += pair[c == 'a' ? 0 : 1];
  return letters;
}

std::string DrawLetters(RandomStream& random, std::string_view pair) {
  return InLetters(kRows[random.Index(static_cast<int>(std::size(kRows))) - 1].letters, pair);
}

std::vector<LookAlike> LookAlikesOf(const std::string& letters, std::string_view pair) {
  for (const Row& row : kRows)
    if (InLetters(row.letters, pair) == letters)
      return {{"overlooks the exponents", InLetters(row.otherExponents, pair)},
              {"overlooks a letter", InLetters(row.otherLetterCount, pair)},
              {"takes one letter for the other", InLetters(row.otherLetter, pair)}};
  platform::Stop("LookAlikesOf: no look-alikes are known of \"" + letters + "\"");
}

}  // namespace course::polynomials
