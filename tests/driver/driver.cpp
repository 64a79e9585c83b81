// A hand inside the built program: a plugin that the toolkit loads when it is told to, and that
// presses the program's own controls as a script says, one step a line:
//
//   press CONTROL until CONTROL     select LIST ROW     choose "MENU ENTRY" until CONTROL
//   type BOX TEXT                   terminate
//
// A press is repeated until the control that it leads to can be reached: a form takes none in its
// first moments.  What cannot be done ends the program with kStuck and names the step.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QGenericPlugin>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QTextStream>
#include <QTimer>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

constexpr int kTick = 20;         // milliseconds
constexpr int kMostTicks = 1500;  // in which a step must have led somewhere
constexpr int kStuck = 3;

bool TakesInput(const QWidget& widget) {
  const QWidget* modal = QApplication::activeModalWidget();
  return widget.isVisible() && widget.isEnabled() && (modal == nullptr || modal == widget.window());
}

QWidget* Reach(const QString& name) {
  for (QWidget* widget : QApplication::allWidgets())
    if (widget->objectName() == name && TakesInput(*widget)) return widget;
  return nullptr;
}

QAction* ReachEntry(const QString& caption) {
  for (QWidget* window : QApplication::topLevelWidgets())
    for (QAction* entry : window->findChildren<QAction*>())
      if (TakesInput(*window) && entry->isEnabled() && entry->text().remove('&') == caption)
        return entry;
  return nullptr;
}

void Press(QWidget& widget) {
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) return button->click();
  const QPointF middle = widget.rect().center();
  QMouseEvent press(QEvent::MouseButtonPress, middle, widget.mapToGlobal(middle), Qt::LeftButton,
                    Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&widget, &press);
}

class Hand {
 public:
  explicit Hand(const QString& file) {
    QFile script(file);
    if (script.open(QIODevice::ReadOnly)) steps_ = QTextStream(&script).readAll().split('\n');
    steps_.removeAll("");
    QObject::connect(&timer_, &QTimer::timeout, [this] { Tick(); });
    timer_.start(kTick);
  }

 private:
  void Tick() {
    if (steps_.isEmpty()) return;
    if (TakeStep(steps_.front())) {
      steps_.removeFirst();
      ticks_ = 0;
    } else if (++ticks_ == kMostTicks) {
      std::fprintf(stderr, "stuck at: %s\n", qPrintable(steps_.front()));
      for (const QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible())
          std::fprintf(stderr, "shown: %s\n", qPrintable(window->windowTitle()));
      std::_Exit(kStuck);
    }
  }

  // True when the step is done.
  static bool TakeStep(const QString& step) {
    const QString verb = step.section(' ', 0, 0);
    const QString rest = step.section(' ', 1);
    if (verb == "press" || verb == "choose") return GoOn(verb, rest.split(" until "));
    if (verb == "terminate") return std::raise(SIGTERM) == 0;
    QWidget* widget = Reach(rest.section(' ', 0, 0));
    if (auto* list = qobject_cast<QListWidget*>(widget))
      list->setCurrentRow(rest.section(' ', 1).toInt());
    else if (auto* box = qobject_cast<QLineEdit*>(widget))
      box->setText(rest.section(' ', 1));
    return widget != nullptr;
  }

  static bool GoOn(const QString& verb, const QStringList& fromAndTo) {
    if (Reach(fromAndTo.last()) != nullptr) return true;
    if (verb == "choose") {
      if (QAction* entry = ReachEntry(fromAndTo.first())) entry->trigger();
    } else if (QWidget* widget = Reach(fromAndTo.first())) {
      Press(*widget);
    }
    return false;
  }

  QStringList steps_;
  int ticks_ = 0;
  QTimer timer_;
};

}  // namespace

class DriverPlugin final : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "driver.json")

 public:
  QObject* create(const QString&, const QString& script) override {
    // The application is not whole yet.
    QTimer::singleShot(0, this, [this, script] { hand_ = std::make_unique<Hand>(script); });
    return this;
  }

 private:
  std::unique_ptr<Hand> hand_;
};

#include "driver.moc"
