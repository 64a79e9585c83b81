#include "lessons/families/graphs/interval_text.h"

#include "lessons/families/graphs/interval_figure.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::graphs {
namespace {

const std::string kAnd = " and ";

std::string Less(double end) {
  return IsOpen(end) ? "<" : tutor::LessOrEqual;
}

std::string Greater(double end) {
  return IsOpen(end) ? ">" : tutor::GreaterOrEqual;
}

}  // namespace

std::string EndText(double end) {
  return NumStr(WholeOf(end));
}

std::string AtLeft(double low) {
  return EndText(low) + " " + Less(low) + " x";
}

std::string AtRight(double high) {
  return "x " + Less(high) + " " + EndText(high);
}

std::string FromLeft(double low) {
  return "x " + Greater(low) + " " + EndText(low);
}

std::string Between(double low, double high) {
  return AtLeft(low) + AtRight(high).substr(1);
}

std::string Outside(double low, double high) {
  return AtRight(low) + " or " + FromLeft(high);
}

std::string BetweenReversed(double low, double high) {
  return EndText(low) + " " + Greater(low) + " x " + Greater(high) + " " + EndText(high);
}

std::string OutsideReversed(double low, double high) {
  return FromLeft(low) + " or " + AtRight(high);
}

double Flipped(double end) {
  return IsOpen(end) ? WholeOf(end) : end + kOpenEnd;
}

void ShowPair(const TextCell& at, double low, double high) {
  const auto picked = [](std::string text) { return text.replace(text.find('x'), 1, R"(\yx\z)"); };
  page::ShowAt(at.row, picked(AtLeft(low)) + kAnd + picked(AtRight(high)), at.col);
}

void JoinPair(const TextCell& at, double drop, double low, double high) {
  const double left = static_cast<double>(AtLeft(low).size() + kAnd.size());
  const double right = static_cast<double>(AtRight(high).size());
  page::SlideDown({at.row, at.col, left + right}, drop, page::Leaving::Copy);
  page::SlideLeft({at.row + drop, at.col + left, right}, static_cast<double>(kAnd.size()) + 1);
}

}  // namespace course::graphs
