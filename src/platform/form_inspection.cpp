#include "platform/form_inspection.h"

#include <QAbstractButton>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

#include "platform/answer_box_impl.h"
#include "platform/form_window_impl.h"
#include "platform/widgets_impl.h"

namespace platform::inspection {
namespace {

constexpr int kFaceMargin = 6;    // on both sides of a button's text, its border included
constexpr int kTitleMargin = 10;  // of a frame's

Excess Beyond(QSize text, QSize place) {
  return {std::max(text.width() - place.width(), 0), std::max(text.height() - place.height(), 0)};
}

// Pixels that a text takes, wrapped at a width.
QSize SizeOf(const QString& text, const QWidget& widget, int width, int flags) {
  if (text.isEmpty()) return {0, 0};
  constexpr int kTall = 10000;
  return widget.fontMetrics().boundingRect(QRect(0, 0, width, kTall), flags, text).size();
}

// The same of a text with bold words.
QSize SizeOfRich(const QLabel& label) {
  QTextDocument text;
  text.setDefaultFont(label.font());
  text.setDocumentMargin(0);
  text.setHtml(label.text());
  text.setTextWidth(label.width());
  return text.size().toSize();
}

// A caption that is too wide for its button takes more lines.
Excess OfFace(const QAbstractButton& button) {
  const QSize place = button.size() - QSize(2 * kFaceMargin, kFaceMargin);
  constexpr int kFlags = Qt::TextShowMnemonic | Qt::TextWordWrap;
  return Beyond(SizeOf(button.text(), button, place.width(), kFlags), place);
}

Excess OfList(const QListWidget& list) {
  int widest = 0;
  for (int row = 0; row < list.count(); ++row)
    widest = std::max(widest, list.fontMetrics().horizontalAdvance(list.item(row)->text()));
  const int margin = list.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list) + 1;
  return Beyond({margin + widest, 0}, {list.viewport()->width(), 0});
}

}  // namespace

std::vector<Control*> Controls(const Form& form) {
  return form.formImpl().controls;
}

bool IsSeen(const Control& control) {
  return control.impl().widget->isVisible();
}

Control* Focused(const Form& form) {
  return FocusedControl(form);
}

Button* DefaultButton(const Form& form) {
  return form.formImpl().standard;
}

Button* NeutralButton(const Form& form) {
  return form.formImpl().neutral;
}

std::vector<MenuItem*> MenuItems(const Form& form) {
  std::vector<MenuItem*> items = form.formImpl().items;
  std::erase_if(items, [](const MenuItem* item) { return item->Caption().empty(); });
  return items;
}

bool HidesCharacters(const Control& textBox) {
  const auto* line = qobject_cast<const QLineEdit*>(textBox.impl().widget);
  return line != nullptr && line->echoMode() != QLineEdit::Normal;
}

std::vector<std::string> BoldParts(const Label& label) {
  QTextDocument text;
  text.setHtml(WidgetOf<QLabel>(label).text());
  std::vector<std::string> parts;
  for (QTextBlock block = text.begin(); block.isValid(); block = block.next())
    for (auto part = block.begin(); part != block.end(); ++part)
      if (part.fragment().charFormat().fontWeight() >= QFont::Bold)
        parts.push_back(FromText(part.fragment().text()));
  return parts;
}

bool TakesTab(const Control& control) {
  return (control.impl().widget->focusPolicy() & Qt::TabFocus) != 0;
}

Edges EdgesOf(const Control& control) {
  const QWidget& widget = *control.impl().widget;
  const QPoint corner = widget.mapTo(control.OwnForm()->impl().client, QPoint(0, 0));
  return {corner.x(), corner.y(), corner.x() + widget.width(), corner.y() + widget.height()};
}

ShownMessage Shown(const Message& message) {
  AnswerBox box(message, nullptr);
  return {FromText(box.windowTitle()), box.Lines()};
}

Excess ExcessOfText(const Control& control) {
  QWidget& widget = *control.impl().widget;
  if (const auto* label = qobject_cast<QLabel*>(&widget))
    return Beyond(label->textFormat() == Qt::RichText
                      ? SizeOfRich(*label)
                      : SizeOf(label->text(), widget, widget.width(), Qt::TextWordWrap),
                  widget.size());
  if (const auto* option = qobject_cast<QRadioButton*>(&widget))
    return Beyond(option->minimumSizeHint(), widget.size());
  if (const auto* button = qobject_cast<QAbstractButton*>(&widget)) return OfFace(*button);
  if (const auto* frame = qobject_cast<QGroupBox*>(&widget))
    return Beyond(SizeOf(frame->title(), widget, 0, 0), widget.size() - QSize(2 * kTitleMargin, 0));
  if (const auto* list = qobject_cast<QListWidget*>(&widget)) return OfList(*list);
  return {0, 0};
}

}  // namespace platform::inspection
