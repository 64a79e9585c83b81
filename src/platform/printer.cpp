#include "platform/printer.h"

#include <QFontMetricsF>
#include <cmath>
#include <functional>

#include "platform/dialogs.h"
#include "platform/fonts.h"
#include "platform/fonts_impl.h"
#include "platform/printer_impl.h"
#include "platform/widgets_impl.h"

namespace platform {
namespace {

constexpr double kShortSide = 8.5;  // inches
constexpr double kLongSide = 11;
constexpr double kPointsPerInch = 72;

Printer* installedPrinter = nullptr;

QFont FontOf(const PrintDocument& document, double dotsPerInch) {
  QFont font(QString::fromStdString(FamilyOf(document.face)));
  font.setPixelSize(static_cast<int>(std::lround(document.points * dotsPerInch / kPointsPerInch)));
  // Columns keep their places at every size on the screen.
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

bool AskForHelp(const PrintDocument& document, PrintError error) {
  const char* text = error == PrintError::DeviceTimeout
                         ? "Turn printer on, then click OK to continue."
                         : "Printer is out of paper.\nInsert paper, then click OK to continue";
  return MessageBox({.text = text,
                     .title = document.title,
                     .buttons = Buttons::OkCancel,
                     .icon = Icon::Warning}) == Answer::Ok;
}

// Tries a step until it is done; false when the print is given up.
bool Persist(const PrintDocument& document, const std::function<PrintError()>& step) {
  for (;;) {
    const PrintError error = step();
    if (error == PrintError::None) return true;
    if (error != PrintError::DeviceTimeout && error != PrintError::OutOfPaper) {
      MessageBox({.text = "Error =" + std::to_string(static_cast<int>(error)),
                  .title = document.title,
                  .icon = Icon::Warning});
      return false;
    }
    if (!AskForHelp(document, error)) return false;
  }
}

}  // namespace

double PageWidth(Orientation orientation) {
  return orientation == Orientation::Portrait ? kShortSide : kLongSide;
}

double PageHeight(Orientation orientation) {
  return orientation == Orientation::Portrait ? kLongSide : kShortSide;
}

double PrintedWidth(const PrintDocument& document, const std::string& text) {
  constexpr double kDots = 7200;  // so that the font's widths are not rounded
  const QFontMetricsF metrics(FontOf(document, kDots));
  return metrics.horizontalAdvance(ToUnicode(text, document.face)) / kDots;
}

QPageLayout LayoutOf(const PrintDocument& document) {
  QPageLayout layout(QPageSize(QPageSize::Letter),
                     document.orientation == Orientation::Portrait ? QPageLayout::Portrait
                                                                   : QPageLayout::Landscape,
                     QMarginsF());
  layout.setMode(QPageLayout::FullPageMode);
  return layout;
}

void PaintPage(QPainter& painter, const PrintDocument& document, const Page& page,
               double dotsPerInch) {
  QFont font = FontOf(document, dotsPerInch);
  painter.setPen(Qt::black);
  const double ascent = QFontMetricsF(font).ascent();
  for (const PageText& text : page) {
    font.setBold(text.bold);
    painter.setFont(font);
    painter.drawText(QPointF(text.x * dotsPerInch, text.y * dotsPerInch + ascent),
                     ToUnicode(text.text, document.face));
  }
}

Printer& ThePrinter() {
  return installedPrinter != nullptr ? *installedPrinter : SystemPrinter();
}

void InstallPrinter(Printer* printer) {
  installedPrinter = printer;
}

bool PrintOut(Printer& printer, const PrintDocument& document) {
  if (!Persist(document, [&] { return printer.StartDocument(document); })) return false;
  bool printed = true;
  for (const Page& page : document.pages) {
    printed = Persist(document, [&] { return printer.PrintPage(document, page); });
    if (!printed) break;
  }
  printed = printed && Persist(document, [&] { return printer.EndDocument(); });
  if (!printed) printer.Abandon();
  return printed;
}

}  // namespace platform
