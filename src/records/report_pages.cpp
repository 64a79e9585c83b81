#include "records/report_pages.h"

#include "platform/stop.h"

namespace course {
namespace {

constexpr double kMargin = 0.5;     // inches, on all sides
constexpr double kRounding = 1e-6;  // lines that end at the limit do not pass it

int LinesPerInch(platform::Orientation orientation) {
  switch (orientation) {
    case platform::Orientation::Portrait:
      return 6;
    case platform::Orientation::Landscape:
      return 9;
  }
  platform::Stop("Stop Point 022");
}

}  // namespace

ReportPages::ReportPages(const std::string& title, platform::Orientation orientation, double points)
    : document_({.title = title, .orientation = orientation, .points = points, .pages = {}}),
      lineHeight_(1.0 / LinesPerInch(orientation)),
      bottomLimit_(platform::PageHeight(orientation) - kMargin) {}

void ReportPages::StartPage() {
  document_.pages.emplace_back();
  position_ = kMargin;
  if (PrintHeading) PrintHeading();
}

void ReportPages::PrintLine(const std::string& text) {
  PrintLine(text, "");
}

void ReportPages::PrintLine(const std::string& text, const std::string& atRightEdge) {
  if (PageIsFull()) StartPage();
  platform::Page& page = document_.pages.back();
  page.push_back({.x = kMargin, .y = position_, .text = text});
  if (!atRightEdge.empty()) {
    const double right = platform::PageWidth(document_.orientation) - kMargin;
    page.push_back({.x = right - platform::PrintedWidth(document_, atRightEdge),
                    .y = position_,
                    .text = atRightEdge});
  }
  position_ += lineHeight_;
}

void ReportPages::Skip(double lines) {
  position_ += lines * lineHeight_;
}

int ReportPages::PageNumber() const {
  return static_cast<int>(document_.pages.size());
}

bool ReportPages::PageIsFull() const {
  return document_.pages.empty() || position_ > bottomLimit_ + kRounding;
}

}  // namespace course
