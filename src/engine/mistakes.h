// The wrong choices of a problem that are students' mistakes, and the words that tell of them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/problem.h"

namespace course {

// Behind the name of a mistake whose choice is a rounded value: "halves the distance, rounded".
inline constexpr std::string_view kRounded = ", rounded";

struct NamedMistake {
  std::string name;      // "forgets the parentheses"
  std::string text;      // of the choice to which it leads
  bool own = false;      // the student has chosen it
  bool rounded = false;  // it leads to about this choice
};

// Those that stand in the boxes of the order, by box; the one in the student's box, 1 to 5 or 0 for
// none, comes first.  The right choice, fillers and "None of the above" are no mistakes.
std::vector<NamedMistake> NamedMistakes(const Problem& problem, const std::vector<int>& order,
                                        int studentsBox);

// "forgets the parentheses and adds" becomes "forget the parentheses and add": what "we" do, of a
// name that says what "someone" does.  Behind "and", "or" and "but" only the verbs are changed that
// names of mistakes use; another one is added to the list.
std::string InOurWords(const std::string& name);

}  // namespace course
