#include "records/name_order.h"

#include <algorithm>
#include <utility>

namespace course {

std::string NameInUpperCase(std::string name) {
  for (char& c : name) {
    const int code = static_cast<unsigned char>(c);
    const bool plain = code >= 'a' && code <= 'z';
    const bool accented = code >= 0xE0 && code <= 0xFE && code != 0xF7;  // 0xF7 divides
    if (plain || accented) c = static_cast<char>(code - 32);
  }
  return name;
}

std::vector<std::string> InAlphabeticalOrder(std::vector<std::string> items) {
  std::sort(items.begin(), items.end(), [](const std::string& a, const std::string& b) {
    return std::pair(NameInUpperCase(a), a) < std::pair(NameInUpperCase(b), b);
  });
  return items;
}

}  // namespace course
