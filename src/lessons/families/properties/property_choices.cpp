#include "lessons/families/properties/property_choices.h"

#include <string_view>
#include <utility>

#include "engine/choices.h"

namespace course::properties {
namespace {

constexpr PropertySet kNone = 0;  // the equation is false

constexpr std::pair<Property, std::string_view> kNames[] = {{kInverse, "inverse"},
                                                            {kCommutative, "commutative"},
                                                            {kAssociative, "associative"},
                                                            {kIdentity, "identity"},
                                                            {kZero, "property of zero"}};

// Takes some properties of an equation for others.  A mistake can be made where all that it removes
// are seen and none that it adds.
struct Misreading {
  PropertySet removed;
  PropertySet added;
  std::string_view ofSums;      // its name
  std::string_view ofProducts;  // the same where the words differ; empty where they do not
};

constexpr Misreading kMisreadings[] = {
    {kCommutative | kAssociative, kIdentity, "takes identical numbers for the identity", ""},
    {kCommutative, kAssociative, "takes a new order for a new grouping", ""},
    {kCommutative, kIdentity, "takes identical numbers for the identity", ""},
    {kAssociative, kCommutative, "takes a new grouping for a new order", ""},
    {kAssociative, kIdentity, "takes identical numbers for the identity", ""},
    {kAssociative, kNone, "overlooks the new grouping", ""},
    {kCommutative, kNone, "overlooks the new order", ""},
    {kCommutative | kIdentity, kInverse, "takes every 0 for the work of opposite numbers",
     "takes every 1 for the work of reciprocals"},
    {kIdentity, kInverse, "mixes up identity and inverse", ""},
    {kInverse, kIdentity, "mixes up identity and inverse", ""},
    {kInverse, kNone, "overlooks the opposite numbers", "overlooks the reciprocals"},
    {kInverse, kCommutative, "takes opposite numbers for a new order",
     "takes reciprocals for a new order"},
    {kIdentity, kNone, "overlooks the 0 that is added", "overlooks the factor 1"},
    {kIdentity, kCommutative, "",
     "overlooks the factor 1 and sees a new order where there is none"},
    {kIdentity, kZero, "", "treats the factor 1 like a 0"},
    {kInverse, kZero, "", "expects reciprocals to give 0"},
    {kZero, kIdentity, "", "treats the factor 0 like a 1"},
    {kZero, kInverse, "", "takes every 0 for the work of opposite numbers"},
    {kNone, kIdentity, "counts the identity because of the 0",
     "counts the identity because of the 1"},
    {kNone, kInverse, "sees opposite numbers where there are none",
     "sees reciprocals where there are none"},
    {kNone, kAssociative, "sees a new grouping where there is none", ""},
    {kNone, kCommutative, "sees a new order where there is none", ""},
};

std::string NameOf(const Misreading& misreading, const Operation& operation) {
  const bool ownName = operation.isProduct && !misreading.ofProducts.empty();
  return std::string(ownName ? misreading.ofProducts : misreading.ofSums);
}

// What is seen in place of the properties; kNone where the misreading cannot be made.
PropertySet Misread(PropertySet properties, const Misreading& misreading) {
  const bool possible = (properties & misreading.removed) == misreading.removed &&
                        (properties & misreading.added) == 0;
  return possible ? (properties & ~misreading.removed) | misreading.added : kNone;
}

// The mistake, or the two in a row, that lead from one set to another.
std::string MistakeBetween(PropertySet properties, PropertySet seen, const Operation& operation) {
  for (const Misreading& misreading : kMisreadings)
    if (Misread(properties, misreading) == seen) return NameOf(misreading, operation);
  for (const Misreading& first : kMisreadings) {
    const PropertySet between = Misread(properties, first);
    if (between == kNone) continue;
    for (const Misreading& second : kMisreadings)
      if (Misread(between, second) == seen)
        return NameOf(first, operation) + " and " + NameOf(second, operation);
  }
  platform::Stop("MistakeBetween: no mistake takes " + PropertiesText(properties) + " for " +
                 PropertiesText(seen));
}

// Takes an altered equation for the true one.
std::string MistakeAtFalseEquation(const Statement& statement, const Operation& operation) {
  const bool isProduct = operation.isProduct;
  switch (statement.properties) {
    case kAssociative:
      return isProduct ? "moves the parentheses of a quotient"
                       : "moves the parentheses of a difference";
    case kIdentity:
      return isProduct ? "expects a factor of 1 to give 1" : "expects 0 in a sum to give 0";
    case kZero:
      return "expects a factor of 0 to change nothing";
    case kInverse:
    case kInverse | kIdentity:
      return isProduct ? "takes opposite numbers for reciprocals"
                       : "takes equal numbers for opposite numbers";
    default:
      return isProduct ? "exchanges the numbers of a quotient"
                       : "exchanges the numbers of a difference";
  }
}

std::string MistakeOfChoice(const Statement& statement, PropertySet seen,
                            const Operation& operation) {
  if (seen == kNone) return "expects both sides to look the same";
  if (statement.isTrue) return MistakeBetween(statement.properties, seen, operation);
  if (seen == statement.properties) return MistakeAtFalseEquation(statement, operation);
  return MistakeBetween(statement.properties, seen, operation) + ", and does not check";
}

}  // namespace

std::string PropertiesText(PropertySet properties) {
  if (properties == kNone) return "none, since it is false";
  std::string text;
  for (const auto& [property, name] : kNames)
    if ((properties & property) != 0) text += (text.empty() ? "" : " and ") + std::string(name);
  return text;
}

void SetPropertyProblem(Problem& problem, const Operation& operation, const Statement& statement) {
  problem.question = {"Which property or properties does the equation below show?",
                      statement.Text()};
  Choices choices(problem, choice_kind::FiveShuffled, PropertiesText);
  choices.Right(statement.isTrue ? statement.properties : kNone);
  for (const PropertySet seen : statement.rivals)
    choices.Wrong(MistakeOfChoice(statement, seen, operation), seen);
  choices.Wrong(MistakeOfChoice(statement, kNone, operation), kNone);
}

}  // namespace course::properties
