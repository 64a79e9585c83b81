// A report on paper: lines that flow down a page, and from page to page.
#pragma once

#include <functional>
#include <string>

#include "platform/printer.h"

namespace course {

class ReportPages {
 public:
  // Sets up "Courier New" in the given size, in points.  A line is a sixth of an inch high in
  // portrait and a ninth in landscape.  Any other orientation stops the program.
  ReportPages(const std::string& title, platform::Orientation orientation, double points = 12);

  // Prints the heading of a page; called at the start of each.
  std::function<void()> PrintHeading;

  // Ends the page, if there is one, and starts the next.
  void StartPage();
  // Prints at the left margin and moves down a line; a new page is started first when there is none
  // or the last line has passed the bottom limit.
  void PrintLine(const std::string& text);
  // The same, with a second text at the right edge.
  void PrintLine(const std::string& text, const std::string& atRightEdge);
  // Moves down, in lines.
  void Skip(double lines);

  int PageNumber() const;  // from 1, 0 before the first page
  const platform::PrintDocument& Document() const { return document_; }

 private:
  bool PageIsFull() const;

  platform::PrintDocument document_;
  double lineHeight_ = 0;  // inches, like all that follows
  double bottomLimit_ = 0;
  double position_ = 0;  // top of the next line
};

}  // namespace course
