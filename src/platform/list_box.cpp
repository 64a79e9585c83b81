#include <QApplication>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QListWidget>
#include <QProxyStyle>
#include <algorithm>
#include <cmath>

#include "platform/widgets_impl.h"

namespace platform {
namespace {

constexpr int kHidingGap = 100;  // blanks
constexpr int kFullText = Qt::UserRole;

// The toolkit puts its mark for the keyboard on the first row of a list with the focus, selected or
// not.  Where nothing is selected an arrow key selects that row and does not step past it.
class Rows final : public QListWidget {
 public:
  explicit Rows(ListBox& box) : box_(box) {}

 protected:
  void focusInEvent(QFocusEvent* event) override {
    QListWidget::focusInEvent(event);
    if (!box_.OnGotFocus) return;
    CallLater(box_.impl().life, [&box = box_] { CallHandler(box.OnGotFocus); });
  }
  void keyPressEvent(QKeyEvent* event) override {
    const bool arrow = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
    if (arrow && count() > 0 && selectedItems().isEmpty())
      setCurrentRow(std::max(currentRow(), 0));
    else
      QListWidget::keyPressEvent(event);
  }

 private:
  ListBox& box_;
};

// Keeps a row's text clear of the list's edge.
class RowStyle final : public QProxyStyle {
 public:
  RowStyle() : QProxyStyle("Fusion") { setParent(qApp); }
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    constexpr int kMorePadding = 3;
    const int pixels = QProxyStyle::pixelMetric(metric, option, widget);
    return metric == PM_FocusFrameHMargin ? pixels + kMorePadding : pixels;
  }
};

QStyle* SharedRowStyle() {
  static QPointer<RowStyle> style;
  if (!style) style = new RowStyle;
  return style;
}

QListWidget& ListOf(const ListBox& box) {
  return WidgetOf<QListWidget>(box);
}

// The selected row, not the current one: the toolkit gives a list a current row with the focus.
int SelectedRow(const QListWidget& list) {
  const QList<QListWidgetItem*> selected = list.selectedItems();
  return selected.isEmpty() ? -1 : list.row(selected.first());
}

void SelectQuietly(QListWidget& list, int row) {
  const QSignalBlocker quiet(&list);
  list.setCurrentRow(row);
  if (row < 0) list.clearSelection();
}

}  // namespace

ListBox::ListBox(Control& parent, std::string name) : Control(&parent, std::move(name)) {
  QListWidget& list = PutOn(parent, *this, new Rows(*this));
  list.setStyle(SharedRowStyle());
  list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list.setTextElideMode(Qt::ElideNone);
  list.setUniformItemSizes(true);
  QObject::connect(&list, &QListWidget::itemSelectionChanged, [this, &list] {
    // A click with the control key would leave no row selected.
    if (SelectedRow(list) < 0)
      SelectQuietly(list, list.currentRow());
    else
      HandleLater(*this);
  });
  QObject::connect(&list, &QListWidget::itemDoubleClicked,
                   [this] { CallLater(impl().life, [this] { DblClick(); }); });
}

void ListBox::Clear() {
  const QSignalBlocker quiet(&ListOf(*this));
  ListOf(*this).clear();
}

void ListBox::AddItem(const std::string& text, std::size_t seen) {
  std::string front = text.substr(0, std::min(text.find(std::string(kHidingGap, ' ')), seen));
  if (front.size() < text.size()) front.erase(front.find_last_not_of(' ') + 1);
  auto* item = new QListWidgetItem(ToText(front), &ListOf(*this));
  // Byte for byte: fields are found by their places.
  item->setData(kFullText, QByteArray::fromStdString(text));
  item->setSizeHint({0, ToPixels(rowHeight_)});
}

int ListBox::ListCount() const {
  return ListOf(*this).count();
}

std::string ListBox::List(int index) const {
  const QListWidgetItem* item = ListOf(*this).item(index);
  return item == nullptr ? "" : item->data(kFullText).toByteArray().toStdString();
}

int ListBox::ListIndex() const {
  return SelectedRow(ListOf(*this));
}

void ListBox::SetListIndex(int index) {
  const int before = ListIndex();
  SelectQuietly(ListOf(*this), index < ListCount() ? index : -1);
  const int now = ListIndex();
  if (now != before && now >= 0) CallHandler(OnClick);
}

std::string ListBox::Text() const {
  return List(ListIndex());
}

int ListBox::RowHeight() const {
  return rowHeight_;
}

void ListBox::SetRowHeight(int twips) {
  rowHeight_ = twips;
}

int ListBox::TextWidth(const std::string& text) const {
  const QFontMetricsF metrics(ListOf(*this).font());
  return static_cast<int>(std::lround(metrics.horizontalAdvance(ToText(text)) * TwipsPerPixelX));
}

bool ListBox::DblClick() {
  if (!CanBeClicked()) return false;
  CallHandler(OnDblClick);
  return true;
}

}  // namespace platform
