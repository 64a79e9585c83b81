#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QVBoxLayout>

#include "platform/answer_box_impl.h"
#include "platform/dialogs_impl.h"
#include "platform/stop.h"
#include "platform/user.h"
#include "platform/widgets_impl.h"

namespace platform {
namespace {

constexpr double kTextPoints = 11;
constexpr QSize kButtonSize(104, 36);  // pixels
constexpr int kSign = 48;              // pixels, sides of the square that the sign stands in
constexpr QSize kInputSize(380, 30);
constexpr int kScreenMargin = 140;  // pixels beside the text of a box that fills the screen

// The sign beside a text: a letter in a disc, or in a triangle where something is at stake.
QPixmap SignOf(Icon icon) {
  const double ratio = qApp->devicePixelRatio();
  QPixmap sign(QSizeF(kSign * ratio, kSign * ratio).toSize());
  sign.setDevicePixelRatio(ratio);
  sign.fill(Qt::transparent);
  QPainter painter(&sign);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool isWarning = icon == Icon::Warning;
  QPainterPath shape;
  if (isWarning)
    shape.addPolygon(QPolygonF({{24, 5}, {45, 42}, {3, 42}, {24, 5}}));
  else
    shape.addEllipse(QPointF(24, 24), 20, 20);
  painter.setPen(QPen(kNavy, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(isWarning ? kAccent : kNavy);
  painter.drawPath(shape);
  painter.setPen(isWarning ? kNavy : QColor(Qt::white));
  painter.setFont(ToFont("Arial", 20, true));
  const QRect place = isWarning ? QRect(0, 10, kSign, 32) : QRect(0, 0, kSign, kSign);
  painter.drawText(place, Qt::AlignCenter, isWarning ? "!" : icon == Icon::Question ? "?" : "i");
  return sign;
}

// One look for all dialogs: readable type, generous buttons without the toolkit's pictures.
void Dress(QDialog& dialog, const std::string& title) {
  // In place of an empty title the toolkit would show the program's file name.
  dialog.setWindowTitle(title.empty() ? " " : ToText(title));
  dialog.setFont(ToFont("MS Sans Serif", kTextPoints, false));
  for (QAbstractButton* button : dialog.findChildren<QAbstractButton*>()) {
    button->setIcon({});
    button->setMinimumSize(kButtonSize);
  }
  dialog.layout()->setSizeConstraint(QLayout::SetFixedSize);
  dialog.layout()->setContentsMargins(20, 20, 20, 16);
  dialog.layout()->setSpacing(14);
}

QDialogButtonBox::StandardButtons ButtonsOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::YesNo:
      return QDialogButtonBox::Yes | QDialogButtonBox::No;
    case Buttons::OkCancel:
      return QDialogButtonBox::Ok | QDialogButtonBox::Cancel;
    default:
      return QDialogButtonBox::Ok;
  }
}

Answer AnswerOf(QDialogButtonBox::StandardButton button) {
  switch (button) {
    case QDialogButtonBox::Yes:
      return Answer::Yes;
    case QDialogButtonBox::No:
      return Answer::No;
    case QDialogButtonBox::Cancel:
      return Answer::Cancel;
    default:
      return Answer::Ok;
  }
}

}  // namespace

AnswerBox::AnswerBox(const Message& message, QWidget* parent)
    : QDialog(parent),
      message_(message),
      text_(new QLabel(ToText(message.text))),
      buttons_(new QDialogButtonBox(ButtonsOf(message.buttons))) {
  auto* layout = new QGridLayout(this);
  const int column = message.icon == Icon::None ? 0 : 1;
  if (message.icon != Icon::None) {
    auto* sign = new QLabel;
    sign->setPixmap(SignOf(message.icon));
    layout->addWidget(sign, 0, 0, Qt::AlignTop);
  }
  layout->addWidget(text_, 0, column);
  layout->addWidget(buttons_, 1, 0, 1, column + 1);
  Dress(*this, message.title);
  text_->setTextFormat(Qt::PlainText);
  text_->setFont(font());
  // A box is as wide as its longest line, unless no screen were.
  const int widest = QGuiApplication::primaryScreen()->availableSize().width() - kScreenMargin;
  if (text_->sizeHint().width() > widest) {
    text_->setWordWrap(true);
    text_->setFixedWidth(widest);
  }
  setAccessibleName(text_->text());
  buttons_->buttons().constFirst()->setFocus();
  QObject::connect(buttons_, &QDialogButtonBox::clicked, [this](QAbstractButton* button) {
    answer_ = AnswerOf(buttons_->standardButton(button));
    accept();
  });
}

int AnswerBox::Lines() {
  layout()->activate();
  return text_->height() / text_->fontMetrics().lineSpacing();
}

// Esc and the close box.
void AnswerBox::reject() {
  if (message_.buttons == Buttons::YesNo) return;
  answer_ = message_.buttons == Buttons::OkCancel ? Answer::Cancel : Answer::Ok;
  QDialog::reject();
}

bool NobodyIsThere() {
  const QString name = QGuiApplication::platformName();
  return name == "offscreen" || name == "minimal";
}

Answer ShowMessage(const Message& message) {
  AnswerBox box(message, FrontWindow());
  box.exec();
  return box.Chosen();
}

Answer MessageBox(const Message& message) {
  if (User* user = InstalledUser()) return user->AtMessage(message);
  if (NobodyIsThere()) Stop("MessageBox: nobody is there to answer: " + message.text);
  return ShowMessage(message);
}

std::optional<std::string> InputBox(const std::string& prompt, const std::string& title) {
  if (User* user = InstalledUser()) return user->AtInput(prompt);
  if (NobodyIsThere()) Stop("InputBox: nobody is there to answer: " + prompt);
  QDialog dialog(FrontWindow());
  auto* label = new QLabel(ToText(prompt));
  auto* input = new QLineEdit;
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  label->setTextFormat(Qt::PlainText);
  label->setBuddy(input);
  input->setAccessibleName(label->text());
  input->setMinimumSize(kInputSize);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  auto* layout = new QVBoxLayout(&dialog);
  for (QWidget* part : std::initializer_list<QWidget*>{label, input, buttons})
    layout->addWidget(part);
  Dress(dialog, title);
  if (dialog.exec() != QDialog::Accepted) return {};
  return FromText(input->text());
}

void Beep() {
  QApplication::beep();
}

}  // namespace platform
