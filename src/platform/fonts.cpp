#include "platform/fonts.h"

#include <fontconfig/fontconfig.h>

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QRawFont>
#include <array>
#include <cmath>
#include <map>
#include <tuple>

#include "platform/fonts_impl.h"
#include "platform/stop.h"

namespace platform {
namespace {

struct Twin {
  std::string face;
  std::string family;
  const char* package;
};

// Families of the same widths as the faces that the pages were laid out with.
const std::array<Twin, 5> kTwins = {{
    {"MS Sans Serif", "Liberation Sans", "fonts-liberation"},
    {"Courier New", "Liberation Mono", "fonts-liberation"},
    {"Arial", "Liberation Sans", "fonts-liberation"},
    {"Times New Roman", "Liberation Serif", "fonts-liberation"},
    {"Symbol", "Standard Symbols PS", "fonts-urw-base35"},
}};

bool IsTutorFace(const std::string& face) {
  return face == "Courier New";
}

// The stand-in for "Courier New" is a little taller than a cell allows at the usual 4/3 pixel a
// point: at 26 pixels for size 20 all its letters lie inside the band that is erased behind a text.
double PixelSize(const std::string& face, double points) {
  return IsTutorFace(face) ? points * 1.3 : points * 4 / 3;
}

// Pages were laid out on these baselines, not on those of the installed fonts.
int Ascent(const std::string& face, double points, const QFontMetricsF& metrics) {
  if (IsTutorFace(face)) return static_cast<int>(std::lround(points * (points < 20 ? 1.11 : 1.15)));
  if (face == "Symbol") return static_cast<int>(std::lround(points * 4 / 3));
  return static_cast<int>(std::lround(metrics.ascent()));
}

Typeface MakeTypeface(const std::string& face, double points, bool bold, bool italic) {
  Typeface made;
  made.pixelSize = PixelSize(face, points);
  made.font = QFont(QString::fromStdString(FamilyOf(face)));
  made.font.setPixelSize(std::max(1, static_cast<int>(std::lround(made.pixelSize))));
  made.font.setBold(bold);
  made.font.setItalic(italic);
  // One look on every desktop: grey levels, no colour fringes, widths that do not depend on a
  // hinter.
  made.font.setHintingPreference(QFont::PreferNoHinting);
  made.font.setStyleStrategy(
      static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
  const QFontMetricsF metrics(made.font);
  made.ascent = Ascent(face, points, metrics);
  made.height = static_cast<int>(std::ceil(metrics.height()));
  return made;
}

// Codes 128 to 159 of the course's code page; 0 where it has no letter.
constexpr std::array<char16_t, 32> kUpperCodes = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char16_t UnicodeOf(unsigned char code) {
  if (code < 32 || code == 127) return u' ';
  if (code < 128 || code > 159) return code;
  const char16_t letter = kUpperCodes[code - 128];
  return letter == 0 ? u' ' : letter;
}

// The symbol font is installed in two formats, and either may be the one found: one names its signs
// by their Unicode numbers, the other by the codes that the course uses as well.
char16_t SymbolOf(unsigned char code) {
  static const bool hasUnicode =
      QRawFont::fromFont(FindTypeface("Symbol", 16, true, false).font).supportsCharacter(u'\u03C0');
  if (!hasUnicode) return code;
  struct Named {
    unsigned char code;
    char16_t letter;
  };
  static constexpr Named kNamed[] = {{0x44, 0x0394}, {0x70, 0x03C0}, {0x71, 0x03B8},
                                     {0xA3, 0x2264}, {0xA5, 0x221E}, {0xAC, 0x2190},
                                     {0xAE, 0x2192}, {0xB3, 0x2265}, {0xB9, 0x2260},
                                     {0xBB, 0x2248}, {0xD0, 0x2220}, {0xD6, 0x221A}};
  for (const Named& named : kNamed)
    if (named.code == code) return named.letter;
  return code;
}

}  // namespace

void ReadFontsPlainly() {
  // The fonts of the named packages, and no rules of a desktop's own: those would change faces and
  // hinting from one machine to the next, and to read them and all other fonts takes half the time
  // until the first window shows.
  static constexpr char kConfiguration[] =
      "<fontconfig>"
      "<dir>/usr/share/fonts/truetype/liberation</dir>"
      "<dir>/usr/share/fonts/truetype/liberation2</dir>"
      "<dir>/usr/share/fonts/opentype/urw-base35</dir>"
      "<cachedir>/var/cache/fontconfig</cachedir><cachedir prefix='xdg'>fontconfig</cachedir>"
      "</fontconfig>";
  FcConfig* configuration = FcConfigCreate();
  const bool parsed = FcConfigParseAndLoadFromMemory(
      configuration, reinterpret_cast<const FcChar8*>(kConfiguration), FcTrue);
  // Without it the system's own configuration is read, and the course runs all the same.
  if (parsed && FcConfigBuildFonts(configuration))
    FcConfigSetCurrent(configuration);
  else
    FcConfigDestroy(configuration);
}

void CheckFonts() {
  for (const Twin& twin : kTwins) {
    if (!QFontDatabase::hasFamily(QString::fromStdString(twin.family)))
      Stop("CheckFonts: the font \"" + twin.family + "\" (for \"" + twin.face +
           "\") is missing. Install the Debian package " + twin.package + ".");
  }
}

const std::string& FamilyOf(const std::string& face) {
  for (const Twin& twin : kTwins)
    if (twin.face == face) return twin.family;
  return kTwins[0].family;
}

const Typeface& FindTypeface(const std::string& face, double points, bool bold, bool italic) {
  // Never destroyed: fonts must not outlive the toolkit, which goes before the statics do.
  using Key = std::tuple<std::string, double, bool, bool>;
  static auto& cache = *new std::map<Key, Typeface>;
  const Key key(face, points, bold, italic);
  auto found = cache.find(key);
  if (found == cache.end())
    found = cache.emplace(key, MakeTypeface(face, points, bold, italic)).first;
  return found->second;
}

QString ToUnicode(std::string_view text, const std::string& face) {
  const bool isSymbol = face == "Symbol";
  QString unicode(static_cast<qsizetype>(text.size()), u' ');
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto code = static_cast<unsigned char>(text[i]);
    unicode[static_cast<qsizetype>(i)] = isSymbol ? SymbolOf(code) : UnicodeOf(code);
  }
  return unicode;
}

}  // namespace platform
