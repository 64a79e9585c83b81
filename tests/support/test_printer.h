// A printer without paper: it keeps what it printed, and fails when it is told to.
#pragma once

#include <deque>
#include <vector>

#include "platform/printer.h"

namespace course::testing {

class TestPrinter final : public platform::Printer {
 public:
  TestPrinter() { platform::InstallPrinter(this); }
  ~TestPrinter() override { platform::InstallPrinter(nullptr); }

  bool chosen = true;  // what the person answers to the choice of a printer
  // Errors of the next steps, one a step; when there are none the steps succeed.
  std::deque<platform::PrintError> errors;

  platform::PrintTarget target = platform::PrintTarget::Paper;
  platform::PrintDocument printed;  // the last document, with the pages that were printed
  int ended = 0;
  int abandoned = 0;

  bool Choose(platform::PrintTarget wanted, const platform::PrintDocument&) override {
    target = wanted;
    return chosen;
  }
  platform::PrintError StartDocument(const platform::PrintDocument& document) override {
    printed = document;
    printed.pages.clear();
    return NextError();
  }
  platform::PrintError PrintPage(const platform::PrintDocument&,
                                 const platform::Page& page) override {
    const platform::PrintError error = NextError();
    if (error == platform::PrintError::None) printed.pages.push_back(page);
    return error;
  }
  platform::PrintError EndDocument() override {
    const platform::PrintError error = NextError();
    if (error == platform::PrintError::None) ++ended;
    return error;
  }
  void Abandon() override { ++abandoned; }

  // The texts of a page, from the top.
  std::vector<std::string> Lines(std::size_t page) const {
    std::vector<std::string> lines;
    for (const platform::PageText& text : printed.pages.at(page)) lines.push_back(text.text);
    return lines;
  }

 private:
  platform::PrintError NextError() {
    if (errors.empty()) return platform::PrintError::None;
    const platform::PrintError error = errors.front();
    errors.pop_front();
    return error;
  }
};

}  // namespace course::testing
