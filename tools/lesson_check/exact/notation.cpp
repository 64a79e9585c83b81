#include "lesson_check/exact/notation.h"

#include <algorithm>
#include <cctype>
#include <string_view>

#include "display/exponents.h"
#include "lesson_check/exact/unreadable.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

using Kind = Expression::Kind;

constexpr char kCaret = '^';
constexpr char kBackquote = '`';
constexpr char kEnd = '\0';
const char kGap = course::tutor::Gap[0];
const char kRootSign = course::tutor::SquareRoot[0];
const char kPlusOrMinus = course::tutor::PlusOrMinus[0];

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}
bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool IsBlank(char c) {
  return c == ' ' || c == kGap;
}
bool IsMinus(char c) {
  return c == '-' || c == course::tutor::RaisedMinus[0] || c == '\xF7';
}
bool IsPlus(char c) {
  return c == '+' || c == course::tutor::RaisedPlus[0];
}
bool IsTimes(char c) {
  return c == course::tutor::Dot[0] || c == course::tutor::Times[0] || c == '*' || c == '\xB7';
}
bool IsDivided(char c) {
  return c == '/' || c == course::tutor::Divided[0];
}

Expression Node(Kind kind, std::vector<Expression> parts) {
  Expression node;
  node.kind = kind;
  node.parts = std::move(parts);
  return node;
}

class Parser {
 public:
  explicit Parser(const std::string& text) : text_(text) {}

  Expression Whole() {
    Expression result = Sum();
    if (Next() != kEnd) Fail("is not read to its end");
    return result;
  }

 private:
  [[noreturn]] void Fail(const std::string& what) const {
    throw Unreadable("\"" + text_ + "\" " + what);
  }
  char At(std::size_t i) const { return i < text_.size() ? text_[i] : kEnd; }
  // The next character that is no blank.
  char Next() {
    while (IsBlank(At(at_))) ++at_;
    return At(at_);
  }

  Expression Sum() {
    std::vector<Expression> terms;
    terms.push_back(Signed());
    while (true) {
      const char c = Next();
      if (IsPlus(c)) {
        ++at_;
        terms.push_back(Signed());
      } else if (IsMinus(c)) {
        ++at_;
        terms.push_back(Node(Kind::Minus, {Product()}));
      } else if (c == kPlusOrMinus) {
        ++at_;
        terms.push_back(Node(Kind::PlusOrMinus, {Product()}));
      } else {
        break;
      }
    }
    return terms.size() == 1 ? terms[0] : Node(Kind::Sum, std::move(terms));
  }

  Expression Signed() {
    const char c = Next();
    if (!IsMinus(c) && !IsPlus(c) && c != kPlusOrMinus) return Product();
    ++at_;
    if (IsPlus(c)) return Product();
    return Node(IsMinus(c) ? Kind::Minus : Kind::PlusOrMinus, {Product()});
  }

  Expression Product() {
    Expression product = Power();
    while (true) {
      const char c = Next();
      const bool divided = IsDivided(c);
      if (divided || IsTimes(c))
        ++at_;
      else if (!StartsFactor(c))
        return product;
      Expression factor = divided || IsTimes(c) ? SignedFactor() : Power();
      if (divided)
        product = Node(Kind::Quotient, {std::move(product), std::move(factor)});
      else if (product.kind == Kind::Product && !product.bracketed)
        product.parts.push_back(std::move(factor));
      else
        product = Node(Kind::Product, {std::move(product), std::move(factor)});
    }
  }

  // Behind a sign of multiplication a factor may carry its own minus.
  Expression SignedFactor() {
    if (!IsMinus(Next())) return Power();
    ++at_;
    return Node(Kind::Minus, {Power()});
  }

  // A digit starts no factor: two numbers side by side are a mixed number or a misprint.
  bool StartsFactor(char c) const {
    return IsLetter(c) || c == '(' || c == '[' || c == '{' || c == kBackquote || c == kRootSign;
  }

  Expression Power() {
    Expression base = Primary();
    while (At(at_) == kCaret) {
      const std::size_t end = text_.find(kCaret, at_ + 1);
      if (end == std::string::npos) Fail("has an exponent without an end");
      Expression exponent = Parser(text_.substr(at_ + 1, end - at_ - 1)).Whole();
      at_ = end + 1;
      base = Node(Kind::Power, {std::move(base), std::move(exponent)});
    }
    return base;
  }

  Expression Primary() {
    const char c = Next();
    if (IsDigit(c) || c == '.') return Number();
    if (IsLetter(c)) {
      ++at_;
      Expression letter;
      letter.kind = Kind::Letter;
      letter.letter = c;
      return letter;
    }
    if (c == '(') return Bracketed(')');
    if (c == '[') return Bracketed(']');
    if (c == '{') return Bracketed('}');
    if (c == kBackquote) return Node(Kind::Root, {Bracketed(kBackquote)});
    if (c == kRootSign) {
      ++at_;
      return Node(Kind::Root, {Power()});
    }
    Fail("has no number or letter at place " + std::to_string(at_ + 1));
  }

  Expression Bracketed(char close) {
    const char open = At(at_++);
    std::size_t end = at_;
    for (int depth = 1; depth > 0; ++end) {
      if (At(end) == kEnd) Fail("has an open bracket");
      if (At(end) == close)
        --depth;
      else if (At(end) == open)
        ++depth;
    }
    Expression inside = Parser(text_.substr(at_, end - 1 - at_)).Whole();
    inside.bracketed = true;
    at_ = end;
    return inside;
  }

  Expression Number() {
    Expression number;
    number.number = Digits();
    // 3 1/2: the blank and the "/" right behind the next digits make it a mixed number.
    std::size_t i = at_;
    while (IsBlank(At(i))) ++i;
    std::size_t slash = i;
    while (IsDigit(At(slash))) ++slash;
    if (i > at_ && slash > i && At(slash) == '/' && IsDigit(At(slash + 1))) {
      at_ = i;
      const Rational above = Digits();
      ++at_;
      const Rational below = Digits();
      if (below == 0) Fail("divides by 0");
      number.number += above / below;
    }
    return number;
  }

  // Digits with or without a decimal point.
  Rational Digits() {
    std::string digits;
    std::size_t places = 0;
    bool point = false;
    for (; IsDigit(At(at_)) || (At(at_) == '.' && !point && IsDigit(At(at_ + 1))); ++at_) {
      if (At(at_) == '.') {
        point = true;
        continue;
      }
      digits += At(at_);
      if (point) ++places;
    }
    if (digits.empty()) Fail("has a point without digits");
    Rational value(mpz_class(digits, 10), mpz_class("1" + std::string(places, '0'), 10));
    value.canonicalize();
    return value;
  }

  std::string text_;
  std::size_t at_ = 0;
};

int ExponentOf(const Expression& exponent, int sign) {
  const Rational value = ValueOf(exponent, sign).Number();
  if (value.get_den() != 1 || abs(value) > 1000)
    throw Unreadable("the exponent " + value.get_str());
  return static_cast<int>(value.get_num().get_si());
}

// Single exponent characters become marked exponents where no exponent is open.  A raised minus is
// one behind a base, and the sign of a number elsewhere.
std::string WithMarks(const std::string& text) {
  std::string marked;
  bool open = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string c(1, text[i]);
    if (text[i] == kCaret) open = !open;
    const bool sign = IsMinus(text[i]) && (marked.empty() || IsBlank(marked.back()) ||
                                           marked.back() == '(' || marked.back() == ',');
    const std::string marks = open || sign ? c : course::ExponentCharsToCarets(c);
    const bool goesOn = marks.size() > 1 && !marked.empty() && marked.back() == kCaret;
    if (goesOn) marked.pop_back();  // neighbours are one exponent
    marked += goesOn ? marks.substr(1) : marks;
  }
  return marked;
}

bool CanBeRead(const std::string& text) {
  try {
    ParseExpression(text);
    return true;
  } catch (const Unreadable&) {
    return false;
  }
}

bool HasDigit(const std::string& text) {
  return std::any_of(text.begin(), text.end(), IsDigit);
}

bool HasWord(const std::string& text) {
  return std::adjacent_find(text.begin(), text.end(), [](char a, char b) {
           return IsLetter(a) && IsLetter(b);
         }) != text.end();
}

}  // namespace

Expression ParseExpression(const std::string& text) {
  return Parser(WithMarks(text)).Whole();
}

Polynomial ValueOf(const Expression& e, int sign) {
  const auto part = [&](std::size_t i) { return ValueOf(e.parts[i], sign); };
  switch (e.kind) {
    case Kind::Number:
      return Polynomial(e.number);
    case Kind::Letter:
      return Polynomial::Letter(e.letter);
    case Kind::Minus:
      return -part(0);
    case Kind::PlusOrMinus:
      return sign > 0 ? part(0) : -part(0);
    case Kind::Quotient:
      return part(0) / part(1);
    case Kind::Power:
      return part(0).Power(ExponentOf(e.parts[1], sign));
    case Kind::Root:
      return Polynomial::Root(part(0));
    case Kind::Sum:
    case Kind::Product: {
      Polynomial value = part(0);
      for (std::size_t i = 1; i < e.parts.size(); ++i)
        value = e.kind == Kind::Sum ? value + part(i) : value * part(i);
      return value;
    }
  }
  throw Unreadable("an expression of no kind");
}

bool HasPlusOrMinus(const Expression& e) {
  return e.kind == Kind::PlusOrMinus || std::any_of(e.parts.begin(), e.parts.end(), HasPlusOrMinus);
}

Polynomial ValueOf(const std::string& text) {
  return ValueOf(ParseExpression(text));
}

std::string Trimmed(const std::string& text) {
  std::string result = text;
  std::replace(result.begin(), result.end(), kGap, ' ');
  result.erase(0, result.find_first_not_of(' '));
  result.erase(result.find_last_not_of(' ') + 1);
  return result;
}

std::string WithoutBlanks(const std::string& text) {
  std::string result = text;
  std::erase_if(result, IsBlank);
  return result;
}

std::string Comparable(const std::string& text) {
  std::string result;
  for (const char c : course::ExponentCharsToCarets(text)) {
    const char plain = c == kGap ? ' ' : c;
    if (plain == '^' && result.ends_with('^'))
      result.pop_back();
    else if (plain != ' ' || (!result.empty() && result.back() != ' '))
      result += plain;
  }
  if (result.ends_with(' ')) result.pop_back();
  return result;
}

std::vector<std::string> NumbersIn(const std::string& text) {
  std::vector<std::string> numbers;
  bool open = false;
  for (const char c : course::ExponentCharsToCarets(text)) {
    if (!IsDigit(c)) {
      open = false;
      continue;
    }
    if (!open) numbers.emplace_back();
    numbers.back() += c;
    open = true;
  }
  return numbers;
}

std::string ExpressionIn(const std::string& sentence) {
  // A word ends at a blank; an expression begins and ends with whole words, punctuation aside.
  std::vector<std::size_t> starts = {0};
  for (std::size_t i = 0; i < sentence.size(); ++i)
    if (sentence[i] == ' ') starts.push_back(i + 1);
  starts.push_back(sentence.size() + 1);
  for (std::size_t words = starts.size() - 1; words >= 1; --words) {
    for (std::size_t first = 0; first + words < starts.size(); ++first) {
      std::string part = sentence.substr(starts[first], starts[first + words] - 1 - starts[first]);
      while (!part.empty() && std::string_view("?.:,").find(part.back()) != std::string_view::npos)
        part.pop_back();
      if (HasDigit(part) && !HasWord(part) && CanBeRead(part)) return part;
    }
  }
  throw Unreadable("there is no expression in \"" + sentence + "\"");
}

}  // namespace lesson_check
