// Printing: pages of text that are looked at on the screen and then go to paper or into a PDF file.
//
// A document is laid out in inches on a logical page and does not know where it will be printed.
// Screen, paper and file draw it with one routine.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace platform {

enum class Orientation { Portrait = 1, Landscape = 2 };

// The logical page, in inches: 8.5 by 11 or 11 by 8.5.
double PageWidth(Orientation orientation);
double PageHeight(Orientation orientation);

// One text of a page, single-byte; x and y are its upper left corner in inches.
struct PageText {
  double x = 0;
  double y = 0;
  std::string text;
  bool bold = false;
};
using Page = std::vector<PageText>;

// Pages in one face and size.
struct PrintDocument {
  std::string title;  // of the preview, of the print job and of the file
  Orientation orientation = Orientation::Portrait;
  std::string face = "Courier New";
  double points = 12;
  std::vector<Page> pages;
};

// Width in inches of a text in the document's face and size.
double PrintedWidth(const PrintDocument& document, const std::string& text);

// Why a step of printing failed, by the numbers that the person is told.
enum class PrintError {
  None = 0,
  DeviceTimeout = 25,
  OutOfPaper = 27,
  CannotWriteFile = 75,
};

enum class PrintTarget { Paper, PdfFile };

// Where documents are printed.  A step that fails leaves the printer as it was: the same step can
// be tried again.
class Printer {
 public:
  virtual ~Printer() = default;
  // Lets the person choose a printer or a file.  False: he has thought better of it.
  virtual bool Choose(PrintTarget target, const PrintDocument& document) = 0;
  virtual PrintError StartDocument(const PrintDocument& document) = 0;
  // The next page.
  virtual PrintError PrintPage(const PrintDocument& document, const Page& page) = 0;
  virtual PrintError EndDocument() = 0;
  // Gives up a document that was started.
  virtual void Abandon() = 0;
};

// The system's printers and files unless another printer is installed; nullptr puts them back.
Printer& ThePrinter();
void InstallPrinter(Printer* printer);

// Writes a PDF file of this path, which is there as a whole after EndDocument or not at all.
std::unique_ptr<Printer> MakePdfPrinter(const std::string& path);
// The way to paper, without the dialog, and with the sheets in a PDF file, which the system's own
// "Print to File" leaves: for checks of what a printer gets.
std::unique_ptr<Printer> MakePaperPrinter(const std::string& path);

// Prints what Choose was given, step after step.  At a timeout or without paper the person is asked
// to help and the step is tried again, or the print is given up if he cancels; at any other error
// he is told its number and the print is given up.  False when it was given up.
bool PrintOut(Printer& printer, const PrintDocument& document);

// Shows the document in frmPrintPreview, whose buttons print it, save it and close the preview.
// Returns when the preview is closed, which a print or a saved file does as well.
void PrintAfterPreview(const PrintDocument& document);

}  // namespace platform
