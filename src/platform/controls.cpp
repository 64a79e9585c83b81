#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QTextDocumentFragment>

#include "platform/face_button_impl.h"
#include "platform/widgets_impl.h"

namespace platform {

Label::Label(Control& parent, std::string name, const std::string& caption)
    : Control(&parent, std::move(name)) {
  QLabel& label = PutOn(parent, *this, new Pressable<QLabel>(*this));
  label.setWordWrap(true);
  label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
  SetCaption(caption);
}

void Label::SetCaption(const std::string& caption) {
  QLabel& label = WidgetOf<QLabel>(*this);
  label.setTextFormat(Qt::PlainText);
  label.setText(ToText(caption));
}

void Label::SetMarkedCaption(const std::string& marked) {
  const QStringList parts = ToText(marked).toHtmlEscaped().replace("\n", "<br>").split('|');
  QString html = "<p style=\"white-space: pre-wrap\">";
  for (qsizetype i = 0; i < parts.size(); ++i)
    html += i % 2 == 1 ? "<b>" + parts[i] + "</b>" : parts[i];
  QLabel& label = WidgetOf<QLabel>(*this);
  label.setTextFormat(Qt::RichText);
  label.setText(html);
}

void Label::SetUtf8Caption(const std::string& caption) {
  QString text = QString::fromStdString(caption);
  WidgetOf<QLabel>(*this).setText(text.replace('\r', '\n'));
}

std::string Label::Caption() const {
  const QLabel& label = WidgetOf<QLabel>(*this);
  if (label.textFormat() == Qt::PlainText) return FromText(label.text());
  return FromText(QTextDocumentFragment::fromHtml(label.text()).toPlainText());
}

void Label::SetAlignment(Align align) {
  const Qt::Alignment horizontal = align == Align::Left     ? Qt::AlignLeft
                                   : align == Align::Centre ? Qt::AlignHCenter
                                                            : Qt::AlignRight;
  QLabel& label = WidgetOf<QLabel>(*this);
  label.setAlignment(horizontal | (label.alignment() & Qt::AlignVertical_Mask));
}

void Label::CentreVertically() {
  QLabel& label = WidgetOf<QLabel>(*this);
  label.setAlignment((label.alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter);
}

void Label::SizeToCaption() {
  constexpr int kSide = 4;  // pixels of ground beside the text; above and below the font's own do
  QLabel& label = WidgetOf<QLabel>(*this);
  const QSize size = QFontMetrics(label.font()).size(0, label.text());
  label.setContentsMargins(kSide, 0, kSide, 0);
  Move(Left(), Top(), (size.width() + 2 * kSide) * TwipsPerPixelX, size.height() * TwipsPerPixelY);
}

Button::Button(Control& parent, std::string name, const std::string& caption)
    : Control(&parent, std::move(name)) {
  FaceButton& button = PutOn(parent, *this, new FaceButton);
  QObject::connect(&button, &QPushButton::clicked, [this] { HandleLater(*this); });
  SetCaption(caption);
}

void Button::SetCaption(const std::string& caption) {
  WidgetOf<FaceButton>(*this).setText(ToText(caption));
}

std::string Button::Caption() const {
  return FromText(WidgetOf<FaceButton>(*this).text());
}

void Button::SetPicture(const std::string& name) {
  WidgetOf<FaceButton>(*this).SetPicture(name);
}

std::string Button::Picture() const {
  return WidgetOf<FaceButton>(*this).Picture();
}

void Button::SetRepeats(bool repeats) {
  WidgetOf<FaceButton>(*this).SetRepeats(repeats);
}

OptionButton::OptionButton(Control& parent, std::string name, const std::string& caption)
    : Control(&parent, std::move(name)) {
  QRadioButton& option = PutOn(parent, *this, new QRadioButton(ToText(caption)));
  QObject::connect(&option, &QRadioButton::clicked, [this] { HandleLater(*this); });
}

void OptionButton::SetValue(bool chosen) {
  QRadioButton& option = WidgetOf<QRadioButton>(*this);
  option.setChecked(chosen);
  if (!chosen) return;
  // Tab comes to the chosen one; the toolkit sees to that for clicks and keys alone.
  for (QRadioButton* other :
       option.parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly))
    other->setFocusPolicy(other == &option ? Qt::StrongFocus : Qt::ClickFocus);
}

bool OptionButton::Value() const {
  return WidgetOf<QRadioButton>(*this).isChecked();
}

void OptionButton::BeforeClick() {
  SetValue(true);
}

Frame::Frame(Control& parent, std::string name, const std::string& caption)
    : Control(&parent, std::move(name)) {
  if (caption.empty())
    PutOn(parent, *this, new Pressable<QWidget>(*this));
  else
    PutOn(parent, *this, new Pressable<QGroupBox>(*this, ToText(caption)));
}

}  // namespace platform
