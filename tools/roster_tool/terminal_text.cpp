#include "roster_tool/terminal_text.h"

#include <iconv.h>

#include <cstdio>
#include <stdexcept>

namespace roster_tool {
namespace {

std::string Escaped(char c) {
  char digits[5];
  std::snprintf(digits, sizeof digits, "\\x%02X", static_cast<unsigned>(c));
  return digits;
}

}  // namespace

std::string Shown(const std::string& latin1) {
  std::string shown;
  for (const char c : latin1) {
    if (IsControl(c))
      shown += Escaped(c);
    else if (c < 128)
      shown += c;
    else
      shown += {static_cast<char>(0xC0 | c >> 6), static_cast<char>(0x80 | (c & 0x3F))};
  }
  return shown;
}

std::string Quoted(const std::string& latin1) {
  constexpr std::size_t kMost = 60;
  return "\"" + Shown(latin1.substr(0, kMost)) + (latin1.size() > kMost ? "...\"" : "\"");
}

std::string ShownPath(const std::string& path) {
  const std::optional<std::string> latin1 = Latin1From(path);
  if (latin1) return Shown(*latin1);
  std::string shown;  // in an alphabet of its own
  for (const char c : path) shown += c < 32 || c == 127 ? Escaped(c) : std::string(1, c);
  return shown;
}

std::optional<std::string> Latin1From(const std::string& utf8) {
  struct Converter {
    Converter() : handle(iconv_open("ISO-8859-1", "UTF-8")) {
      if (handle == reinterpret_cast<iconv_t>(-1))
        throw std::runtime_error("the system cannot convert UTF-8 to ISO-8859-1");
    }
    ~Converter() { iconv_close(handle); }
    iconv_t handle;
  };
  static const Converter converter;
  std::string from = utf8;
  std::string bytes(utf8.size(), '\0');
  char* next = from.data();
  char* to = bytes.data();
  std::size_t left = from.size();
  std::size_t room = bytes.size();
  iconv(converter.handle, nullptr, nullptr, nullptr, nullptr);
  if (iconv(converter.handle, &next, &left, &to, &room) == static_cast<std::size_t>(-1))
    return std::nullopt;
  bytes.resize(bytes.size() - room);
  return bytes;
}

bool IsControl(char latin1) {
  return latin1 < 32 || (latin1 >= 127 && latin1 < 160);
}

}  // namespace roster_tool
