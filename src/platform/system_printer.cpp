// Printing with the toolkit: printers of the system and PDF files.
#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QFileDialog>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <memory>

#include "platform/printer_impl.h"
#include "platform/user.h"
#include "platform/widgets_impl.h"

namespace platform {
namespace {

constexpr int kFileDotsPerInch = 600;

// What paper and files have in common: pages that are painted one after the other.
class PagedPrinter : public Printer {
 public:
  PrintError PrintPage(const PrintDocument& document, const Page& page) override {
    if (pagesPrinted_ > 0 && !Device().newPage()) return Failure();
    ++pagesPrinted_;
    PaintPage(painter_, document, page, Device().logicalDpiX());
    return PrintError::None;
  }

 protected:
  virtual QPagedPaintDevice& Device() = 0;
  virtual PrintError Failure() const = 0;

  PrintError BeginPainting() {
    pagesPrinted_ = 0;
    return painter_.begin(&Device()) ? PrintError::None : Failure();
  }
  void EndPainting() {
    if (painter_.isActive()) painter_.end();
  }

 private:
  QPainter painter_;
  int pagesPrinted_ = 0;
};

// A printer of the system.  What goes wrong behind its queue is the queue's to tell.
class PaperPrinter final : public PagedPrinter {
 public:
  // The pages are made for this paper; the dialog offers others.
  PaperPrinter() : printer_(QPrinter::HighResolution) {
    printer_.setPageSize(QPageSize(QPageSize::Letter));
  }
  explicit PaperPrinter(const QString& path) : PaperPrinter() { printer_.setOutputFileName(path); }
  ~PaperPrinter() override { EndPainting(); }

  bool Choose(PrintTarget, const PrintDocument& document) override {
    Prepare(document);
    QPrintDialog dialog(&printer_, QApplication::activeWindow());
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize |
                      QAbstractPrintDialog::PrintCollateCopies);
    return dialog.exec() == QDialog::Accepted;
  }

  PrintError StartDocument(const PrintDocument& document) override {
    Prepare(document);
    const QPrinterInfo info(printer_);
    if (!info.isNull() && info.state() == QPrinter::Error) return Failure();
    return BeginPainting();
  }

  PrintError EndDocument() override {
    EndPainting();
    return printer_.printerState() == QPrinter::Error ? Failure() : PrintError::None;
  }

  void Abandon() override {
    printer_.abort();
    EndPainting();
  }

 private:
  QPagedPaintDevice& Device() override { return printer_; }
  PrintError Failure() const override {
    return printer_.outputFileName().isEmpty() ? PrintError::DeviceTimeout
                                               : PrintError::CannotWriteFile;
  }

  void Prepare(const PrintDocument& document) {
    printer_.setDocName(ToText(document.title));
    printer_.setFullPage(true);
    printer_.setPageOrientation(LayoutOf(document).orientation());
  }

  QPrinter printer_;
};

// A PDF file, which is there as a whole or not at all.
class PdfPrinter final : public PagedPrinter {
 public:
  explicit PdfPrinter(QString path) : path_(std::move(path)) {}
  ~PdfPrinter() override { EndPainting(); }

  bool Choose(PrintTarget, const PrintDocument&) override { return true; }

  PrintError StartDocument(const PrintDocument& document) override {
    bytes_.open(QIODevice::WriteOnly | QIODevice::Truncate);
    writer_ = std::make_unique<QPdfWriter>(&bytes_);
    writer_->setResolution(kFileDotsPerInch);
    writer_->setTitle(ToText(document.title));
    writer_->setPageLayout(LayoutOf(document));
    return BeginPainting();
  }

  PrintError EndDocument() override {
    EndPainting();
    QSaveFile file(path_);
    const QByteArray& bytes = bytes_.data();
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    return written ? PrintError::None : Failure();
  }

  void Abandon() override { EndPainting(); }

 private:
  QPagedPaintDevice& Device() override { return *writer_; }
  PrintError Failure() const override { return PrintError::CannotWriteFile; }

  QString path_;
  QBuffer bytes_;
  std::unique_ptr<QPdfWriter> writer_;
};

// Empty when the person thinks better of it.
QString AskForFile(const PrintDocument& document) {
  const QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  QFileDialog dialog(QApplication::activeWindow(), "Save as PDF",
                     folder.filePath(ToText(document.title) + ".pdf"), "PDF files (*.pdf)");
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix("pdf");
  if (dialog.exec() != QDialog::Accepted) return {};
  return dialog.selectedFiles().value(0);
}

// Whatever the person chooses, one after the other.
class MachinePrinter final : public Printer {
 public:
  bool Choose(PrintTarget target, const PrintDocument& document) override {
    chosen_.reset();
    // A scripted person cannot use the system's own dialogs: he is told where he stands.
    if (User* user = InstalledUser()) {
      user->AtWait(target == PrintTarget::Paper ? "print dialog" : "file dialog");
      return false;
    }
    if (target == PrintTarget::Paper) {
      chosen_ = std::make_unique<PaperPrinter>();
      return chosen_->Choose(target, document);
    }
    const QString path = AskForFile(document);
    if (path.isEmpty()) return false;
    chosen_ = std::make_unique<PdfPrinter>(path);
    return true;
  }

  PrintError StartDocument(const PrintDocument& document) override {
    return chosen_->StartDocument(document);
  }
  PrintError PrintPage(const PrintDocument& document, const Page& page) override {
    return chosen_->PrintPage(document, page);
  }
  PrintError EndDocument() override { return chosen_->EndDocument(); }
  void Abandon() override { chosen_->Abandon(); }

 private:
  std::unique_ptr<Printer> chosen_;
};

}  // namespace

std::unique_ptr<Printer> MakePdfPrinter(const std::string& path) {
  return std::make_unique<PdfPrinter>(QFile::decodeName(QByteArray::fromStdString(path)));
}

std::unique_ptr<Printer> MakePaperPrinter(const std::string& path) {
  return std::make_unique<PaperPrinter>(QFile::decodeName(QByteArray::fromStdString(path)));
}

Printer& SystemPrinter() {
  // Never destroyed: a printer must not outlive the toolkit, which goes before the statics do.
  static auto& printer = *new MachinePrinter;
  return printer;
}

}  // namespace platform
