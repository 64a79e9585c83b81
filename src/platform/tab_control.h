// A control of pages that lie behind one another, each with a tab to bring it to the front.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/form.h"

namespace platform {

class TabControl final : public Control {
 public:
  TabControl(Control& parent, std::string name);
  ~TabControl() override;

  // A new page behind the others, for controls to stand on; the tab control owns it.  The first one
  // stands in front.
  Frame& AddPage(const std::string& caption);
  // 0-based; the page in front, -1 for none.  Setting one that does not exist stops the program.
  int Page() const;
  void SetPage(int page);
  int PageCount() const;

 private:
  std::vector<std::unique_ptr<Frame>> pages_;
};

}  // namespace platform
