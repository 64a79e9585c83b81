// What stands beside the coefficient of a term in two letters, and what is taken for like it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "mathkit/random_stream.h"

namespace course::polynomials {

// a and b stand for two letters, the first one of the alphabet before the second: "aab" in the
// letters "xy" is "xxy".
std::string InLetters(std::string_view part, std::string_view pair);

// One of seven: x, y, x^2^, y^2^, xy, x^2^y, xy^2^.
std::string DrawLetters(RandomStream& random, std::string_view pair);

struct LookAlike {
  std::string mistake;  // of someone who takes them for the same
  std::string letters;
};
// Three for each of the seven; letters that are none of them stop the program.
std::vector<LookAlike> LookAlikesOf(const std::string& letters, std::string_view pair);

}  // namespace course::polynomials
