#include "platform/program.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>
#include <QStyleFactory>
#include <QTemporaryFile>
#include <memory>

#include "platform/fonts.h"
#include "platform/picture_impl.h"
#include "platform/widgets_impl.h"

namespace platform {
namespace {

std::unique_ptr<QApplication> application;

// One look on every desktop: what we see here is what a school sees.
QPalette CoursePalette() {
  const QColor ground = ToQColor(colour::FormGrey);
  const QColor ink(16, 24, 48);
  QPalette palette(QColor(212, 212, 216), ground);
  palette.setColor(QPalette::WindowText, ink);
  palette.setColor(QPalette::ButtonText, ink);
  palette.setColor(QPalette::Text, ink);
  palette.setColor(QPalette::Base, QColor(250, 247, 240));
  palette.setColor(QPalette::AlternateBase, QColor(240, 237, 230));
  palette.setColor(QPalette::Highlight, QColor(22, 40, 79));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, QColor(250, 247, 240));
  palette.setColor(QPalette::ToolTipText, ink);
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
    palette.setColor(QPalette::Disabled, role, QColor(120, 124, 136));
  return palette;
}

std::filesystem::path ToPath(const QString& path) {
  return std::filesystem::path(QFile::encodeName(path).toStdString());
}

QString FromPath(const std::filesystem::path& path) {
  return QFile::decodeName(QByteArray::fromStdString(path.native()));
}

}  // namespace

Application::Application(int& argc, char** argv) {
  QLocale::setDefault(QLocale::c());
  application = std::make_unique<QApplication>(argc, argv);
  QCoreApplication::setApplicationName("sumwright-algebra1");
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QApplication::setPalette(CoursePalette());
  QApplication::setQuitOnLastWindowClosed(true);
  CheckFonts();
  QApplication::setFont(ToFont("MS Sans Serif", 10, false));
}

Application::~Application() {
  application.reset();
}

int Application::Run() {
  return QApplication::exec();
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
