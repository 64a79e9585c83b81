#include "lesson_check/judges/decimal_form.h"

#include <algorithm>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"

namespace lesson_check {

Rational DecimalIn(const std::string& text) {
  std::string digits = Trimmed(text);
  std::erase(digits, ',');
  const std::size_t point = std::min(digits.find('.'), digits.size());
  const std::size_t places = digits.size() - point;
  if (places > 0) digits.erase(point, 1);
  if (digits.empty() || digits.find_first_not_of("0123456789") != std::string::npos)
    throw Unreadable("\"" + text + "\" is no decimal number");
  mpz_class scale = 1;
  for (std::size_t i = 1; i < places; ++i) scale *= 10;
  Rational value(mpz_class(digits, 10), scale);
  value.canonicalize();
  return value;
}

std::string FlawOfDecimal(const std::string& text) {
  const std::size_t point = text.find('.');
  const std::string whole = text.substr(0, point);
  std::string grouped = whole;
  std::erase(grouped, ',');
  for (std::size_t end = grouped.size(); end > 3; grouped.insert(end, ",")) end -= 3;
  if (whole.empty()) return "begins with its point";
  if (whole.find(',') != std::string::npos && grouped != whole)
    return "has its commas in wrong places";
  if (whole.size() > 1 && whole[0] == '0') return "begins with a 0 too many";
  if (point != std::string::npos && text.ends_with('0')) return "ends with a 0 too many";
  return text.ends_with('.') ? "ends with its point" : "";
}

Rational RoundedTo(const Rational& step, const Rational& value) {
  const Rational steps = value / step + Rational(1, 2);
  mpz_class whole;
  mpz_fdiv_q(whole.get_mpz_t(), steps.get_num_mpz_t(), steps.get_den_mpz_t());
  return whole * step;
}

}  // namespace lesson_check
