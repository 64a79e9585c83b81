#include "session/catalogue.h"

#include "session/session.h"

namespace course {
namespace {

// One lesson of a unit.  Titles are bytes: \xB2 is the raised 2.
struct Row {
  std::string_view title;       // what the menu lists, and the key of the script
  std::string_view shortTitle;  // where space is small
  int screens;                  // 0: no script
};

struct Unit {
  std::string_view name;
  std::span<const Row> lessons;  // the row "Unit Test" comes behind the last one
};

// One problem of the diagnostic test, the same for everybody, so that results can be compared.
struct DiagnosticProblem {
  std::string_view key;
  std::string_view seed;
};

constexpr std::string_view kUnitTest = "Unit Test";

constexpr Row kUnit1[] = {
    {"Order of Operations", "Order of Operations", 4},
    {"Using Exponents", "Using Exponents", 6},
    {"Variables and Expressions", "Variables and Exp.", 7},
    {"The Number Line and Absolute Value", "The Number Line", 3},
    {"Scientific Notation", "Scientific Notation", 3},
};
constexpr Row kUnit2[] = {
    {"Properties of Addition", "Prop. of Addition", 4},
    {"Properties of Multiplication", "Prop. of Mult.", 5},
    {"The Distributive Property", "Distributive Prop.", 2},
};
constexpr Row kUnit3[] = {
    {"Like Terms", "Like Terms", 2},
    {"Simplifying Expressions", "Simplifying Expr.", 2},
    {"Properties of Equations", "Prop. of Equations", 7},
    {"Solving Linear Equations With 1 Operation", "Solving Eqns-1 Oper", 3},
    {"Solving Linear Equations With 2 Operations", "Solving Eqns-2 Oper", 2},
    {"Solving More Complex Linear Equations", "Solv Complex Eqns", 1},
    {"Solving Literal Equations and Formulas", "Solv Literal Eqns", 1},
};
constexpr Row kUnit4[] = {
    {"Translating Words Into Expressions", "Trans Words To Expr", 6},
    {"Simple Word Problems", "Simple Word Probs", 1},
    {"Work Problems", "Work Problems", 1},
    {"Mixture Problems", "Mixture Problems", 1},
    {"Distance-Rate-Time Problems", "DRT Problems", 1},
    {"Advanced Distance-Rate-Time Problems", "Adv. DRT Problems", 1},
};
constexpr Row kUnit5[] = {
    {"Multiplying with Exponents", "Mult with Exponents", 4},
    {"Dividing with Exponents", "Div. with Exponents", 4},
    {"Power of a Product", "Power of a Product", 2},
    {"Power of a Power", "Power of a Power", 2},
    {"Power of a Monomial", "Power of a Monomial", 2},
};
constexpr Row kUnit6[] = {
    {"Simplifying Polynomials", "Simp. Polynomials", 4},
    {"Adding and Subtracting Polynomials", "Add/Subt Polynomials", 1},
    {"Multiplying Binomials", "Mult Binomials", 1},
    {"Dividing Polynomials", "Div. Polynomials", 1},
};
constexpr Row kUnit7[] = {
    {"Prime Factorization", "Prime Factorization", 6},
    {"Removing the Greatest Common Factor", "Removing the GCF", 1},
    {"Trinomials of the Form x\xB2+bx+c", "Trinomials: x\xB2+bx+c", 4},
    {"Trinomials of the Form ax\xB2+bx+c", "Trinomials: ax\xB2+bx+c", 2},
    {"Perfect Square Trinomials", "Perfect Sq Trinomials", 1},
    {"Difference of Two Squares", "Diff of Two Squares", 2},
    {"Using Grouping to Factor Trinomials", "Using Grouping", 2},
};
constexpr Row kUnit8[] = {
    {"Linear Equations in Two Variables", "Lin Eqns in 2 Vars", 6},
    {"The Coordinate System", "Coordinate System", 3},
    {"Graphing Linear Equations", "Graphing Linear Eqns", 1},
    {"The Slope of a Line", "The Slope of a Line", 2},
    {"The Equation of a Line", "Equation of a Line", 1},
};
constexpr Row kUnit9[] = {
    {"Solving Systems by Graphing", "Solving Systems by Graphing", 5},
    {"Solving Systems by Elimination", "Solving Systems by Elimination", 5},
    {"Solving Systems by Substitution", "Solving Systems by Substitution", 4},
};
constexpr Row kUnit10[] = {
    {"Simple Inequalities", "Simple Inequalities", 2},
    {"Complex Inequalities", "Complex Inequalities", 1},
    {"Solving Inequalities", "Solving Inequalities", 3},
};
constexpr Row kUnit11[] = {
    {"Simplifying Radicals", "Simp Radicals", 6},
    {"Simplifying Radical Expressions", "Simp Radical Expr", 1},
};
constexpr Row kUnit12[] = {
    {"Solving Quadratic Equations", "Solv Quadratic Eqns", 7},
    {"Completing the Square", "Compl. the Square", 2},
    {"The Quadratic Formula", "Quadratic Formula", 3},
};
constexpr Row kUnit13[] = {
    {"Rational Expressions 1", "Rational Expressions 1", 0},
    {"Rational Expressions 2", "Rational Expressions 2", 0},
    {"Rational Expressions 3", "Rational Expressions 3", 0},
    {"Rational Expressions 4", "Rational Expressions 4", 0},
};
constexpr Unit kUnits[] = {
    {"Review of Arithmetic", kUnit1},
    {"Fundamental Operations", kUnit2},
    {"Equations", kUnit3},
    {"Solving Word Problems", kUnit4},
    {"Exponents and Powers", kUnit5},
    {"Polynomials", kUnit6},
    {"Factoring", kUnit7},
    {"Graphs and Linear Equations", kUnit8},
    {"Systems of Linear Equations", kUnit9},
    {"Inequalities", kUnit10},
    {"Radicals", kUnit11},
    {"Quadratic Equations", kUnit12},
    {"Rational Expressions", kUnit13},
};
constexpr DiagnosticProblem kDiagnosticProblems[] = {
    {"ADDING WHOLE NUMBERS", "1"},
    {"SUBTRACTING WHOLE NUMBERS", "1"},
    {"MULTIPLYING BY WHOLE NUMBERS", "1"},
    {"DIVIDING BY WHOLE NUMBERS", "1"},
    {"FRACTIONS AND MIXED NUMBERS", "1"},
    {"REDUCING FRACTIONS TO LOWEST TERMS", "1"},
    {"ADDING FRACTIONS", "1"},
    {"SUBTRACTING FRACTIONS", "1"},
    {"MULTIPLYING FRACTIONS", "1"},
    {"PLACE VALUE AND DECIMAL NUMBERS", "32258"},
    {"ADDING DECIMAL NUMBERS", "1"},
    {"MULTIPLYING DECIMAL NUMBERS", "1"},
    {"PRIME FACTORIZATION", "1"},
    {"SQUARE ROOTS OF PERFECT SQUARES", "1"},
    {"THE NUMBER LINE AND ABSOLUTE VALUE", "1"},
    {"ADDITION", "1"},
    {"MULTIPLICATION", "32329"},
    {"FINDING THE GCF AND LCM", "1"},
    {"USING EXPONENTS", "15380"},
    {"ORDER OF OPERATIONS", "2950"},
    {"USING EXPONENTS", "28024"},
    {"PERCENTS AND DECIMAL NUMBERS", "24029"},
    {"USING THE PERCENT EQUATION", "1"},
    {"WORD PROBLEMS INVOLVING PERCENT", "1"},
    {"VARIABLES AND EXPRESSIONS", "1"},
    {"LIKE TERMS", "29165"},
    {"SIMPLIFYING EXPRESSIONS", "1"},
    {"SOLVING LINEAR EQUATIONS WITH 2 OPERATIONS", "16678"},
    {"SOLVING LITERAL EQUATIONS AND FORMULAS", "1"},
    {"MULTIPLYING WITH EXPONENTS", "1"},
};

constexpr CatalogueLesson kDiagnosticLessons[] = {
    {"Adding Whole Numbers", 4},
    {"Subtracting Whole Numbers", 1},
    {"Multiplying by Whole Numbers", 1},
    {"Dividing by Whole Numbers", 1},
    {"Fractions and Mixed Numbers", 3},
    {"Reducing Fractions to Lowest Terms", 1},
    {"Adding Fractions", 3},
    {"Subtracting Fractions", 1},
    {"Multiplying Fractions", 1},
    {"Place Value and Decimal Numbers", 4},
    {"Adding Decimal Numbers", 1},
    {"Multiplying Decimal Numbers", 1},
    {"Square Roots of Perfect Squares", 2},
    {"Addition", 2},
    {"Multiplication", 2},
    {"FINDING THE GCF AND LCM", 10},
    {"Percents and Decimal Numbers", 2},
    {"Using the Percent Equation", 2},
    {"Word Problems Involving Percent", 4},
};

// Rational Expressions has data, but no way leads to it yet.
constexpr int kListedUnits = 12;

void FillUnit(int unit, const Unit& source) {
  session.gUnitName[unit] = source.name;
  int row = 0;
  for (const Row& lesson : source.lessons) {
    ++row;
    session.gLessonTitle[unit][row] = lesson.title;
    session.gLessonShortTitle[unit][row] = lesson.shortTitle;
  }
  ++row;
  session.gLessonTitle[unit][row] = kUnitTest;
  session.gLessonShortTitle[unit][row] = kUnitTest;
  session.gLessonCount[unit] = row;
}

}  // namespace

void FillCourseTables() {
  session.gUnitCount = kListedUnits;
  session.gDiagnosticProbCount = static_cast<int>(std::size(kDiagnosticProblems));
  int unit = 0;
  for (const Unit& source : kUnits) FillUnit(++unit, source);
}

void FillDiagnosticTable() {
  int row = 0;
  for (const DiagnosticProblem& problem : kDiagnosticProblems) {
    auto& columns = session.gDiagnosticData[++row];
    columns[diagnostic_column::Title] = problem.key;
    columns[diagnostic_column::Seed] = problem.seed;
    columns[diagnostic_column::StudentLetter] = " ";
    columns[diagnostic_column::CorrectLetter] = " ";
  }
  session.gDiagnosticStatus = 1;
}

std::vector<std::string_view> DiagnosticTitles() {
  std::vector<std::string_view> titles;
  for (const DiagnosticProblem& problem : kDiagnosticProblems) titles.push_back(problem.key);
  return titles;
}

std::span<const CatalogueLesson> DiagnosticLessons() {
  return kDiagnosticLessons;
}

std::vector<CatalogueLesson> CatalogueLessons() {
  std::vector<CatalogueLesson> lessons;
  for (const Unit& unit : std::span(kUnits).first(kListedUnits))
    for (const Row& row : unit.lessons) lessons.push_back({row.title, row.screens});
  lessons.insert(lessons.end(), std::begin(kDiagnosticLessons), std::end(kDiagnosticLessons));
  return lessons;
}

int CatalogueScreens(int unit, int row) {
  if (unit < 1 || unit > static_cast<int>(std::size(kUnits))) return 0;
  const std::span<const Row> lessons = kUnits[unit - 1].lessons;
  if (row < 1 || row > static_cast<int>(lessons.size())) return 0;
  return lessons[static_cast<std::size_t>(row) - 1].screens;
}

}  // namespace course
