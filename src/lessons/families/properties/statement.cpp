#include "lessons/families/properties/statement.h"

#include <algorithm>
#include <array>

#include "mathkit/tutor_codes.h"

namespace course::properties {
namespace {

// What an equation is made of.
struct Recipe {
  const Operation& operation;
  bool altered;
  bool other;  // the second of two forms
  Fraction a, b, c;

  char Sign() const { return operation.sign; }
  // Of the operation that the property would need.
  char SignUsed() const { return altered ? operation.undoing : operation.sign; }
  Fraction Identity() const { return {operation.Identity()}; }
  Fraction Inverse() const { return operation.isProduct ? Fraction{1} / a : Fraction{} - a; }
  // What a student might take for the inverse.
  Fraction WrongInverse() const { return operation.isProduct ? Fraction{} - a : a; }
};

using Way = std::vector<Step>;

Side One(const Fraction& x) {
  return {{x}, ""};
}
Side Pair(const Fraction& x, char sign, const Fraction& y) {
  return {{x, y}, {sign}};
}
// Three numbers with the same operation twice.
Side Three(Grouping grouping, char sign, const Fraction& x, const Fraction& y, const Fraction& z) {
  return {{x, y, z}, std::string(2, sign), grouping};
}

Way NewOrderOfTwo(const Recipe& r) {
  return {{Pair(r.a, r.SignUsed(), r.b)}, {Pair(r.b, r.SignUsed(), r.a), kCommutative}};
}

// Two numbers in the parentheses change places, or the parentheses and the third number do.
Way NewOrderOfThree(const Recipe& r) {
  const char sign = r.SignUsed();
  if (r.other)
    return {{Three(Grouping::Last, sign, r.a, r.b, r.c)},
            {Three(Grouping::First, sign, r.b, r.c, r.a), kCommutative}};
  return {{Three(Grouping::First, sign, r.a, r.b, r.c)},
          {Three(Grouping::First, sign, r.b, r.a, r.c), kCommutative}};
}

Way NewGrouping(const Recipe& r) {
  const char sign = r.SignUsed();
  return {{Three(Grouping::First, sign, r.a, r.b, r.c)},
          {Three(Grouping::Last, sign, r.a, r.b, r.c), kAssociative}};
}

// The second form stays true with differences and quotients: it is never altered.
Way NewOrderAndGrouping(const Recipe& r) {
  const char sign = r.SignUsed();
  if (r.altered)
    return {{Three(Grouping::First, sign, r.a, r.b, r.c)},
            {Three(Grouping::Last, sign, r.b, r.a, r.c), kAssociative}};
  if (r.other)
    return {{Three(Grouping::First, sign, r.a, r.b, r.c)},
            {Three(Grouping::Last, sign, r.a, r.b, r.c), kAssociative},
            {Three(Grouping::Last, sign, r.a, r.c, r.b), kCommutative},
            {Three(Grouping::First, sign, r.a, r.c, r.b), kAssociative}};
  return {{Three(Grouping::First, sign, r.a, r.b, r.c)},
          {Three(Grouping::First, sign, r.b, r.a, r.c), kCommutative},
          {Three(Grouping::Last, sign, r.b, r.a, r.c), kAssociative}};
}

// A number with a special one, in either order, and what comes out.
Way PairWith(const Fraction& special, const Fraction& result, Property property, const Recipe& r) {
  const Side pair = r.other ? Pair(special, r.Sign(), r.a) : Pair(r.a, r.Sign(), special);
  return {{pair}, {One(result), property}};
}

// Altered: a + 0 = 0, a x 1 = 1.
Way WithIdentity(const Recipe& r) {
  return PairWith(r.Identity(), r.altered ? r.Identity() : r.a, kIdentity, r);
}

// Altered: a x 0 = a.
Way WithZero(const Recipe& r) {
  return PairWith({0}, r.altered ? r.a : Fraction{0}, kZero, r);
}

// Altered: a + a = 0, a x (-a) = 1.
Way WithInverse(const Recipe& r) {
  return PairWith(r.altered ? r.WrongInverse() : r.Inverse(), r.Identity(), kInverse, r);
}

// (a + 0) + b = b + a; altered: (a + 0) - b = b - a.
Way IdentityInNewOrder(const Recipe& r) {
  const Fraction e = r.Identity();
  const char sign = r.SignUsed();
  Side start = {{r.a, e, r.b}, {r.Sign(), sign}, Grouping::First};
  if (r.other) start = {{r.a, r.b, e}, {sign, r.Sign()}, Grouping::Last};
  const Side end = Pair(r.b, sign, r.a);
  if (r.altered) return {{start}, {end, kCommutative}};
  return {{start}, {Pair(r.a, sign, r.b), kIdentity}, {end, kCommutative}};
}

// a + (-a) + b = b; altered: a + a + b = b.
Way InverseThenIdentity(const Recipe& r) {
  const Fraction inverse = r.altered ? r.WrongInverse() : r.Inverse();
  const Fraction& first = r.other ? inverse : r.a;
  const Fraction& second = r.other ? r.a : inverse;
  const Side start = Three(Grouping::None, r.Sign(), first, second, r.b);
  if (r.altered) return {{start}, {One(r.b), kIdentity}};
  return {{start}, {Pair(r.Identity(), r.Sign(), r.b), kInverse}, {One(r.b), kIdentity}};
}

struct Kind {
  PropertySet properties;
  Way (*way)(const Recipe&);
  bool undoes = false;  // altered, it is one of differences or quotients
};

constexpr PropertySet kOrderAndGrouping = kCommutative | kAssociative;
constexpr PropertySet kOrderAndIdentity = kCommutative | kIdentity;
constexpr PropertySet kInverseAndIdentity = kInverse | kIdentity;

constexpr Kind kOrderOfTwoKind = {kCommutative, NewOrderOfTwo, true};
constexpr Kind kOrderOfThreeKind = {kCommutative, NewOrderOfThree, true};
constexpr Kind kGroupingKind = {kAssociative, NewGrouping, true};
constexpr Kind kOrderAndGroupingKind = {kOrderAndGrouping, NewOrderAndGrouping, true};
constexpr Kind kIdentityKind = {kIdentity, WithIdentity};
constexpr Kind kZeroKind = {kZero, WithZero};
constexpr Kind kInverseKind = {kInverse, WithInverse};
constexpr Kind kOrderAndIdentityKind = {kOrderAndIdentity, IdentityInNewOrder, true};
constexpr Kind kInverseAndIdentityKind = {kInverseAndIdentity, InverseThenIdentity};

// Three flags choose one of eight kinds.
using Kinds = std::array<Kind, 8>;
constexpr Kinds kSums = {kOrderOfTwoKind,       kOrderOfThreeKind,      kGroupingKind,
                         kOrderAndGroupingKind, kIdentityKind,          kOrderAndIdentityKind,
                         kInverseKind,          kInverseAndIdentityKind};
// The last kind is one of two.
constexpr Kinds kProducts = {kOrderOfTwoKind,       kOrderOfThreeKind,    kGroupingKind,
                             kOrderAndGroupingKind, kIdentityKind,        kZeroKind,
                             kInverseKind,          kOrderAndIdentityKind};
constexpr std::size_t kFirstSpecialKind = 4;
constexpr std::size_t kLastKind = 7;

// Whether the numbers 1 to 9 suit the equation.
bool Fit(const Operation& operation, bool hasDifferences, int a, int b, int c) {
  if (a == b || a == c || b == c) return false;  // what changed places would not be seen
  if (operation.isProduct && (a == 1 || b == 1 || c == 1)) return false;  // an identity by chance
  if (!hasDifferences) return true;
  constexpr int kLargestDividend = 99;  // worked out in the head
  if (operation.isProduct) return b % c == 0 && a * b * c <= kLargestDividend;
  return b > c && a > b + c;  // no negative numbers on the first side
}

}  // namespace

const Operation kAddition = {'+', '-', false};
const Operation kMultiplication = {tutor::Times[0], tutor::Divided[0], true};

std::string Statement::Text() const {
  return SideText(Left()) + " = " + SideText(Right());
}

Statement DrawStatement(const Operation& operation, RandomStream& random) {
  std::size_t index = 0;
  for (int flag = 0; flag < 3; ++flag)
    index = 2 * index + static_cast<std::size_t>(random.Rand(0, 1));
  Kinds kinds = operation.isProduct ? kProducts : kSums;
  if (operation.isProduct && random.Rand(0, 1) == 1) kinds[kLastKind] = kInverseAndIdentityKind;
  const Kind& kind = kinds[index];
  const int firstFlag = random.Rand(0, 1);
  const int secondFlag = random.Rand(0, 1);
  const bool altered = firstFlag == 1 && secondFlag == 1;  // as often as any other box is right
  const bool other = random.Rand(0, 1) == 1;
  const bool mirrored = random.Rand(0, 1) == 1;
  const bool hasDifferences = altered && kind.undoes;
  int a = 0;
  int b = 0;
  int c = 0;
  do {  // 3 draws in a hundred are accepted where a quotient is to come out, 5 with differences
    a = random.Rand(1, 9);
    b = random.Rand(1, 9);
    c = random.Rand(1, 9);
  } while (!Fit(operation, hasDifferences, a, b, c));
  if (hasDifferences && operation.isProduct) a *= b * c;

  Statement statement;
  statement.way = kind.way({operation, altered, other, {a}, {b}, {c}});
  statement.mirrored = mirrored;
  statement.properties = kind.properties;
  statement.isTrue = !altered;
  if (index < kFirstSpecialKind)
    statement.rivals = {kCommutative, kAssociative, kOrderAndGrouping, kIdentity};
  else
    for (std::size_t i = kFirstSpecialKind; i <= kLastKind; ++i)
      statement.rivals.push_back(kinds[i].properties);
  // Who sees reciprocals and a factor of 1 does not think of 0.
  if (operation.isProduct && kind.properties == kInverseAndIdentity)
    std::ranges::replace(statement.rivals, PropertySet{kZero}, kCommutative | kInverse);
  return statement;
}

}  // namespace course::properties
