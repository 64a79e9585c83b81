#include "lesson_check/habits.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>

#include "lesson_check/exact/notation.h"
#include "lesson_check/form/tokens.h"

namespace lesson_check {
namespace {

using Scores = std::vector<double>;

// The number that a value begins with; false when it begins with none.
bool LeadingNumber(const std::string& value, double& number) {
  char* end = nullptr;
  number = std::strtod(value.c_str(), &end);
  if (end == value.c_str()) return false;
  if (*end == '/') number /= std::strtod(end + 1, &end);
  return *end == '\0' || *end == ' ';
}

// By value where all are numbers, else by the largest number that is printed.
Scores Values(const std::vector<std::string>& texts, const std::vector<std::string>& values) {
  Scores scores;
  for (const std::string& value : values) {
    double number = 0;
    if (LeadingNumber(value, number)) scores.push_back(number);
  }
  if (scores.size() == values.size()) return scores;
  scores.clear();
  for (const std::string& text : texts) {
    double largest = 0;
    for (const std::string& number : NumbersIn(text))
      largest = std::max(largest, std::strtod(number.c_str(), nullptr));
    scores.push_back(largest);
  }
  return scores;
}

// The least number of tokens to be put in, taken out or replaced.
double Distance(const std::vector<Token>& a, const std::vector<Token>& b) {
  std::vector<int> row(b.size() + 1);
  std::iota(row.begin(), row.end(), 0);
  for (std::size_t i = 0; i < a.size(); ++i) {
    int diagonal = std::exchange(row[0], static_cast<int>(i) + 1);
    for (std::size_t j = 0; j < b.size(); ++j) {
      const int replaced = diagonal + (a[i].text == b[j].text ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({replaced, diagonal + 1, row[j] + 1});
    }
  }
  return row.back();
}

Scores Differences(const std::vector<std::string>& texts) {
  std::vector<std::vector<Token>> tokens;
  for (const std::string& text : texts) tokens.push_back(TokensOf(text));
  Scores scores(texts.size());
  for (std::size_t i = 0; i < texts.size(); ++i) {
    for (std::size_t j = i + 1; j < texts.size(); ++j) {
      const double distance = Distance(tokens[i], tokens[j]);
      scores[i] += distance;
      scores[j] += distance;
    }
  }
  return scores;
}

// 1 for a text of a form that no other has.
Scores LoneForms(const std::vector<std::string>& texts) {
  // A minus in front makes a form of its own, other than in the kinds of problem.
  std::vector<std::string> forms;
  for (const std::string& text : texts)
    forms.push_back((Trimmed(text).starts_with('-') ? "-" : "") + FormOf(text));
  Scores scores;
  for (const std::string& form : forms)
    scores.push_back(std::ranges::count(forms, form) == 1 ? 1 : 0);
  return scores;
}

// The chance to win with the boxes of the highest score; who sees no difference guesses.
double Win(const Scores& scores, int right, int boxes) {
  const double best = *std::ranges::max_element(scores);
  const auto candidates = std::ranges::count(scores, best);
  if (candidates == static_cast<long>(scores.size())) return 1.0 / boxes;
  const bool among = right >= 0 && scores[static_cast<std::size_t>(right)] == best;
  return among ? 1.0 / static_cast<double>(candidates) : 0;
}

Scores Negated(Scores scores) {
  for (double& score : scores) score = -score;
  return scores;
}

}  // namespace

void Habits::Add(const std::vector<std::string>& texts, const std::vector<std::string>& values,
                 int right, int boxes) {
  Scores lengths;
  for (const std::string& text : texts) lengths.push_back(double(Comparable(text).size()));
  const Scores differences = Differences(texts);
  const Scores scores[] = {lengths, Values(texts, values), Negated(differences), differences,
                           LoneForms(texts)};
  for (std::size_t i = 0; i < wins.size(); ++i) wins[i] += Win(scores[i], right, boxes);
  chance += 1.0 / boxes;
  ++problems;
}

void Habits::Add(const Habits& other) {
  for (std::size_t i = 0; i < wins.size(); ++i) wins[i] += other.wins[i];
  chance += other.chance;
  problems += other.problems;
}

}  // namespace lesson_check
