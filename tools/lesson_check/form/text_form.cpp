#include "lesson_check/form/text_form.h"

#include <algorithm>
#include <numeric>
#include <set>
#include <string_view>

#include "lesson_check/form/tokens.h"

namespace lesson_check {
namespace {

using Tokens = std::vector<Token>;
using Kind = Token::Kind;

bool IsSign(const Token& token) {
  return token.Is("+") || token.Is("-");
}

// A window of three tokens; what lies outside is empty.
struct Window {
  const Token &before, &here, &next;
};

using Rule = bool (*)(const Window& window);

struct NamedRule {
  const char* name;
  Rule broken;
};

bool IsLoneLetter(const Token& token) {
  return token.kind == Kind::Letters && token.text.size() == 1;
}

constexpr NamedRule kRules[] = {
    {"a sign behind a sign", [](const Window& w) { return IsSign(w.before) && IsSign(w.here); }},
    {"a zero with a minus sign",
     [](const Window& w) { return w.before.Is("-") && w.here.Is("0") && w.here.tight; }},
    {"a denominator of 1", [](const Window& w) { return w.before.Is("/") && w.here.Is("1"); }},
    {"a division by 0", [](const Window& w) { return w.before.Is("/") && w.here.Is("0"); }},
    {"an exponent of 1",
     [](const Window& w) { return w.before.Is("^") && w.here.Is("1") && w.next.Is("^"); }},
    {"a factor of 0",
     [](const Window& w) { return w.here.Is("0") && IsLoneLetter(w.next) && w.next.tight; }},
    {"a factor of 1",
     [](const Window& w) {
       return w.here.Is("1") && IsLoneLetter(w.next) && w.next.tight && !w.before.Is("/");
     }},
    {"a number that begins with 0",
     [](const Window& w) {
       return w.here.kind == Kind::Number && w.here.text.size() > 1 && w.here.text[0] == '0' &&
              w.here.text[1] != '.' && !w.before.Is(":");
     }},
    {"an empty bracket", [](const Window& w) { return w.before.Is("(") && w.here.Is(")"); }},
};

bool BracketsMatch(const Tokens& tokens) {
  constexpr std::string_view kOpen = "([{";
  constexpr std::string_view kClose = ")]}";
  std::string open;
  for (const Token& token : tokens) {
    const char c = token.text[0];
    if (kOpen.find(c) != std::string_view::npos) open += c;
    const std::size_t close = kClose.find(c);
    if (close == std::string_view::npos) continue;
    if (open.empty() || open.back() != kOpen[close]) return false;
    open.pop_back();
  }
  return open.empty();
}

// "(1, 5)": the course writes a point without a blank.
bool HasBlankInPair(const Tokens& tokens) {
  for (std::size_t i = 2; i < tokens.size(); ++i) {
    const Token& comma = tokens[i - 1];
    const bool number = tokens[i].kind == Kind::Number || IsSign(tokens[i]);
    if (!comma.Is(",") || tokens[i].tight || !number) continue;
    if (tokens[i - 2].kind != Kind::Number) continue;
    const std::size_t first = i >= 4 && IsSign(tokens[i - 3]) ? i - 4 : i - 3;
    if (first < tokens.size() && tokens[first].Is("(")) return true;
  }
  return false;
}

// "5 or 5".
bool RepeatsItself(const Tokens& tokens) {
  std::set<std::string> parts;
  std::string part;
  for (const Token& token : tokens) {
    if (!token.Is("or") && !token.Is("and")) {
      part += token.text + " ";
      continue;
    }
    if (!parts.insert(part).second) return true;
    part.clear();
  }
  return parts.contains(part);
}

}  // namespace

std::vector<std::string> FormFaults(const std::string& text) {
  const Tokens tokens = TokensOf(text);
  std::vector<std::string> faults;
  const Token none;
  for (const NamedRule& rule : kRules) {
    for (std::size_t i = 0; i < tokens.size(); ++i) {
      const Window window{i == 0 ? none : tokens[i - 1], tokens[i],
                          i + 1 == tokens.size() ? none : tokens[i + 1]};
      if (!rule.broken(window)) continue;
      faults.emplace_back(rule.name);
      break;
    }
  }
  if (!BracketsMatch(tokens)) faults.emplace_back("a bracket without its other");
  if (HasBlankInPair(tokens)) faults.emplace_back("a blank in a pair of coordinates");
  if (RepeatsItself(tokens)) faults.emplace_back("the same twice");
  if (std::ranges::count(tokens, std::string("^"), &Token::text) % 2 != 0)
    faults.emplace_back("an exponent without an end");
  return faults;
}

std::string FlawOfFractions(const std::string& text) {
  constexpr std::size_t kMostDigits = 15;
  const Tokens tokens = TokensOf(text);
  for (std::size_t i = 2; i < tokens.size(); ++i) {
    const std::string& above = tokens[i - 2].text;
    const std::string& below = tokens[i].text;
    const bool whole = tokens[i - 2].kind == Kind::Number && tokens[i].kind == Kind::Number &&
                       (above + below).find('.') == std::string::npos;
    if (!tokens[i - 1].Is("/") || !whole || above.size() + below.size() > kMostDigits) continue;
    const long numerator = std::stol(above);
    const long denominator = std::stol(below);
    if (numerator >= denominator) return "hides a whole number";
    if (std::gcd(numerator, denominator) != 1) return "can be reduced";
  }
  return "";
}

namespace {

// Letters that stand alone in a line of mathematics; nothing for a line of words.
std::string LettersOfMathematics(const Tokens& tokens) {
  std::string letters;
  for (const Token& token : tokens) {
    if (token.kind != Kind::Letters) continue;
    if (token.text.size() > 2) return "";
    letters += token.text;
  }
  return letters;
}

// The letter behind "for", "of" or "is", where a sentence or a clause ends.
char AskedLetter(const Tokens& tokens) {
  for (std::size_t i = 1; i < tokens.size(); ++i) {
    const bool asks = tokens[i - 1].Is("for") || tokens[i - 1].Is("of");
    const bool ends = i + 1 == tokens.size() || tokens[i + 1].kind == Kind::Sign ||
                      tokens[i + 1].Is("in") || tokens[i + 1].Is("if") || tokens[i + 1].Is("when");
    if (asks && ends && IsLoneLetter(tokens[i])) return tokens[i].text[0];
  }
  return 0;
}

}  // namespace

std::string FlawOfAskedLetter(const std::vector<std::string>& question) {
  std::string letters;
  char asked = 0;
  for (const std::string& line : question) {
    const Tokens tokens = TokensOf(line);
    letters += LettersOfMathematics(tokens);
    if (const char letter = AskedLetter(tokens)) asked = letter;
  }
  if (asked == 0 || letters.empty() || letters.find(asked) != std::string::npos) return "";
  return std::string("the question asks for ") + asked + ", which does not occur";
}

}  // namespace lesson_check
