#include "lesson_check/form/units.h"

#include <algorithm>
#include <set>
#include <string_view>

#include "lesson_check/form/tokens.h"

namespace lesson_check {
namespace {

using Tokens = std::vector<Token>;
using Kind = Token::Kind;

struct Unit {
  std::string_view one;
  std::string_view many;
  std::string_view measures;
};

// Quantities that are never negative.
constexpr Unit kUnits[] = {
    {"second", "seconds", "time"},
    {"minute", "minutes", "time"},
    {"hour", "hours", "time"},
    {"day", "days", "time"},
    {"week", "weeks", "time"},
    {"month", "months", "time"},
    {"year", "years", "time"},
    {"inch", "inches", "length"},
    {"foot", "feet", "length"},
    {"yard", "yards", "length"},
    {"mile", "miles", "length"},
    {"centimeter", "centimeters", "length"},
    {"meter", "meters", "length"},
    {"kilometer", "kilometers", "length"},
    {"mph", "mph", "speed"},
    {"ounce", "ounces", "weight"},
    {"pound", "pounds", "weight"},
    {"gram", "grams", "weight"},
    {"kilogram", "kilograms", "weight"},
    {"pint", "pints", "volume"},
    {"quart", "quarts", "volume"},
    {"gallon", "gallons", "volume"},
    {"liter", "liters", "volume"},
    {"penny", "pennies", "coins"},
    {"nickel", "nickels", "coins"},
    {"dime", "dimes", "coins"},
    {"quarter", "quarters", "coins"},
    {"cent", "cents", "money"},
    {"dollar", "dollars", "money"},
};

const Unit* UnitOf(const Token& word) {
  const auto found = std::ranges::find_if(
      kUnits, [&](const Unit& unit) { return word.text == unit.one || word.text == unit.many; });
  return found == std::end(kUnits) ? nullptr : found;
}

// A number with a unit behind it.
struct Quantity {
  const Unit* unit = nullptr;
  bool negative = false;
  bool fraction = false;  // less than one, as 1/2
  bool mixed = false;     // as 1 1/2
  bool plural = false;    // as it is written
  bool rate = false;      // "miles per hour"
  std::string number;     // its whole part, or the number above
};

// The quantity whose unit is the token at the place.
Quantity QuantityAt(const Tokens& tokens, std::size_t at, const Unit& unit) {
  Quantity quantity;
  quantity.unit = &unit;
  quantity.plural = tokens[at].text == unit.many;
  quantity.rate = at + 1 < tokens.size() && tokens[at + 1].Is("per");
  std::size_t first = at - 1;
  if (first >= 2 && tokens[first - 1].Is("/")) {
    first -= 2;
    quantity.fraction = true;
    if (first >= 1 && tokens[first - 1].kind == Kind::Number) {
      --first;
      quantity.fraction = false;
      quantity.mixed = true;
    }
  }
  quantity.number = tokens[first].text;
  // A minus sign, as against the dash of "5-3 hours".
  quantity.negative =
      first >= 1 && tokens[first - 1].Is("-") && tokens[first].tight && !tokens[first - 1].tight;
  return quantity;
}

std::vector<Quantity> QuantitiesIn(const Tokens& tokens) {
  std::vector<Quantity> quantities;
  for (std::size_t i = 1; i < tokens.size(); ++i) {
    const Unit* unit = UnitOf(tokens[i]);
    if (unit != nullptr && tokens[i - 1].kind == Kind::Number && !tokens[i].tight)
      quantities.push_back(QuantityAt(tokens, i, *unit));
  }
  return quantities;
}

bool IsWholeOne(const Quantity& quantity) {
  return quantity.number == "1" && !quantity.fraction && !quantity.mixed;
}

bool HasHours(const std::vector<Quantity>& quantities) {
  return std::ranges::any_of(quantities, [](const Quantity& q) { return q.unit->one == "hour"; });
}

bool HasHourOfMinutes(const std::vector<Quantity>& quantities) {
  return std::ranges::any_of(quantities, [](const Quantity& q) {
    return q.unit->one == "minute" && !q.fraction && std::stod(q.number) >= 60;
  });
}

std::string FaultOf(const Quantity& quantity) {
  const std::string amount = (quantity.negative ? "-" : "") + quantity.number;
  const std::string written =
      amount + " " + std::string(quantity.plural ? quantity.unit->many : quantity.unit->one);
  if (quantity.negative) return "has " + written + ", less than nothing";
  if (quantity.number == "0" && !quantity.fraction) return "has " + written;
  const bool invariable = quantity.unit->one == quantity.unit->many || quantity.fraction;
  if (!invariable && IsWholeOne(quantity) == quantity.plural)
    return "has " + written + ", which is not the right number of the word";
  return "";
}

}  // namespace

std::vector<std::string> UnitFaults(const std::string& text) {
  const std::vector<Quantity> quantities = QuantitiesIn(TokensOf(text));
  std::vector<std::string> faults;
  for (const Quantity& quantity : quantities) {
    std::string fault = FaultOf(quantity);
    if (!fault.empty()) faults.push_back(std::move(fault));
  }
  if (HasHours(quantities) && HasHourOfMinutes(quantities))
    faults.emplace_back("has an hour of minutes beside hours");
  return faults;
}

std::vector<std::string> UnitFaultsAmong(const std::vector<std::string>& choices) {
  std::set<std::string> measures;
  bool hours = false;
  bool hourOfMinutes = false;
  for (const std::string& choice : choices) {
    const std::vector<Quantity> quantities = QuantitiesIn(TokensOf(choice));
    hours = hours || HasHours(quantities);
    hourOfMinutes = hourOfMinutes || (HasHourOfMinutes(quantities) && !HasHours(quantities));
    std::string measured = "no unit";
    if (!quantities.empty())
      measured = quantities[0].rate ? "speed" : std::string(quantities[0].unit->measures);
    measures.insert(measured);
  }
  std::vector<std::string> faults;
  if (measures.size() > 1) {
    std::string list;
    for (const std::string& measured : measures) list += (list.empty() ? "" : ", ") + measured;
    faults.push_back("the choices differ in what they measure: " + list);
  }
  if (hours && hourOfMinutes)
    faults.emplace_back("one choice counts hours, another an hour and more in minutes");
  return faults;
}

}  // namespace lesson_check
