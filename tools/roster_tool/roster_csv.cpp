#include "roster_tool/roster_csv.h"

#include <libfccp/csv.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <sstream>

#include "roster_tool/terminal_text.h"

namespace roster_tool {
namespace {

template <unsigned columns>
using Csv = io::CSVReader<columns, io::trim_chars<' '>, io::double_quote_escape<',', '"'>,
                          io::throw_on_overflow, io::empty_line_comment>;

constexpr int kUnreadable = -1;

std::string Place(const std::string& fileName, unsigned line) {
  return ShownPath(fileName) + ":" + std::to_string(line);
}

// Tabs and hard blanks, which nobody sees, count as blanks.
void MakeBlanks(std::string& line) {
  constexpr char kHardBlank = '\xA0';
  std::replace(line.begin(), line.end(), '\t', ' ');
  std::replace(line.begin(), line.end(), kHardBlank, ' ');
}

// The course's single bytes for a line of the file; "" after a complaint.
std::string ConvertedLine(const std::string& place, std::string line, Complaints& complaints) {
  if (line.ends_with('\r')) line.pop_back();
  std::optional<std::string> bytes = Latin1From(line);
  if (!bytes) {
    complaints.push_back(place + ": a character that the course cannot show, or no UTF-8 text");
    return "";
  }
  MakeBlanks(*bytes);
  if (std::any_of(bytes->begin(), bytes->end(), IsControl)) {
    complaints.push_back(place + ": a control character");
    return "";
  }
  return *bytes;
}

char InLowerCase(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// The whole text in single bytes, line for line; the heading, which is the first line that is not
// empty, in small letters.
std::string Converted(const std::string& fileName, const std::string& text,
                      Complaints& complaints) {
  const std::string mark = "\xEF\xBB\xBF";  // that some programs begin UTF-8 with
  std::istringstream lines(text.starts_with(mark) ? text.substr(mark.size()) : text);
  std::string converted;
  std::string raw;
  bool headingIsDone = false;
  for (unsigned number = 1; std::getline(lines, raw); ++number) {
    std::string line = ConvertedLine(Place(fileName, number), raw, complaints);
    if (!headingIsDone) std::transform(line.begin(), line.end(), line.begin(), InLowerCase);
    headingIsDone = headingIsDone || line.find_first_not_of(' ') != std::string::npos;
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

// What is wrong with a line or with the heading.
std::string Reason(const io::error::base& error) {
  using namespace io::error;
  const auto* column = dynamic_cast<const with_column_name*>(&error);
  const std::string name = column == nullptr ? "" : Quoted(column->column_name);
  if (dynamic_cast<const extra_column_in_header*>(&error)) return "there is no column " + name;
  if (dynamic_cast<const missing_column_in_header*>(&error))
    return "the column " + name + " is missing";
  if (dynamic_cast<const duplicated_column_in_header*>(&error))
    return "the column " + name + " stands there twice";
  if (dynamic_cast<const header_missing*>(&error))
    return "the line with the columns' names is missing";
  if (dynamic_cast<const too_few_columns*>(&error)) return "there are fewer fields than columns";
  if (dynamic_cast<const too_many_columns*>(&error)) return "there are more fields than columns";
  if (dynamic_cast<const escaped_string_not_closed*>(&error)) return "a double quote is not closed";
  if (dynamic_cast<const line_length_limit_exceeded*>(&error)) return "the line is too long";
  return "the line cannot be read";
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
    complaints.push_back(Place(fileName, static_cast<unsigned>(line)) + ": " + Reason(error));
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
