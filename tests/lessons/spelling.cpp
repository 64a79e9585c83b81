#include "lessons/spelling.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace lesson_check {
namespace {

bool IsLetter(char c) {
  return std::isalpha(static_cast<unsigned char>(c)) != 0 && static_cast<unsigned char>(c) < 128;
}

// Without the punctuation around it.
std::string Bare(const std::string& token) {
  const std::string around = ".,:;?!()[]\"'#";
  const std::size_t first = token.find_first_not_of(around);
  if (first == std::string::npos) return "";
  return token.substr(first, token.find_last_not_of(around) - first + 1);
}

// "b", "3x", "x²", "=": a word has two letters, and hyphens and apostrophes between letters.
bool IsWord(const std::string& bare) {
  for (const char c : bare)
    if (!IsLetter(c) && c != '-' && c != '\'') return false;
  return bare.size() > 1 && bare.find_first_not_of('-') != std::string::npos;
}

// "+", "=", "÷": letters and digits make no sign.
bool IsSign(const std::string& bare) {
  return !bare.empty() &&
         std::ranges::none_of(bare, [](char c) { return IsLetter(c) || (c >= '0' && c <= '9'); });
}

// "= ax + bx": a product of letters, beside a sign.
bool IsTerm(const std::vector<std::string>& tokens, std::size_t at) {
  constexpr std::size_t kLetters = 3;
  const bool behind = at > 0 && IsSign(Bare(tokens[at - 1]));
  const bool before = at + 1 < tokens.size() && IsSign(Bare(tokens[at + 1]));
  return Bare(tokens[at]).size() <= kLetters && (behind || before);
}

std::vector<std::string> TokensOf(const std::string& line) {
  std::istringstream in(line);
  std::vector<std::string> tokens;
  for (std::string token; in >> token;) tokens.push_back(token);
  return tokens;
}

}  // namespace

Speller::Speller(const std::string& ownWords)
    : dictionary_(COURSE_DICTIONARY ".aff", COURSE_DICTIONARY ".dic") {
  if (!dictionary_.spell(std::string("numerator")))
    throw std::runtime_error("no dictionary " COURSE_DICTIONARY);
  std::ifstream own(ownWords);
  for (std::string word; own >> word;) dictionary_.add(word);
}

std::vector<std::string> Speller::Faults(const std::string& text) {
  std::vector<std::string> faults;
  std::istringstream in(text);
  int number = 0;
  for (std::string line; std::getline(in, line);) {
    const std::string place = "line " + std::to_string(++number) + ": ";
    const std::vector<std::string> tokens = TokensOf(line);
    for (std::size_t i = 0; i < tokens.size(); ++i) {
      const std::string word = Bare(tokens[i]);
      if (!IsWord(word) || IsTerm(tokens, i)) continue;
      if (!dictionary_.spell(word)) faults.push_back(place + word);
      if (i > 0 && tokens[i - 1] == word) faults.push_back(place + word + " " + word);
    }
  }
  return faults;
}

}  // namespace lesson_check
