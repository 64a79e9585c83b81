// Distance, rate and time of something that moves, maybe with or against a wind or a current.
#include <optional>
#include <sstream>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "lesson_check/judges/number_form.h"

namespace lesson_check {
namespace {

// Words without the punctuation behind them.
std::vector<std::string> WordsOf(const std::string& text) {
  std::istringstream stream(Trimmed(text));
  std::vector<std::string> words;
  for (std::string word; stream >> word;) {
    word.erase(word.find_last_not_of(".,?") + 1);
    words.push_back(word);
  }
  return words;
}

bool IsNumber(const std::string& word) {
  return !word.empty() && word.find_first_not_of("-0123456789/") == std::string::npos;
}

enum class Unit { Mile, Mph, Minute };  // an hour is 60 minutes

struct Quantity {
  Unit unit = Unit::Mile;
  Rational amount;
  std::size_t place = 0;  // of its unit among the words
};

std::optional<Quantity> QuantityOfUnit(const std::string& word) {
  if (word == "mph") return Quantity{Unit::Mph, 1};
  if (word == "mile" || word == "miles") return Quantity{Unit::Mile, 1};
  if (word == "hour" || word == "hours") return Quantity{Unit::Minute, 60};
  if (word == "minute" || word == "minutes") return Quantity{Unit::Minute, 1};
  return {};
}

// Every number with a unit behind it.
std::vector<Quantity> QuantitiesOf(const std::vector<std::string>& words) {
  std::vector<Quantity> quantities;
  for (std::size_t i = 1; i < words.size(); ++i) {
    std::optional<Quantity> quantity = QuantityOfUnit(words[i]);
    if (!quantity || !IsNumber(words[i - 1])) continue;
    const bool mixed =
        i >= 2 && IsNumber(words[i - 2]) && words[i - 1].find('/') != std::string::npos;
    quantity->amount *= NumberIn((mixed ? words[i - 2] + " " : "") + words[i - 1]);
    quantity->place = i;
    quantities.push_back(*quantity);
  }
  return quantities;
}

struct Motion {
  std::optional<Rational> distance;  // miles
  std::optional<Rational> rate;      // mph, in still air or water
  std::optional<Rational> minutes;
  Rational drift = 0;     // mph; negative against it
  std::string driftName;  // "wind" or "current"
  Unit asked = Unit::Mile;
};

Unit AskedBy(const std::string& text) {
  if (text.find("How far") != std::string::npos) return Unit::Mile;
  if (text.find("How long") != std::string::npos) return Unit::Minute;
  if (text.find("What is") != std::string::npos &&
      text.find("rate", text.find("What is")) != std::string::npos)
    return Unit::Mph;
  throw Unreadable("\"" + text + "\" asks for nothing known");
}

Motion ReadMotion(const course::Problem& problem) {
  std::string text;
  for (const std::string& line : problem.question) text += Trimmed(line) + " ";
  const std::vector<std::string> words = WordsOf(text);
  Motion motion;
  motion.asked = AskedBy(text);
  // "with a current of 5 mph": the rate behind these words is the drift's.
  std::size_t driftAt = words.size();
  int direction = 0;
  for (std::size_t i = 0; i + 2 < words.size(); ++i) {
    if (words[i + 2] != "wind" && words[i + 2] != "current") continue;
    driftAt = i;
    motion.driftName = words[i + 2];
    direction = words[i] == "with" ? 1 : words[i] == "against" ? -1 : 0;
    if (direction == 0) throw Unreadable("a drift neither with nor against: " + text);
  }
  for (const Quantity& quantity : QuantitiesOf(words)) {
    if (quantity.unit == Unit::Mile)
      motion.distance = quantity.amount;
    else if (quantity.unit == Unit::Minute)
      motion.minutes = motion.minutes.value_or(0) + quantity.amount;
    else if (quantity.place > driftAt)
      motion.drift = direction * quantity.amount;
    else
      motion.rate = quantity.amount;
  }
  if (direction != 0 && motion.drift == 0) throw Unreadable("a drift without a rate: " + text);
  return motion;
}

std::string ValueText(Unit unit, const Rational& amount) {
  constexpr const char* kNames[] = {" miles", " mph", " minutes"};
  return amount.get_str() + kNames[static_cast<int>(unit)];
}

std::string ValueOfChoice(const std::string& choice) {
  const std::vector<Quantity> quantities = QuantitiesOf(WordsOf(choice));
  if (quantities.empty()) throw Unreadable("\"" + choice + "\" has no number with a unit");
  Rational amount = 0;
  for (const Quantity& quantity : quantities) {
    if (quantity.unit != quantities[0].unit) throw Unreadable("\"" + choice + "\" mixes its units");
    amount += quantity.amount;
  }
  return ValueText(quantities[0].unit, amount);
}

// Collects what the mistakes lead to; what a division by 0 stands in the way of is left out.
class MistakeList {
 public:
  MistakeList(Unit unit, Reading& reading) : unit_(unit), reading_(reading) {}
  void Add(const std::string& name, const Rational& value) {
    reading_.mistakes[name] = {ValueText(unit_, unit_ == Unit::Minute ? value * 60 : value)};
  }
  void AddQuotient(const std::string& name, const Rational& above, const Rational& below,
                   const Rational& less = 0) {
    if (below != 0) Add(name, above / below - less);
  }
  // One that is not whole is rounded, and the name tells it.
  void AddRoundedQuotient(const std::string& name, const Rational& above, const Rational& below,
                          const Rational& less) {
    if (below == 0) return;
    const Rational value = above / below - less;
    const Rational half = value + Rational(1, 2);
    mpz_class rounded;
    mpz_fdiv_q(rounded.get_mpz_t(), half.get_num_mpz_t(), half.get_den_mpz_t());
    if (value.get_den() == 1)
      Add(name, value);
    else
      Add(name + " and rounds", Rational(rounded));
  }

 private:
  Unit unit_;
  Reading& reading_;
};

// The minutes beside the full hours of a time, and readings of them.
struct Hours {
  explicit Hours(const Rational& minutes) {
    const mpz_class whole = minutes.get_num() / (minutes.get_den() * 60);
    full = whole;
    rest = minutes - full * 60;
  }
  Rational full;
  Rational rest;  // minutes
  Rational AsHundredths() const { return full + rest / 100; }
};

// Digit by digit from the right, with what a student makes of two digits.
enum class Slip { SumWithoutCarry, DifferenceUpward };

Rational Slipped(Slip slip, const Rational& a, const Rational& b) {
  mpz_class x = a.get_num();
  mpz_class y = b.get_num();
  mpz_class result = 0;
  for (mpz_class place = 1; x > 0 || y > 0; place *= 10, x /= 10, y /= 10) {
    const mpz_class first = x % 10;
    const mpz_class second = y % 10;
    mpz_class digit = first + second;
    if (slip == Slip::DifferenceUpward) digit = abs(first - second);
    const bool leading = x <= 9 && y <= 9;  // a leading sum is written whole
    if (slip == Slip::SumWithoutCarry && !leading) digit %= 10;
    result += place * digit;
  }
  return result;
}

Rational ProductWithoutCarry(const Rational& number, const Rational& factor) {
  mpz_class n = number.get_num();
  mpz_class result = 0;
  for (mpz_class place = 1; n > 0; place *= 10, n /= 10) {
    mpz_class digit = n % 10 * factor.get_num();
    if (n > 9) digit %= 10;  // the leading product is written whole
    result += place * digit;
  }
  return result;
}

// subtracted: whether the drift should be.
std::string DriftTurned(const Motion& m, bool subtracted) {
  return (subtracted ? "adds the " + m.driftName + " in place of subtracting it"
                     : "subtracts the " + m.driftName + " in place of adding it");
}

void AddMistakesAtDistance(const Motion& m, MistakeList& list) {
  const Rational time = *m.minutes / 60;
  const Hours hours(*m.minutes);
  const Rational real = *m.rate + m.drift;
  if (m.drift != 0) {
    list.Add("ignores the " + m.driftName, *m.rate * time);
    list.Add(DriftTurned(m, m.drift < 0), (*m.rate - m.drift) * time);
    list.Add("counts the " + m.driftName + " for one hour only", *m.rate * time + m.drift);
  }
  if (hours.rest != 0) {
    list.Add("leaves the minutes out", real * hours.full);
    list.Add("counts the minutes as a full hour", real * (hours.full + 1));
    list.Add("reads the minutes as hundredths of an hour", real * hours.AsHundredths());
  } else {
    list.Add("forgets to carry", ProductWithoutCarry(real, time));
    list.Add("counts one hour too many", real * (time + 1));
  }
  list.AddQuotient("divides in place of multiplying", real, time);
  list.Add("adds the rate and the time", real + time);
}

void AddMistakesAtRate(const Motion& m, MistakeList& list) {
  const Rational time = *m.minutes / 60;
  const Hours hours(*m.minutes);
  const Rational real = *m.distance / time;
  if (m.drift != 0) {
    list.Add("ignores the " + m.driftName, real);
    list.Add(DriftTurned(m, m.drift > 0), real + m.drift);
    list.Add("counts the " + m.driftName + " for one hour only", (*m.distance - m.drift) / time);
  }
  if (m.drift < 0) list.Add("forgets to carry", Slipped(Slip::SumWithoutCarry, real, -m.drift));
  if (m.drift > 0)
    list.Add("takes the smaller digit from the larger in each column",
             Slipped(Slip::DifferenceUpward, real, m.drift));
  if (hours.rest != 0) {
    list.AddRoundedQuotient("leaves the minutes out", *m.distance, hours.full, m.drift);
    list.AddRoundedQuotient("counts the minutes as a full hour", *m.distance, hours.full + 1,
                            m.drift);
    list.AddRoundedQuotient("reads the minutes as hundredths of an hour", *m.distance,
                            hours.AsHundredths(), m.drift);
  } else if (m.drift == 0) {
    list.AddQuotient("counts one hour too many", *m.distance, time + 1);
    list.AddQuotient("counts one hour too few", *m.distance, time - 1);
  }
}

void AddMistakesAtTime(const Motion& m, MistakeList& list) {
  const Rational real = *m.rate + m.drift;
  const Hours hours(*m.distance / real * 60);
  if (m.drift != 0) {
    list.AddQuotient("ignores the " + m.driftName, *m.distance, *m.rate);
    list.AddQuotient(DriftTurned(m, m.drift < 0), *m.distance, *m.rate - m.drift);
  }
  if (hours.rest != 0) {
    list.Add("counts the minutes to the next full hour", hours.full + 1 - hours.rest / 60);
    list.Add("leaves the part of an hour out", hours.full);
    list.Add("rounds up to a full hour", hours.full + 1);
  }
  list.AddQuotient("divides the rate by the distance", real, *m.distance);
}

Rational AnswerOf(const Motion& m, Reading& reading) {
  MistakeList list(m.asked, reading);
  if (m.asked == Unit::Mile && m.rate && m.minutes) {
    AddMistakesAtDistance(m, list);
    return (*m.rate + m.drift) * *m.minutes / 60;
  }
  if (m.asked == Unit::Mph && m.distance && m.minutes && *m.minutes != 0) {
    AddMistakesAtRate(m, list);
    return *m.distance * 60 / *m.minutes - m.drift;
  }
  if (m.asked == Unit::Minute && m.distance && m.rate && *m.rate + m.drift > 0) {
    AddMistakesAtTime(m, list);
    return *m.distance * 60 / (*m.rate + m.drift);
  }
  throw Unreadable("the question does not tell enough");
}

// How far, how fast or how long something moves.
Reading ReadMotionProblem(const course::Problem& problem) {
  const Motion motion = ReadMotion(problem);
  Reading reading;
  reading.answer = ValueText(motion.asked, AnswerOf(motion, reading));
  reading.value = ValueOfChoice;
  return reading;
}

const JudgeRegistration kRegistration(ReadMotionProblem, {"Distance-Rate-Time Problems"});

}  // namespace
}  // namespace lesson_check
