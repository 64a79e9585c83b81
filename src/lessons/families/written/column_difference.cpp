#include "lessons/families/written/column_difference.h"

#include "lessons/families/written/column_sum.h"
#include "lessons/page/page_error.h"

namespace course::written {
namespace {

constexpr double kStep = 3;  // cells: a 1 finds room in front of a digit

}  // namespace

ColumnDifference::ColumnDifference(double row, double onesCol, const std::string& from,
                                   const std::string& taken)
    : row_(row),
      takenDigits_(static_cast<int>(taken.size())),
      changed_(from.size()),
      columns_(onesCol, kStep) {
  for (int place = 0; place <= HighestPlace(from); ++place) {
    top_.push_back(DigitAt(from, place));
    taken_.push_back(DigitAt(taken, place));
  }
  columns_.Write(row_ + 1, from);
  columns_.Write(row_ + 2, taken);
  columns_.WriteSign(row_ + 2, "-");
  columns_.Rule(row_ + 2);
}

double ColumnDifference::ResultRow() const {
  return row_ + 2 + kBelowRule;
}

bool ColumnDifference::HasTaken(int place) const {
  return place < takenDigits_;
}

bool ColumnDifference::NothingLeft(int place) const {
  for (int p = place; p <= Highest(); ++p)
    if (Top(p) != Taken(p)) return false;
  return true;
}

double ColumnDifference::RowOfTop(int place) const {
  return changed_.at(static_cast<std::size_t>(place)) ? row_ : row_ + 1;
}

void ColumnDifference::Borrow(int place) {
  const int next = place + 1;
  if (next > Highest() || Top(next) == 0)
    page::StopPage("Borrow: nothing to take from place " + std::to_string(next));
  columns_.StrikeOut(RowOfTop(next), next);
  const int left = --top_[static_cast<std::size_t>(next)];
  changed_[static_cast<std::size_t>(next)] = true;
  columns_.WriteDigit(row_, next, static_cast<char>('0' + left));
  columns_.WriteOneInFront(RowOfTop(place), place);
  top_[static_cast<std::size_t>(place)] += 10;
}

void ColumnDifference::Subtract(int place) {
  const int left = Top(place) - Taken(place);
  columns_.PickOut(place);
  columns_.WriteDigit(ResultRow(), place, static_cast<char>('0' + left));
}

}  // namespace course::written
