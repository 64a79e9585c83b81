// The reader of a word table: words and numbers from which a story is told, in rows of so many
// consecutive entries.
//
// A running index walks the table; each read moves it by one.  A number is stored as text.  Reading
// outside the table stops the program.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace course::stories {

class WordTable {
 public:
  // The entries outlive the reader, which starts in front of the first.
  explicit WordTable(std::span<const std::string_view> entries) : entries_(entries) {}

  // The entry read next, from 1.
  void GoTo(int entry);
  // The first entry of a row, from 1, when all rows have so many entries.
  void GoToRow(int row, int entriesOfRow) { GoTo((row - 1) * entriesOfRow + 1); }

  std::string Next();
  // A number such as "12" or ".75".
  double NextNumber();

 private:
  std::span<const std::string_view> entries_;
  int index_ = 0;  // of the entry read last, from 1
};

}  // namespace course::stories
