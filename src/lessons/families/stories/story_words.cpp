#include "lessons/families/stories/story_words.h"

#include <cctype>
#include <string_view>

namespace course::stories {

std::string ArticleOfNumber(int number) {
  const bool eight = number == 8 || number / 10 == 8;
  return eight || number == 11 || number == 18 ? "an" : "a";
}

std::string AtStart(std::string text) {
  if (!text.empty()) text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
  return text;
}

std::string WithoutArticle(const std::string& name) {
  constexpr std::string_view kArticle = "the ";
  return name.starts_with(kArticle) ? name.substr(kArticle.size()) : name;
}

std::string OneParagraph(const std::vector<std::string>& sentences) {
  std::string text;
  for (const std::string& sentence : sentences) text += (text.empty() ? "" : "  ") + sentence;
  return text;
}

}  // namespace course::stories
