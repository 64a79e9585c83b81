#include "platform/program.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QPalette>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <QTimer>
#include <memory>

#include "platform/dialogs_impl.h"
#include "platform/events.h"
#include "platform/fonts.h"
#include "platform/picture_impl.h"
#include "platform/widgets_impl.h"

namespace platform {
namespace {

std::unique_ptr<QApplication> application;

// One look on every desktop: what we see here is what a school sees.
QPalette CoursePalette() {
  const QColor ground = ToQColor(colour::FormGrey);
  QPalette palette(QColor(212, 212, 216), ground);
  palette.setColor(QPalette::WindowText, kInk);
  palette.setColor(QPalette::ButtonText, kInk);
  palette.setColor(QPalette::Text, kInk);
  palette.setColor(QPalette::Base, QColor(250, 247, 240));
  palette.setColor(QPalette::AlternateBase, QColor(240, 237, 230));
  palette.setColor(QPalette::Highlight, kNavy);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, QColor(250, 247, 240));
  palette.setColor(QPalette::ToolTipText, kInk);
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
    palette.setColor(QPalette::Disabled, role, QColor(120, 124, 136));
  return palette;
}

// The course looks and behaves the same on every desktop and in every language.
void PrepareToolkit() {
  qputenv("LC_ALL", "C.UTF-8");
  qputenv("QT_QPA_PLATFORMTHEME", "generic");
  QLocale::setDefault(QLocale::c());
  QGuiApplication::setDesktopSettingsAware(false);
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
  // Whole factors only, so that the surfaces' pixels stay sharp on dense screens.
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
      Qt::HighDpiScaleFactorRoundingPolicy::RoundPreferFloor);
}

// Without a screen the toolkit complains of every window that it cannot size.
void KeepQuietWithoutScreen() {
  if (!NobodyIsThere()) return;
  static QtMessageHandler toolkitHandler = nullptr;
  toolkitHandler = qInstallMessageHandler(
      [](QtMsgType type, const QMessageLogContext& context, const QString& message) {
        if (!message.startsWith("This plugin does not support"))
          toolkitHandler(type, context, message);
      });
}

std::filesystem::path ToPath(const QString& path) {
  return std::filesystem::path(QFile::encodeName(path).toStdString());
}

QString FromPath(const std::filesystem::path& path) {
  return QFile::decodeName(QByteArray::fromStdString(path.native()));
}

}  // namespace

Application::Application(int&, char** argv) {
  // There is no command line, the toolkit's own options included.
  static int count = 1;
  ReadFontsPlainly();
  PrepareToolkit();
  application = std::make_unique<QApplication>(count, argv);
  KeepQuietWithoutScreen();
  QCoreApplication::setApplicationName("sumwright-algebra1");
  QApplication::setStyle("Fusion");
  QApplication::setPalette(CoursePalette());
  // The last form is closed when the course says so; see Run.
  QApplication::setQuitOnLastWindowClosed(false);
  CheckFonts();
  QApplication::setFont(ToFont("MS Sans Serif", 10, false));
  // Nobody waits for the icon: it is drawn when the first window stands.
  QTimer::singleShot(200, qApp, [] {
    QApplication::setWindowIcon(QIcon(QPixmap::fromImage(PictureImage("app_icon", {64, 64}))));
  });
}

Application::~Application() {
  application.reset();
}

int Application::Run() {
  while (!Form::ShownForms().empty()) WaitEvents(Form::ShownForms().back()->Name());
  return 0;
}

std::filesystem::path ProgramFolder() {
  return ToPath(QCoreApplication::applicationDirPath());
}

std::filesystem::path UserDataFolder() {
  return ToPath(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

std::filesystem::path UserConfigFolder() {
  return ToPath(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
}

bool IsWritable(const std::filesystem::path& folder) {
  QTemporaryFile file(FromPath(folder / "write-test-XXXXXX"));
  return file.open();
}

bool FileExists(const std::filesystem::path& file) {
  return QFile::exists(FromPath(file));
}

bool StartProgram(const std::filesystem::path& file) {
  return QProcess::startDetached(FromPath(file), {});
}

}  // namespace platform
