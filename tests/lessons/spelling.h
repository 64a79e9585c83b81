// Spelling of what a student reads, by the American dictionary and the course's own words.
#pragma once

#include <hunspell/hunspell.hxx>
#include <string>
#include <vector>

namespace lesson_check {

class Speller {
 public:
  // A file with a word of the course's own a line.
  explicit Speller(const std::string& ownWords);

  // "line 7: wrod" for each misspelled word, and for each that stands twice: "line 8: the the".
  // Formulas are skipped: single letters, what holds a digit or a sign such as "+", and up to three
  // letters beside a sign.
  std::vector<std::string> Faults(const std::string& text);

 private:
  Hunspell dictionary_;
};

}  // namespace lesson_check
