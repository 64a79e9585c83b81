#include "platform/tab_control.h"

#include <QTabBar>
#include <QTabWidget>

#include "platform/stop.h"
#include "platform/widgets_impl.h"

namespace platform {

TabControl::TabControl(Control& parent, std::string name) : Control(&parent, std::move(name)) {
  QTabWidget& tabs = PutOn(parent, *this, new QTabWidget);
  tabs.tabBar()->setExpanding(false);
}

TabControl::~TabControl() = default;

Frame& TabControl::AddPage(const std::string& caption) {
  const std::string name = Name() + "(" + std::to_string(pages_.size()) + ")";
  pages_.push_back(std::make_unique<Frame>(*this, name));
  WidgetOf<QTabWidget>(*this).addTab(pages_.back()->impl().widget, ToText(caption));
  return *pages_.back();
}

int TabControl::Page() const {
  return WidgetOf<QTabWidget>(*this).currentIndex();
}

void TabControl::SetPage(int page) {
  if (page < 0 || page >= PageCount())
    Stop("TabControl::SetPage: " + Name() + " has no page " + std::to_string(page));
  WidgetOf<QTabWidget>(*this).setCurrentIndex(page);
}

int TabControl::PageCount() const {
  return static_cast<int>(pages_.size());
}

}  // namespace platform
