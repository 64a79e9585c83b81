// Drawing a page with the toolkit: for the .cpp files of this folder alone.
#pragma once

#include <QPageLayout>
#include <QPainter>

#include "platform/printer.h"

namespace platform {

// The sheet that a document is drawn on: letter, in its orientation, without margins of its own.
QPageLayout LayoutOf(const PrintDocument& document);
// Draws one page; (0, 0) is the sheet's corner, and dotsPerInch the painter's units an inch.
void PaintPage(QPainter& painter, const PrintDocument& document, const Page& page,
               double dotsPerInch);

// The printers of the system and PDF files.
Printer& SystemPrinter();

}  // namespace platform
