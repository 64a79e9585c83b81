#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "platform/widgets_impl.h"

namespace platform {

struct MenuItem::Impl {
  QPointer<QAction> action;
  Form* form = nullptr;
  std::string name;
  bool visible = true;
  bool enabled = true;
  Life life = NewLife();
};

struct Menu::Impl {
  QPointer<QMenu> menu;
  Form* form = nullptr;
  std::vector<std::unique_ptr<MenuItem>> items;
};

MenuItem::MenuItem(Form& form, std::string name) : impl_(std::make_unique<Impl>()) {
  impl_->form = &form;
  impl_->name = std::move(name);
  impl_->action = new QAction(form.formImpl().window);
  QObject::connect(impl_->action, &QAction::triggered,
                   [this] { CallLater(impl_->life, [this] { Click(); }); });
  form.formImpl().items.push_back(this);
}

MenuItem::~MenuItem() = default;

void MenuItem::SetCaption(const std::string& caption) {
  impl_->action->setText(ToText(caption));
}

std::string MenuItem::Caption() const {
  return FromText(impl_->action->text());
}

void MenuItem::SetVisible(bool visible) {
  impl_->visible = visible;
  impl_->action->setVisible(visible);
}

bool MenuItem::Visible() const {
  return impl_->visible;
}

void MenuItem::SetEnabled(bool enabled) {
  impl_->enabled = enabled;
  impl_->action->setEnabled(enabled);
}

bool MenuItem::Enabled() const {
  return impl_->enabled;
}

bool MenuItem::Click() {
  if (!Visible() || !Enabled() || !TakesInput(*impl_->form)) return false;
  CallHandler(OnClick);
  return true;
}

const std::string& MenuItem::Name() const {
  return impl_->name;
}

Menu::Menu(Form& form, const std::string& caption) : impl_(std::make_unique<Impl>()) {
  impl_->form = &form;
  impl_->menu = form.formImpl().window->menuBar()->addMenu(ToText(caption));
}

Menu::~Menu() = default;

MenuItem& Menu::AddItem(std::string name, const std::string& caption) {
  impl_->items.push_back(std::make_unique<MenuItem>(*impl_->form, std::move(name)));
  MenuItem& item = *impl_->items.back();
  item.SetCaption(caption);
  impl_->menu->addAction(item.impl().action);
  return item;
}

MenuItem& Menu::AddSeparator(std::string name) {
  MenuItem& item = AddItem(std::move(name), "");
  item.impl().action->setSeparator(true);
  return item;
}

}  // namespace platform
