// What drawing on a surface costs.
#include <benchmark/benchmark.h>

#include <string>

#include "platform/surface.h"

namespace {

using platform::Surface;

// The lesson panel's size and font.
struct Panel : Surface {
  Panel() : Surface(672, 589) {
    BackColor = platform::colour::Blue;
    ForeColor = platform::colour::White;
    FontName = "Courier New";
    FontSize = 20;
    FontBold = true;
    Cls();
  }
};

const std::string kLine = "An inequality is a statement which shows";

// As every line of a lesson is printed: its band is erased, then the characters are drawn.
void LineOfText(benchmark::State& state) {
  Panel panel;
  for (auto _ : state) {
    panel.FillRect({16, 209, 640, 25}, platform::colour::Blue);
    panel.TextOut(16, 205, kLine);
  }
}
BENCHMARK(LineOfText);

// Over what was printed before.
void LineOfTextOverText(benchmark::State& state) {
  Panel panel;
  for (auto _ : state) panel.TextOut(16, 205, kLine);
}
BENCHMARK(LineOfTextOverText);

void BandErased(benchmark::State& state) {
  Panel panel;
  for (auto _ : state) panel.FillRect({16, 209, 640, 25}, platform::colour::Blue);
}
BENCHMARK(BandErased);

void FilledBox(benchmark::State& state) {
  Panel panel;
  for (auto _ : state) panel.FilledBox(16, 209, 655, 233, platform::colour::Blue);
}
BENCHMARK(FilledBox);

void BlitByOnePixel(benchmark::State& state) {
  Panel panel;
  for (auto _ : state) panel.BitBlt(16, 208, 640, 50, panel, 16, 209);
}
BENCHMARK(BlitByOnePixel);

void Refresh(benchmark::State& state) {
  Panel panel;
  for (auto _ : state) {
    panel.PSet(100, 100);
    panel.Refresh();
  }
}
BENCHMARK(Refresh);

void ProportionalPrint(benchmark::State& state) {
  Panel panel;
  panel.FontName = "MS Sans Serif";
  panel.FontSize = 12;
  for (auto _ : state) {
    panel.CurrentX = 16;
    panel.CurrentY = 200;
    panel.Print("None of the above");
  }
}
BENCHMARK(ProportionalPrint);

void ThickLine(benchmark::State& state) {
  Panel panel;
  panel.DrawWidth = 3;
  for (auto _ : state) panel.Line(20, 20, 220, 180);
}
BENCHMARK(ThickLine);

}  // namespace
