#include "roster_tool/roster_csv.h"

#include <iconv.h>
#include <libfccp/csv.h>

#include <algorithm>
#include <functional>
#include <sstream>
#include <stdexcept>

namespace roster_tool {
namespace {

template <unsigned columns>
using Csv = io::CSVReader<columns, io::trim_chars<' ', '\t'>, io::double_quote_escape<',', '"'>,
                          io::throw_on_overflow, io::empty_line_comment>;

constexpr int kUnreadable = -1;

std::string Place(const std::string& fileName, unsigned line) {
  return fileName + ":" + std::to_string(line);
}

// The single bytes of the course for a line of UTF-8.  False when a character has none.
bool ToSingleBytes(std::string& line) {
  struct Converter {
    Converter() : handle(iconv_open("ISO-8859-1", "UTF-8")) {
      if (handle == reinterpret_cast<iconv_t>(-1))
        throw std::runtime_error("the system cannot convert UTF-8 to ISO-8859-1");
    }
    ~Converter() { iconv_close(handle); }
    iconv_t handle;
  };
  static const Converter converter;
  std::string bytes(line.size(), '\0');
  char* from = line.data();
  char* to = bytes.data();
  std::size_t left = line.size();
  std::size_t room = bytes.size();
  iconv(converter.handle, nullptr, nullptr, nullptr, nullptr);
  if (iconv(converter.handle, &from, &left, &to, &room) == static_cast<std::size_t>(-1))
    return false;
  bytes.resize(bytes.size() - room);
  line = bytes;
  return true;
}

bool IsControl(char c) {
  const int code = static_cast<unsigned char>(c);
  return (code < 32 && c != '\t') || (code >= 127 && code < 160);
}

// The whole text in single bytes, line for line.
std::string Converted(const std::string& fileName, const std::string& text,
                      Complaints& complaints) {
  const std::string mark = "\xEF\xBB\xBF";  // that some programs begin UTF-8 with
  std::istringstream lines(text.starts_with(mark) ? text.substr(mark.size()) : text);
  std::string converted;
  std::string line;
  for (unsigned number = 1; std::getline(lines, line); ++number) {
    if (line.ends_with('\r')) line.pop_back();
    if (!ToSingleBytes(line))
      complaints.push_back(Place(fileName, number) +
                           ": a character that the course cannot show, or no UTF-8 text");
    else if (std::any_of(line.begin(), line.end(), IsControl))
      complaints.push_back(Place(fileName, number) + ": a control character");
    converted += line + "\n";
  }
  return converted;
}

int NumberFrom(const std::string& field) {
  if (field.empty()) return 0;
  if (field.size() > 2 || field.find_first_not_of("0123456789") != std::string::npos)
    return kUnreadable;
  const int number = std::stoi(field);
  return number == 0 ? kUnreadable : number;
}

// Small letters are what a student may type as well.
std::string PasswordFrom(std::string field) {
  for (char& c : field)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return field;
}

// A line that is no row ends the reading: what follows it may be meant otherwise.
Complaints Read(const std::string& fileName, const std::string& text,
                const std::function<void(const std::string& converted)>& read) {
  Complaints complaints;
  const std::string converted = Converted(fileName, text, complaints);
  if (!complaints.empty()) return complaints;
  try {
    read(converted);
  } catch (const io::error::base& error) {
    const auto* where = dynamic_cast<const io::error::with_file_line*>(&error);
    const int line = where == nullptr ? 1 : where->file_line;  // else the heading
    complaints.push_back(Place(fileName, static_cast<unsigned>(line)) + ": " + error.what());
  }
  return complaints;
}

// The library leaves out columns that are missing; this one has to be there.
template <unsigned columns>
void RequireColumn(const Csv<columns>& csv, const std::string& fileName, const char* column) {
  if (csv.has_column(column)) return;
  io::error::missing_column_in_header error;
  error.set_column_name(column);
  error.set_file_name(fileName.c_str());
  throw error;
}

}  // namespace

Complaints ReadClassesCsv(const std::string& fileName, const std::string& text, Rosters& rosters) {
  return Read(fileName, text, [&](const std::string& bytes) {
    Csv<3> csv(fileName, bytes.data(), bytes.data() + bytes.size());
    csv.read_header(io::ignore_missing_column, "class", "percent", "number");
    RequireColumn(csv, fileName, "class");
    for (std::string name, percent, number; csv.read_row(name, percent, number);
         percent.clear(), number.clear())
      rosters.classes.push_back({.place = Place(fileName, csv.get_file_line()),
                                 .name = name,
                                 .percent = percent,
                                 .number = NumberFrom(number)});
  });
}

Complaints ReadStudentsCsv(const std::string& fileName, const std::string& text, Rosters& rosters) {
  return Read(fileName, text, [&](const std::string& bytes) {
    Csv<4> csv(fileName, bytes.data(), bytes.data() + bytes.size());
    csv.read_header(io::ignore_missing_column, "class", "student", "password", "number");
    RequireColumn(csv, fileName, "class");
    RequireColumn(csv, fileName, "student");
    for (std::string className, name, password, number;
         csv.read_row(className, name, password, number); password.clear(), number.clear())
      rosters.students.push_back({.place = Place(fileName, csv.get_file_line()),
                                  .className = className,
                                  .name = name,
                                  .password = PasswordFrom(password),
                                  .number = NumberFrom(number)});
  });
}

}  // namespace roster_tool
