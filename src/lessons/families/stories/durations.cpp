#include "lessons/families/stories/durations.h"

#include "mathkit/tutor_codes.h"

namespace course::stories {
namespace {

constexpr int kMinutesOfHour = 60;

}  // namespace

std::string QuantityText(const Fraction& number, const std::string& unit) {
  return MixedText(number) + tutor::Gap + unit + (Fraction{1, 1} < number ? "s" : "");
}

std::string DurationText(int minutes) {
  const std::string hourText = QuantityText({minutes / kMinutesOfHour, 1}, "hour");
  const std::string minuteText = QuantityText({minutes % kMinutesOfHour, 1}, "minute");
  if (minutes < kMinutesOfHour) return minuteText;
  return minutes % kMinutesOfHour == 0 ? hourText : hourText + " & " + minuteText;
}

Fraction HoursOf(int minutes) {
  return Reduced(minutes, kMinutesOfHour);
}

std::string HoursText(const Fraction& hours) {
  return QuantityText(hours, "hour");
}

}  // namespace course::stories
