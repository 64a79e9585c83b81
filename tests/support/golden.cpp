#include "support/golden.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <utility>

namespace course::testing {
namespace {

constexpr int kTolerance = 48;   // of a colour component, 0 to 255
constexpr int kWorsePixels = 1;  // of a tile, that may differ by more
// A cell of the lesson screen: a fault in one small sign fills no picture, but a tile.
constexpr int kTileWidth = 16;
constexpr int kTileHeight = 25;

int Difference(platform::Colour a, platform::Colour b) {
  int most = 0;
  for (int shift : {0, 8, 16})
    most = std::max(most, std::abs(static_cast<int>((a >> shift) & 0xFF) -
                                   static_cast<int>((b >> shift) & 0xFF)));
  return most;
}

// Tiles with too many pixels that differ too much; those pixels are marked red on the sheet.
std::string CompareInto(platform::Surface& sheet, const platform::Surface& actual,
                        const platform::Surface& golden) {
  std::map<std::pair<int, int>, int> worse;  // by tile
  for (int y = 0; y < actual.PixelHeight(); ++y)
    for (int x = 0; x < actual.PixelWidth(); ++x) {
      const bool differs = Difference(actual.Pixel(x, y), golden.Pixel(x, y)) > kTolerance;
      if (differs) ++worse[{x / kTileWidth, y / kTileHeight}];
      sheet.PSet(x, y, differs ? platform::colour::Red : actual.Pixel(x, y));
    }
  std::string faults;
  for (const auto& [tile, count] : worse)
    if (count > kWorsePixels)
      faults += " " + std::to_string(count) + " at (" + std::to_string(tile.first * kTileWidth) +
                ", " + std::to_string(tile.second * kTileHeight) + ")";
  return faults;
}

}  // namespace

void ExpectGolden(const platform::Surface& actual, const std::string& name) {
  const char* source = std::getenv("COURSE_SOURCE_DIR");
  ASSERT_NE(source, nullptr) << "COURSE_SOURCE_DIR tells where tests/golden lies";
  const std::string file = std::string(source) + "/tests/golden/" + name + ".png";
  if (const char* bless = std::getenv("COURSE_BLESS"); bless != nullptr && *bless == '1') {
    ASSERT_TRUE(actual.SavePng(file)) << file;
    return;
  }
  std::filesystem::create_directories("golden");
  const std::string actualFile = "golden/" + name + ".actual.png";
  const auto golden = platform::Surface::LoadPng(file);
  ASSERT_TRUE(actual.SavePng(actualFile));
  ASSERT_NE(golden, nullptr) << file << " is missing; see " << actualFile;
  ASSERT_EQ(actual.PixelWidth(), golden->PixelWidth()) << name;
  ASSERT_EQ(actual.PixelHeight(), golden->PixelHeight()) << name;
  platform::Surface sheet(actual.PixelWidth(), actual.PixelHeight());
  const std::string faults = CompareInto(sheet, actual, *golden);
  if (faults.empty()) return;
  sheet.SavePng("golden/" + name + ".difference.png");
  ADD_FAILURE() << name << ": pixels differ from " << file << ":" << faults << "; see "
                << actualFile << " and golden/" << name << ".difference.png in the build folder";
}

}  // namespace course::testing
