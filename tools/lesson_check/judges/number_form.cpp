#include "lesson_check/judges/number_form.h"

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"

namespace lesson_check {

Rational NumberIn(const std::string& text) {
  if (text.find('.') != std::string::npos)
    throw Unreadable("the decimal point in \"" + text + "\"");
  return ValueOf(text).Number();
}

std::string FlawOfMixedNumber(const std::string& text) {
  const std::string plain = Trimmed(text);
  const std::size_t slash = plain.find('/');
  if (slash == std::string::npos) return "";
  std::size_t start = plain.find_last_of(" -", slash);
  start = start == std::string::npos ? 0 : start + 1;
  const mpz_class above(plain.substr(start, slash - start), 10);
  const mpz_class below(plain.substr(slash + 1), 10);
  if (above >= below) return "hides a whole number";
  return gcd(above, below) == 1 ? "" : "can be reduced";
}

}  // namespace lesson_check
