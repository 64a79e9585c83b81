#include "support/kept_text.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace course::testing {

void ExpectKept(const std::string& text, const std::string& file, const char* option) {
  const std::string path = std::string(std::getenv("COURSE_SOURCE_DIR")) + "/" + file;
  if (const char* bless = std::getenv(option); bless != nullptr && *bless == '1') {
    std::ofstream kept(path, std::ios::binary);
    kept << text;
    ASSERT_TRUE(kept.flush()) << path;
    return;
  }
  std::ifstream in(path, std::ios::binary);
  const std::string kept((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  EXPECT_EQ(kept, text) << file << " is not what is said now.  If the new text is right: " << option
                        << "=1 renews it.";
}

}  // namespace course::testing
