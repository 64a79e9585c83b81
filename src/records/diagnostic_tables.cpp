#include "records/diagnostic_tables.h"

#include <algorithm>
#include <iterator>

#include "platform/stop.h"

namespace course {
namespace {

constexpr SkillArea kPreAlgebraAreas[] = {
    {"Basic Operations with Integers    ", 1, 7},
    {"Basic Operations with Fractions   ", 8, 16},
    {"Basic Operations with Decimals    ", 17, 23},
    {"Other Operations with Integers    ", 24, 30},
};

// Question 30 counts with the integers though its lesson is one on exponents.
constexpr SkillArea kAlgebra1Areas[] = {
    {"Basic Operations with Integers    ", 1, 4},
    {"Basic Operations with Fractions   ", 5, 9},
    {"Basic Operations with Decimals    ", 10, 12},
    {"Other Operations with Integers    ", 13, 21, 30},
    {"Percent                           ", 22, 24},
    {"Variables, Expressions, Equations ", 25, 29},
};

constexpr DiagnosticProgram kPrograms[] = {
    {.code = "C1",
     .title = "Pre-Algebra Diagnostic Test Results",
     .areas = kPreAlgebraAreas,
     .lessons = {{
         {"PA0101", "Place Value"},
         {"PA0102", "Rounding Numbers"},
         {"PA0103", "Adding Whole Numbers"},
         {"PA0104", "Subtracting Whole Numbers"},
         {"PA0201", "Multiplying by Whole Numbers"},
         {"PA0202", "Dividing by Whole Numbers"},
         {"PA0203", "Word Problems"},
         {"PA0401", "Fractions and Mixed Numbers"},
         {"PA0402", "Equivalent Fractions"},
         {"PA0403", "Reducing Fractions to Lowest Terms"},
         {"PA0404", "Comparing Fractions"},
         {"PA0405", "Adding Fractions"},
         {"PA0406", "Subtracting Fractions"},
         {"PA0501", "Multiplying Fractions"},
         {"PA0502", "Dividing Fractions"},
         {"PA0503", "Word Problems"},
         {"PA0601", "Place Value and Decimal Numbers"},
         {"PA0602", "Comparing/Rounding Decimal Numbers"},
         {"PA0603", "Adding Decimal Numbers"},
         {"PA0604", "Subtracting Decimal Numbers"},
         {"PA0605", "Multiplying Decimal Numbers"},
         {"PA0606", "Dividing Decimal Numbers"},
         {"PA0607", "Word Problems"},
         {"PA0301", "Divisibility Rules"},
         {"PA0302", "Factoring Whole Numbers"},
         {"PA0701", "The Number Line"},
         {"PA0303", "Finding the GCF and LCM"},
         {"PA0304", "Using Exponents"},
         {"PA0305", "Order of Operations"},
         {"PA1001", "Percents and Decimal Numbers"},
     }}},
    {.code = "C2",
     .title = "Algebra 1 Diagnostic Test Results",
     .areas = kAlgebra1Areas,
     .lessons = {{
         {"PA0101", "Adding Whole Numbers"},
         {"PA0102", "Subtracting Whole Numbers"},
         {"PA0201", "Multiplying by Whole Numbers"},
         {"PA0202", "Dividing by Whole Numbers"},
         {"PA0401", "Fractions and Mixed Numbers"},
         {"PA0402", "Reducing Fractions to Lowest Terms"},
         {"PA0403", "Adding Fractions"},
         {"PA0404", "Subtracting Fractions"},
         {"PA0501", "Multiplying Fractions"},
         {"PA0601", "Place Value and Decimal Numbers"},
         {"PA0602", "Adding Decimal Numbers"},
         {"PA0603", "Multiplying Decimal Numbers"},
         {"PA0301", "Factoring Whole Numbers"},
         {"PA0302", "Square Roots of Perfect Squares"},
         {"PA0701", "The Number Line"},
         {"PA0702", "Addition"},
         {"PA0703", "Multiplication"},
         {"PA0303", "Finding the GCF and LCM"},
         {"PB0101", "Using Exponents"},
         {"PA0304", "Order of Operations"},
         {"PB0101", "Using Exponents"},
         {"PA1001", "Percents and Decimal Numbers"},
         {"PA1002", "Using the Percent Equation"},
         {"PA1003", "Word Problems Involving Percent"},
         {"PB0102", "Variables and Expressions"},
         {"PB0301", "Like Terms"},
         {"PB0302", "Simplifying Expressions"},
         {"PB0302", "Solving Linear Equations"},
         {"PB0302", "Solving Literal Eqns and Formulas"},
         {"PB0501", "Multiplying with Exponents"},
     }}},
};

struct UnitTitle {
  std::string_view key;  // series and unit
  std::string_view title;
  std::size_t width = 43;  // of the column it fills
};
constexpr UnitTitle kUnitTitles[] = {
    {"PA01", "UNIT 1: Whole Numbers: Adding & Subtr."},
    {"PA02", "UNIT 2: Whole Numbers: Mult. & Dividing"},
    {"PA03", "UNIT 3: Whole Numbers: Other Operations"},
    {"PA04", "UNIT 4: Fractions & Mixed Nos: Add/Subtr"},
    {"PA05", "UNIT 5: Fractions & Mixed Nos: Mult/Div"},
    {"PA06", "UNIT 6: Operations With Decimals"},
    {"PA07", "UNIT 7: Positive and Negative Numbers"},
    {"PA10", "UNIT 10: Percent", 44},
    {"PB01", "UNIT 1: Review of Arithmetic"},
    {"PB03", "UNIT 3: Equations"},
    {"PB05", "UNIT 5: Exponents and Powers"},
};

// The most right answers that are still poor, and still fair.
struct VerdictBounds {
  int poor;
  int fair;
};
constexpr int kSmallestArea = 3;
constexpr VerdictBounds kVerdictBounds[] = {{1, 2}, {1, 2}, {2, 3}, {3, 4},
                                            {3, 5}, {4, 6}, {5, 7}, {5, 7}};

}  // namespace

const DiagnosticProgram* FindDiagnosticProgram(std::string_view code) {
  const auto* program = std::find_if(std::begin(kPrograms), std::end(kPrograms),
                                     [code](const auto& known) { return known.code == code; });
  return program == std::end(kPrograms) ? nullptr : program;
}

std::string StudyCell(const StudyLesson& lesson) {
  const auto* unit =
      std::find_if(std::begin(kUnitTitles), std::end(kUnitTitles),
                   [&](const UnitTitle& known) { return lesson.key.starts_with(known.key); });
  if (unit == std::end(kUnitTitles))
    platform::Stop("StudyCell: no unit for the key " + std::string(lesson.key));
  std::string column(unit->title);
  column.resize(unit->width, ' ');
  return std::string(lesson.key) + column + "LESSON - " + std::string(lesson.lesson);
}

std::string SkillVerdict(int questions, int correct) {
  const int row = questions - kSmallestArea;
  if (row < 0 || row >= static_cast<int>(std::size(kVerdictBounds)))
    platform::Stop("SkillVerdict: no bounds for " + std::to_string(questions) + " questions");
  if (correct <= kVerdictBounds[row].poor) return "Poor";
  return correct <= kVerdictBounds[row].fair ? "Fair" : "Good";
}

}  // namespace course
