// Articles, capitals and blanks, for sentences that are joined from the words of a table.
#pragma once

#include <string>
#include <vector>

namespace course::stories {

// "a 20%" and "an 80%": by the sound of a number from 0 to 100.
std::string ArticleOfNumber(int number);
// Its first letter as a capital: "The Blue pump".
std::string AtStart(std::string text);
// "Blue pump" for "the Blue pump"; other names stay.
std::string WithoutArticle(const std::string& name);
// The sentences behind each other, two blanks between.
std::string OneParagraph(const std::vector<std::string>& sentences);

}  // namespace course::stories
