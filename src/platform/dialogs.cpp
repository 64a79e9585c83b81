#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

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

// A Yes/No box stays until one of its buttons is pressed.
class AnswerBox final : public QMessageBox {
 public:
  using QMessageBox::QMessageBox;

 protected:
  void closeEvent(QCloseEvent* event) override {
    if (MustAnswer())
      event->ignore();
    else
      QMessageBox::closeEvent(event);
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (!(MustAnswer() && event->key() == Qt::Key_Escape)) QMessageBox::keyPressEvent(event);
  }

 private:
  bool MustAnswer() const { return standardButtons().testFlag(QMessageBox::Yes); }
};

QMessageBox::StandardButtons ButtonsOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case Buttons::OkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    default:
      return QMessageBox::Ok;
  }
}

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
void Dress(QDialog& dialog) {
  dialog.setFont(ToFont("MS Sans Serif", kTextPoints, false));
  for (QAbstractButton* button : dialog.findChildren<QAbstractButton*>()) {
    button->setIcon({});
    button->setMinimumSize(kButtonSize);
  }
  dialog.layout()->setContentsMargins(20, 20, 20, 16);
  dialog.layout()->setSpacing(14);
}

}  // namespace

bool NobodyIsThere() {
  const QString name = QGuiApplication::platformName();
  return name == "offscreen" || name == "minimal";
}

Answer ShowMessage(const Message& message) {
  AnswerBox box(QMessageBox::NoIcon, ToText(message.title), ToText(message.text),
                ButtonsOf(message.buttons), FrontWindow());
  box.setTextFormat(Qt::PlainText);
  if (message.icon != Icon::None) box.setIconPixmap(SignOf(message.icon));
  Dress(box);
  switch (box.exec()) {
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::No:
      return Answer::No;
    case QMessageBox::Cancel:
      return Answer::Cancel;
    default:
      return Answer::Ok;
  }
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
  dialog.setWindowTitle(ToText(title));
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
  layout->setSizeConstraint(QLayout::SetFixedSize);
  for (QWidget* part : std::initializer_list<QWidget*>{label, input, buttons})
    layout->addWidget(part);
  Dress(dialog);
  if (dialog.exec() != QDialog::Accepted) return {};
  return FromText(input->text());
}

void Beep() {
  QApplication::beep();
}

}  // namespace platform
