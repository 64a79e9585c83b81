#include "lesson_check/form/tokens.h"

#include "lesson_check/exact/notation.h"

namespace lesson_check {
namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}
bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// Behind the number that begins at the place: "3.5" is one, the full stop in "3." is not its part.
std::size_t EndOfNumber(const std::string& text, std::size_t at) {
  while (at < text.size() && IsDigit(text[at])) ++at;
  if (at + 1 < text.size() && text[at] == '.' && IsDigit(text[at + 1])) {
    ++at;
    while (at < text.size() && IsDigit(text[at])) ++at;
  }
  return at;
}

std::size_t EndOfLetters(const std::string& text, std::size_t at) {
  while (at < text.size() && IsLetter(text[at])) ++at;
  return at;
}

}  // namespace

std::vector<Token> TokensOf(const std::string& text) {
  constexpr char kPrintedMinus = '\xF7';
  const std::string plain = Comparable(text);
  std::vector<Token> tokens;
  bool tight = false;
  for (std::size_t at = 0; at < plain.size();) {
    if (plain[at] == ' ') {
      tight = false;
      ++at;
      continue;
    }
    Token token;
    std::size_t end = at + 1;
    if (IsDigit(plain[at])) {
      token.kind = Token::Kind::Number;
      end = EndOfNumber(plain, at);
    } else if (IsLetter(plain[at])) {
      token.kind = Token::Kind::Letters;
      end = EndOfLetters(plain, at);
    }
    token.text = plain[at] == kPrintedMinus ? "-" : plain.substr(at, end - at);
    token.tight = tight;
    tokens.push_back(std::move(token));
    tight = true;
    at = end;
  }
  return tokens;
}

std::string FormOf(const std::string& text) {
  std::string form;
  bool afterSign = true;  // where a minus belongs to a number
  for (const Token& token : TokensOf(text)) {
    const bool minus = token.Is("-");
    if (!form.empty() && !token.tight) form += ' ';
    if (token.kind == Token::Kind::Number)
      form += '0';
    else if (token.kind == Token::Kind::Letters && token.text.size() == 1)
      form += 'x';
    else if (minus)
      form += afterSign ? "" : "+";
    else
      form += token.text;
    afterSign = token.kind == Token::Kind::Sign && !token.Is(")") && !token.Is("^");
  }
  return form;
}

}  // namespace lesson_check
