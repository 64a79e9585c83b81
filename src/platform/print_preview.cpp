// The preview of a document: the form before every print.
#include <QGraphicsView>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <algorithm>

#include "platform/form.h"
#include "platform/look.h"
#include "platform/printer_impl.h"
#include "platform/stop.h"
#include "platform/widgets_impl.h"

namespace platform {
namespace {

using look::MovePixels;

// The pages of a document, one below the other, on a pane that scrolls and zooms.
class PreviewPane final : public Control {
 public:
  PreviewPane(Control& parent, std::string name, const PrintDocument& document)
      : Control(&parent, std::move(name)), document_(document), sheets_(QPrinter::HighResolution) {
    // A file's printer needs no queue of the system; nothing is ever written to it.
    sheets_.setOutputFormat(QPrinter::PdfFormat);
    sheets_.setPageLayout(LayoutOf(document));
    view_ = &PutOn(parent, *this, new QPrintPreviewWidget(&sheets_));
    LetKeysScroll();
    QObject::connect(view_, &QPrintPreviewWidget::paintRequested,
                     [this](QPrinter* printer) { PaintAll(*printer); });
    QObject::connect(view_, &QPrintPreviewWidget::previewChanged, [this] {
      if (OnChange) OnChange();
    });
    view_->fitToWidth();
    view_->updatePreview();
  }

  // A page came to the front, or all were drawn.
  std::function<void()> OnChange;

  int CurrentPage() const { return view_->currentPage(); }  // from 1
  void ShowPage(int page) { view_->setCurrentPage(page); }
  void ZoomIn() { view_->zoomIn(1.25); }
  void ZoomOut() { view_->zoomOut(1.25); }

 private:
  // The keyboard is the pages', which are a widget inside the toolkit's own.
  void LetKeysScroll() {
    auto* pages = view_->findChild<QGraphicsView*>();
    pages->setAccessibleName("Pages to print");
    view_->setFocusPolicy(Qt::StrongFocus);
    view_->setFocusProxy(pages);
  }

  void PaintAll(QPrinter& printer) {
    QPainter painter(&printer);
    bool first = true;
    for (const Page& page : document_.pages) {
      if (!std::exchange(first, false)) printer.newPage();
      PaintPage(painter, document_, page, printer.logicalDpiX());
    }
  }

  const PrintDocument& document_;
  QPrinter sheets_;
  QPrintPreviewWidget* view_;
};

// In pixels.
constexpr int kWidth = 944;
constexpr int kHeight = 640;
constexpr int kMargin = 16;
constexpr int kButtonHeight = 36;
constexpr int kPaneTop = kMargin + kButtonHeight + 12;

class PreviewForm {
 public:
  explicit PreviewForm(const PrintDocument& document)
      : document_(document),
        form_("frmPrintPreview", kWidth * TwipsPerPixelX, kHeight * TwipsPerPixelY),
        cmdPrint_(form_, "cmdPrint", "&Print..."),
        cmdSave_(form_, "cmdSave", "&Save as PDF..."),
        cmdPrevious_(form_, "cmdPrevious", "P&revious"),
        lblPage_(form_, "lblPage"),
        cmdNext_(form_, "cmdNext", "&Next"),
        cmdZoomIn_(form_, "cmdZoomIn", "&Larger"),
        cmdZoomOut_(form_, "cmdZoomOut", "S&maller"),
        cmdCancel_(form_, "cmdCancel", "Cancel"),
        pane_(form_, "prvPages", document) {
    form_.SetCaption(document.title);
    Place();
    Bind();
    ShowPageNumber();
  }

  void Show() { form_.ShowModal(); }

 private:
  int PageCount() const { return static_cast<int>(document_.pages.size()); }

  void Place() {
    int left = kMargin;
    const auto put = [&left](Control& control, int width, int gap) {
      MovePixels(control, left, kMargin, width, kButtonHeight);
      left += width + gap;
    };
    put(cmdPrint_, 104, 8);
    put(cmdSave_, 136, 20);
    put(cmdPrevious_, 96, 8);
    put(lblPage_, 100, 8);
    put(cmdNext_, 96, 20);
    put(cmdZoomIn_, 84, 8);
    put(cmdZoomOut_, 84, 8);
    MovePixels(cmdCancel_, kWidth - kMargin - 96, kMargin, 96, kButtonHeight);
    lblPage_.CentreVertically();
    lblPage_.SetAlignment(Label::Align::Centre);
    look::SetType(lblPage_, 10);
    MovePixels(pane_, kMargin, kPaneTop, kWidth - 2 * kMargin, kHeight - kPaneTop - kMargin);
    pane_.SetAccessibleName("Pages to print");
  }

  void Bind() {
    cmdPrint_.OnClick = [this] { Print(PrintTarget::Paper); };
    cmdSave_.OnClick = [this] { Print(PrintTarget::PdfFile); };
    cmdPrevious_.OnClick = [this] { ShowPage(shownPage_ - 1); };
    cmdNext_.OnClick = [this] { ShowPage(shownPage_ + 1); };
    cmdZoomIn_.OnClick = [this] { pane_.ZoomIn(); };
    cmdZoomOut_.OnClick = [this] { pane_.ZoomOut(); };
    cmdCancel_.OnClick = [this] { form_.Close(); };
    pane_.OnChange = [this] {
      shownPage_ = std::clamp(pane_.CurrentPage(), 1, PageCount());
      ShowPageNumber();
    };
    for (Button* button : {&cmdPrevious_, &cmdNext_, &cmdZoomIn_, &cmdZoomOut_})
      button->SetRepeats(true);
    form_.SetDefaultButton(cmdPrint_);
    form_.SetNeutralButton(cmdCancel_);
  }

  void ShowPage(int page) {
    shownPage_ = page;
    pane_.ShowPage(page);
    ShowPageNumber();
  }

  void ShowPageNumber() {
    lblPage_.SetCaption("Page " + std::to_string(shownPage_) + " of " +
                        std::to_string(PageCount()));
    cmdPrevious_.SetEnabled(shownPage_ > 1);
    cmdNext_.SetEnabled(shownPage_ < PageCount());
    std::string lines;
    for (const PageText& text : document_.pages[static_cast<std::size_t>(shownPage_) - 1])
      lines += text.text + "\n";
    pane_.SetAccessibleText(lines);
  }

  void Print(PrintTarget target) {
    Printer& printer = ThePrinter();
    if (!printer.Choose(target, document_)) return;
    if (PrintOut(printer, document_)) form_.Close();
  }

  const PrintDocument& document_;
  int shownPage_ = 1;
  Form form_;
  Button cmdPrint_;
  Button cmdSave_;
  Button cmdPrevious_;
  Label lblPage_;
  Button cmdNext_;
  Button cmdZoomIn_;
  Button cmdZoomOut_;
  Button cmdCancel_;
  PreviewPane pane_;
};

}  // namespace

void PrintAfterPreview(const PrintDocument& document) {
  if (document.pages.empty()) Stop("PrintAfterPreview: \"" + document.title + "\" has no page");
  PreviewForm(document).Show();
}

}  // namespace platform
