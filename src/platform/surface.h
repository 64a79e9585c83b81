// A persistent pixel image that can be drawn on, in the words of the course.
//
// Two coordinate systems meet here.  Line, Box, Circle, PSet and Print take user coordinates, which
// are pixels until Scale says otherwise.  TextOut, BitBlt, FillRect, FloodFill, RoundRect and
// Polygon take pixels always.  Pixel (0, 0) is the upper left one.  What lies outside the surface
// is clipped. Lines are never antialiased.  Text is single-byte (Latin-1) and its background
// transparent.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/geometry.h"

namespace platform {

enum class DrawModes { Xor = 7, CopyPen = 13 };
enum class FillStyles { Solid = 0, Transparent = 1 };

class Surface {
 public:
  // Sizes in pixels, at least 1.  The surface starts cleared to BackColor, which is white.
  Surface(int width, int height);
  virtual ~Surface();
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;

  // What the next drawing uses.  Changing a property draws nothing.
  Colour ForeColor = colour::Black;
  Colour BackColor = colour::White;
  Colour FillColor = colour::Black;
  FillStyles FillStyle = FillStyles::Transparent;
  DrawModes DrawMode = DrawModes::CopyPen;
  int DrawWidth = 1;  // pixels, thickness of Line, Circle and PSet; wider ones have round ends
  std::string FontName =
      "MS Sans Serif";  // "Courier New", "Symbol", "Times New Roman", "Arial" ...
  double FontSize = 8;  // points; 1 point is 4/3 pixel
  bool FontBold = false;
  bool FontItalic = false;
  bool FontUnderline = false;
  bool FontStrikethru = false;
  double CurrentX = 0;  // user coordinates
  double CurrentY = 0;

  int PixelWidth() const;
  int PixelHeight() const;
  // Gives the surface another size in pixels and clears it.
  void Resize(int width, int height);

  // Clears to BackColor and moves CurrentX, CurrentY to (0, 0).
  void Cls();
  // Shows what was drawn since the last Refresh.  Only the rectangle that changed is repainted.
  void Refresh();

  // User coordinates: (x1, y1) is the upper left corner, (x2, y2) the lower right one.
  void Scale(double x1, double y1, double x2, double y2);
  void ScalePixels();
  double ScaleWidth() const;   // user units; negative when X runs to the left
  double ScaleHeight() const;  // user units; negative when Y points up

  // In ForeColor when no colour is given.  Both end points, all four corners are drawn.
  // CurrentX, CurrentY end at the last point given.
  void Line(double x1, double y1, double x2, double y2, std::optional<Colour> colour = {});
  void Box(double x1, double y1, double x2, double y2, std::optional<Colour> colour = {});
  void FilledBox(double x1, double y1, double x2, double y2, std::optional<Colour> colour = {});
  void PSet(double x, double y, std::optional<Colour> colour = {});
  // Radius in X units, rounded to whole pixels, of the longer axis.  Start and end in degrees,
  // counter-clockwise from the right, a whole turn when they are equal; aspect is height by width.
  // A whole circle is filled with FillColor when FillStyle is solid.
  void Circle(double x, double y, double radius, std::optional<Colour> colour = {},
              double start = 0, double end = 360, double aspect = 1);

  // One string in the surface's font and ForeColor, its top left at CurrentX, CurrentY; CurrentX
  // moves behind it.  "Symbol" has a code page of its own: 112 is pi, 163 less
  // than or equal, 165 infinity, 174 the right arrow ...
  void Print(std::string_view text);
  // The same at an angle in degrees, counter-clockwise around (x, y), in a face and size of its
  // own.
  void PrintRotated(std::string_view text, double x, double y, double degrees, Colour colour,
                    const std::string& face, double points, bool bold);
  // In user units, never negative.  The height is that of a line, whatever the text.
  double TextWidth(std::string_view text) const;
  double TextHeight(std::string_view text) const;

  // Characters at exactly (x + i * cellWidth, y), each inside its own cell, top-aligned: the
  // baseline of "Courier New" lies 23 pixels below y at size 20 and about 1.11 pixels a point at
  // smaller sizes. At size 20 the ink of every printable character lies within rows y + 4 to y
  // + 28.  With cellWidth 0 the string is drawn whole, at the face's own widths.
  void TextOut(int x, int y, std::string_view text, int cellWidth = 16);

  // Copies a rectangle of source, which may be this very surface (overlapping is right, too), to
  // (x, y). Source pixels outside the source are not copied; the destination keeps its own there.
  void BitBlt(int x, int y, int width, int height, const Surface& source, int sourceX, int sourceY);
  void FillRect(const PixelRect& rect, Colour colour);
  // Fills outward from the pixel until it meets the boundary colour or the edge.
  void FloodFill(int x, int y, Colour fill, Colour boundary);
  // Corners are quarter ellipses of the given width and height.  With a fill colour it is filled.
  void RoundRect(const PixelRect& rect, int cornerWidth, int cornerHeight, Colour line,
                 int lineWidth, std::optional<Colour> fill = {});
  // Closed; outline and inside in the one colour.
  void Polygon(std::span<const PixelPoint> points, Colour colour);

  // A picture of the artwork by name, such as "letter_a", at its own size or fitted into a
  // rectangle. A name that does not exist is an author's error and stops the program.
  void DrawPicture(const std::string& name, int x, int y);
  void DrawPicture(const std::string& name, const PixelRect& rect);
  // Copies a part of a picture, unscaled.
  void DrawPicturePart(const std::string& name, int x, int y, const PixelRect& part);

  // Copies the whole of another surface into a rectangle, smoothly scaled.
  void StretchBlt(const PixelRect& rect, const Surface& source);

  // Black outside the surface.
  Colour Pixel(int x, int y) const;
  // Writes a PNG file; false when the file cannot be written.
  bool SavePng(const std::string& path) const;
  // The picture of a PNG file, nullptr when it cannot be read.
  static std::unique_ptr<Surface> LoadPng(const std::string& path);

 protected:
  // Called by Refresh with what changed; the base shows nothing.
  virtual void ShowRect(const PixelRect& changed);

 private:
  friend class PictureBox;
  friend struct SurfaceMaker;
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace platform
