#include "lessons/families/stories/word_table.h"

#include <charconv>

#include "platform/stop.h"

namespace course::stories {

void WordTable::GoTo(int entry) {
  if (entry < 1 || entry > static_cast<int>(entries_.size()))
    platform::Stop("WordTable::GoTo: entry = " + std::to_string(entry));
  index_ = entry - 1;
}

std::string WordTable::Next() {
  if (index_ >= static_cast<int>(entries_.size()))
    platform::Stop("WordTable::Next: the table ends at entry " + std::to_string(index_));
  return std::string(entries_[static_cast<std::size_t>(index_++)]);
}

double WordTable::NextNumber() {
  const std::string text = Next();
  double number = 0;
  const char* end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  if (read.ec != std::errc() || read.ptr != end)
    platform::Stop("WordTable::NextNumber: entry " + std::to_string(index_) + " is \"" + text +
                   "\"");
  return number;
}

}  // namespace course::stories
