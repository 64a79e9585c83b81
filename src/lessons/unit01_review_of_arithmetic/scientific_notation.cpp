// The student can write a large or a small number in scientific notation, a first factor from 1 to
// less than 10 times a power of ten, and can write such a product in standard form again.
//
// Two kinds of problems with equal chances, one way and the other; half of the numbers are large,
// with exponents 1 to 7, and half are small, with exponents -1 to -5.
#include "lessons/families/powers/power_figures.h"
#include "lessons/families/powers/scientific.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace powers;

constexpr std::string_view kDigits = "123456789";
const ScientificNumber kMolecule = {"299", -23};  // grams of water
const char* const kWhereIsThePoint = "Where is the decimal point of 93,000,000?";
const std::string kTimes = " " + tutor::Times + " ";

std::string PowerOfTen(int exponent) {
  return "10^" + NumStr(exponent) + "^";
}

// --- Teaching screens --------------------------------------------------------

void NumbersHardToRead() {
  NewScreen();
  SayAt(3, "The mass of a single molecule of water is about this many grams:");
  Show(StandardText(kMolecule));
  Say("The sun is 93,000,000 miles away.");
  PageEnd();
  Say(R"(It is easy to lose a zero here.  \cScientific notation\z is a shorter way:)");
  ShowAt(14.5, ScientificText({"93", 7}), 3);
  ShowAt(14.5, ScientificText(kMolecule), 22);
  PageEnd();
  Note(12.4, 1, "from 1 to less than 10");
  isDrawArrow1Segment(13.3, 4, 13.9, 4, platform::colour::Yellow, "NA", "A");
  Note(16.6, 8, "a power of ten");
  isDrawArrow1Segment(16.4, 10, 15.5, 10, platform::colour::Yellow, "NA", "A");
  SayAt(18, "The first factor is at least 1 and less than 10.");
  Say(kWhereIsThePoint);
  PageEnd();
}

void LargeNumbers() {
  NewScreen();
  SayAt(3, kWhereIsThePoint);
  SayAt(6, "At its end, even when it is not written:");
  MovingPoint point = MovingPoint::ToScientific(7.5, {"93", 7});
  SayAt(10.5, "We move it until one digit is before it.");
  SayAt(12, R"(\yTry it:\z  How many places is that?)");
  PageEnd();
  point.Move();
  SayAt(14, R"(It is \y7\z places to the left.  Which zeros can we leave out now?)");
  PageEnd();
  Say("Those at the end, after the decimal point:  9.3000000 = 9.3.");
  Say(Text(R"(So 93,000,000 is \y{}\z.)", ScientificText({"93", 7})));
  PageEnd();

  NewScreen();
  SayAt(3, "Each place to the left divides the number by 10.  The power of ten makes up for it:");
  Show("9.3" + kTimes + "10,000,000 = 93,000,000");
  PageEnd();
  Say(R"(\yWatch out:\z  Count places, not zeros.)");
  PaperBox({R"(93,000,000 is  \rnot 9.3)" + kTimes + R"(10^6^\z)"});
  Say(Text("Are {} and {} the same as 93,000,000?", TimesPowerOfTen("93", 2, 6),
           TimesPowerOfTen("93", 0, 8)));
  PageEnd();
  Say("Yes, but they are not in scientific notation:  93 is not less than 10, and 0.93 is less "
      "than 1.");
  PaperBox({"93,000,000 = " + ScientificText({"93", 7}) + R"(, \rnot 93)" + kTimes +
            R"(10^6^\z, \rnot 0.93)" + kTimes + R"(10^8^\z)"});
  PageEnd();
}

void MoreLargeNumbers() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Write 4,520 in scientific notation.)");
  PageEnd();
  MovingPoint::ToScientific(6, {"452", 3}).Move();
  Say(Text(R"(The point moves 3 places:  \y{}\z)", ScientificText({"452", 3})));
  Say(R"(\yTry it:\z  And 715.8?)");
  PageEnd();
  MovingPoint::ToScientific(13, {"7158", 2}).Move();
  Say(Text(R"(The point starts after the 5, and moves 2 places to the left:  \y{}\z)",
           ScientificText({"7158", 2})));
  PageEnd();
}

void NegativeExponents() {
  NewScreen();
  SayAt(3,
        "Now for small numbers.  From cell to cell the exponent goes down by 1, and the value is "
        "divided by 10.");
  CellTable(TwoRows("Power", "Value", 6), 7);
  FillCells(1, {"10^2^", "10^1^", "10^0^", "10^-1^", "10^-2^", "10^-3^"});
  FillCells(7, {"100", "10", "1"});
  SayAt(12, R"(\yTry it:\z  What comes next?)");
  PageEnd();
  FillCells(10, {"0.1", "0.01", "0.001"}, platform::colour::Blue);
  Say(R"(A \ynegative exponent\z tells how many times 1 is divided by 10:)");
  Show(PowerOfTen(-3) + " = 1/10^3^ = 1 " + tutor::Divided + " 1,000 = 0.001");
  PageEnd();
  Say(R"(\yWatch out:\z  The value is small, but it is not negative.)");
  PaperBox({R"(10^-3^ = 0.001,  \rnot -30\z,  \rnot -1,000\z)"});
  PageEnd();
}

void SmallNumbers() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Write 0.00045 in scientific notation.  Which way does the point move?)");
  MovingPoint point = MovingPoint::ToScientific(7, {"45", -4});
  PageEnd();
  point.Move();
  Say(R"(It moves \y4\z places to the right, after the 4.  Which zeros can we leave out?)");
  PageEnd();
  Say(Text(R"(Those in front:  \y{}\z)", ScientificText({"45", -4})));
  Say("Each place to the right multiplies the number by 10.  The negative exponent makes up for "
      "it.");
  PageEnd();
  RuleBox("The Sign of the Exponent",
          {"10 or more:          positive exponent", "1 to less than 10:          exponent 0",
           "between 0 and 1:     negative exponent"},
          {.width = 38});
  PageEnd();

  NewScreen();
  SayAt(3, "The mass of the water molecule has 22 zeros after the decimal point:");
  Show(StandardText(kMolecule));
  Say(R"(\yTry it:\z  Is its exponent -22 or -23?)");
  PageEnd();
  Say(Text(R"(The point moves past 22 zeros \yand\z the 2, which is 23 places:  \y{}\z)",
           ScientificText(kMolecule)));
  Say(R"(\yTry it:\z  Write 0.062.)");
  PageEnd();
  MovingPoint::ToScientific(14, {"62", -2}).Move();
  Say(Text(R"(The point moves 2 places:  \y{}\z)", ScientificText({"62", -2})));
  PageEnd();
}

void BackToLargeNumbers() {
  NewScreen();
  SayAt(3, Text(R"(What is {} in \cstandard form\z, the usual way of writing?)",
                ScientificText({"32", 5})));
  MovingPoint point = MovingPoint::ToStandard(6, {"32", 5});
  SayAt(9, R"(\yTry it:\z  Which way must the point go?)");
  PageEnd();
  point.Move();
  SayAt(11, R"(10^5^ multiplies by 10 five times.  So the point moves 5 places to the \yright\z.)");
  PageEnd();
  Say("Zeros fill the empty places.  The exponent counts places, not zeros:");
  PaperBox({ScientificText({"32", 5}) + R"( = 320,000,)", R"(          \rnot 3,200,000\z)"});
  PageEnd();
}

void BackToSmallNumbers() {
  NewScreen();
  SayAt(3, Text(R"(\yTry it:\z  What is {} in standard form?)", ScientificText({"61", -4})));
  MovingPoint point = MovingPoint::ToStandard(6, {"61", -4});
  PageEnd();
  point.Move();
  Say(R"(10^-4^ divides by 10 four times.  The point moves 4 places \yleft\z:  0.00061)");
  PageEnd();
  Say(Text(R"(\yTry it:\z  What are {} and {}?)", ScientificText({"705", 3}),
           ScientificText({"18", -2})));
  PageEnd();
  Say(Text(R"({}:  a positive exponent, 3 places to the right.)",
           ScientificText({"705", 3}) + " = 7,050"));
  Say(Text(R"({}:  a negative exponent, 2 places to the left.)",
           ScientificText({"18", -2}) + " = 0.018"));
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class ScientificNotation final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{NumbersHardToRead, LargeNumbers, MoreLargeNumbers},
            {NegativeExponents, SmallNumbers},
            {BackToLargeNumbers, BackToSmallNumbers}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void OfferStandard(RandomStream& random);
  void OfferScientific(RandomStream& random);

  int Size() const { return std::abs(number_.exponent); }
  int Sign() const { return number_.exponent < 0 ? -1 : 1; }
  int ZerosAtItsEnd() const;

  void BeginExplanation() const;
  void ExplainToScientific() const;
  void ExplainToStandard() const;
  void Check() const;
  void TellOtherForm() const;

  bool toStandard_ = false;
  bool twoDigits_ = false;   // what a wrong choice has before its point, in place of one digit or 0
  ScientificNumber number_;  // 2 to 6 digits; exponent 1 to 7 or -1 to -5
};

// --- Generator ---------------------------------------------------------------

void ScientificNotation::DrawProblem(RandomStream& random) {
  toStandard_ = random.Rand(1, 2) == 1;
  number_.digits = random.OneOf(kDigits);
  const int large = random.Rand(1, 7);
  const int small = random.Rand(1, 5);
  const int sign = random.Sign();
  const int more = random.Rand(1, 5);
  for (int i = 0; i < more; ++i) number_.digits += random.OneOf(kDigits);
  number_.exponent = sign > 0 ? large : -small;

  if (toStandard_) {
    problem.question = {"Convert the following into standard form:", ScientificText(number_)};
    OfferStandard(random);
  } else {
    problem.question = {"Convert the following into scientific notation:", StandardText(number_)};
    OfferScientific(random);
  }
}

const std::string& AsItIs(const std::string& text) {
  return text;
}

const char* NameOfMisplaced(int exponent, bool far) {
  if (!far) return std::abs(exponent) == 1 ? "does not move the point" : "stops one place early";
  return exponent < -1 ? "puts as many zeros right after the decimal point as the exponent tells"
                       : "moves the point one place too far";
}

// The right one and the first three are two mistakes, made or not made.
void ScientificNotation::OfferStandard(RandomStream& random) {
  const bool tooFar = random.Rand(1, 2) == 1;
  const int digits = static_cast<int>(number_.digits.size());
  const int e = number_.exponent;
  Choices<std::string> choices(problem, choice_kind::FiveShuffled, AsItIs);
  const auto moved = [&](int places) { return StandardText({number_.digits, places}); };
  const auto addMisplaced = [&](bool far) {
    const int places = Sign() * (Size() + (far ? 1 : -1));
    choices.Wrong(NameOfMisplaced(e, far), moved(places));
    choices.Wrong(far ? "moves the point the wrong way and one place too far"
                      : "moves the point the wrong way and stops one place early",
                  moved(-places));
  };
  choices.Right(moved(e));
  choices.Wrong("moves the point the wrong way", moved(-e));
  addMisplaced(tooFar);
  if (e > 0)
    choices.Wrong("writes as many zeros as the exponent tells", moved(e + digits - 1));
  else
    choices.Wrong("takes the negative exponent for a minus sign", "-" + moved(-e));
  addMisplaced(!tooFar);
}

// Zeros behind the last digit of a large number.
int ScientificNotation::ZerosAtItsEnd() const {
  return std::max(0, number_.exponent + 1 - static_cast<int>(number_.digits.size()));
}

void ScientificNotation::OfferScientific(RandomStream& random) {
  const bool tooMany = random.Rand(1, 2) == 1;
  const bool twoDigits = random.Rand(1, 2) == 1;
  const int e = number_.exponent;
  std::string miscount = "counts one place too many";
  int places = Size() + 1;
  if (!tooMany && Size() > 1) {
    const int zeros = e > 0 ? ZerosAtItsEnd() : Size() - 1;
    miscount = zeros == 0 ? "counts one place too few"
               : e > 0    ? "counts the zeros"
                          : "counts only the zeros after the decimal point";
    places = zeros > 0 ? zeros : Size() - 1;
  }
  Choices<std::string> choices(problem, choice_kind::FiveShuffled, AsItIs);
  choices.Right(ScientificText(number_));
  choices.Wrong("gives the exponent the wrong sign", ScientificText({number_.digits, -e}));
  choices.Wrong(miscount, ScientificText({number_.digits, Sign() * places}));
  choices.Wrong(miscount + " and gives the exponent the wrong sign",
                ScientificText({number_.digits, -Sign() * places}));
  twoDigits_ = e == -1 || (twoDigits && e != 1);  // the exponent shall not be 0
  if (twoDigits_)
    choices.Wrong("leaves two digits before the point", TimesPowerOfTen(number_.digits, 2, e - 1));
  else
    choices.Wrong("begins the first factor with 0", TimesPowerOfTen(number_.digits, 0, e + 1));
}

// --- Problem page ------------------------------------------------------------

constexpr double kNumberRow = 8;

void ScientificNotation::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(kNumberRow, problem.question[1]);
  if (toStandard_)
    ShowAnswersInOneColumn(problem, {.row = 11.5});
  else
    ShowAnswersInTwoColumns(problem, {.width = 19});
}

// --- Worked explanation ------------------------------------------------------

constexpr double kMovingRow = 12.5;

void ScientificNotation::BeginExplanation() const {
  ProblemBanner();
  SayAt(4.5, problem.question[0]);
  ShowAt(7, problem.question[1]);
}

void ScientificNotation::ExplainProblem() {
  BeginExplanation();
  if (toStandard_) {
    ExplainToStandard();
    Check();
  } else {
    ExplainToScientific();
    NewScreen();
    BeginExplanation();
    Check();
    TellOtherForm();
  }
  Conclude(problem);
}

void ScientificNotation::ExplainToScientific() const {
  const int size = Size();
  Say(Text(R"(The first factor has one digit before its decimal point, and that digit is not 0:  )"
           R"(\y{}\z)",
           DecimalText(number_.digits, 1)));
  PageEnd();
  MovingPoint::ToScientific(kMovingRow, number_).Move();
  const char* leftOut = Sign() < 0            ? "  We leave out the zeros in front."
                        : ZerosAtItsEnd() > 0 ? "  We leave out the zeros at the end."
                                              : "";
  Say(Text(R"(The point moves \y{}\z place{} to the {}.{})", size, Words{PluralSuffix(size)},
           Sign() > 0 ? "left" : "right", Words{leftOut}));
  PageEnd();
  Say(Sign() > 0 ? "The number is 10 or more, so the exponent is positive."
                 : "The number is less than 1, so the exponent is negative.");
  PageEnd();
}

void ScientificNotation::ExplainToStandard() const {
  const int size = Size();
  Say(Sign() > 0 ? Text(R"(A positive exponent:  we multiply by 10, and the point moves to the )"
                        R"(\yright\z.)")
                 : Text(R"(A negative exponent:  we divide by 10, and the point moves to the )"
                        R"(\yleft\z.)"));
  PageEnd();
  MovingPoint::ToStandard(kMovingRow, number_).Move();
  const int zeros = Sign() < 0 ? size : ZerosAtItsEnd();
  const char* filled = zeros == 0   ? ""
                       : zeros > 1  ? "  Zeros fill the empty places."
                       : Sign() > 0 ? "  A zero fills the empty place."
                                    : "  We write a 0 before the decimal point.";
  Say(Text("It moves {} place{}.{}", size, Words{PluralSuffix(size)}, Words{filled}));
  PageEnd();
}

// By the power of ten, or by what it stands for.
void ScientificNotation::Check() const {
  const std::string power = DecimalText("1", Size() + 1);
  const std::string factor = DecimalText(number_.digits, 1);
  const bool large = Sign() > 0;
  Say(Text(large ? R"(\yCheck:\z  {} is {}.)" : R"(\yCheck:\z  {} divides by {}.)",
           PowerOfTen(number_.exponent), power));
  Show(factor + (large ? kTimes : " " + tutor::Divided + " ") + power + " = " +
           StandardText(number_),
       2);
  PageEnd();
}

// The wrong choice that is worth as much as the right one.
void ScientificNotation::TellOtherForm() const {
  const int before = twoDigits_ ? 2 : 0;
  Say(Text("{} has the right value too, but {} is {}.",
           TimesPowerOfTen(number_.digits, before, number_.exponent + 1 - before),
           DecimalText(number_.digits, before),
           Words{twoDigits_ ? "not less than 10" : "less than 1"}));
  PageEnd();
}

const LessonRegistration<ScientificNotation> kRegistration("Scientific Notation");

}  // namespace
}  // namespace course
