// All forms of the course, each as a person meets it and with the longest texts that it can hold:
// for pictures, and for the test of what all forms have in common.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/printer.h"

namespace lesson_lab {

struct GalleryForm {
  std::string name;            // of the form and of what it holds, such as "login_long"
  std::function<void()> Show;  // modally
};

// The forms that are shown modally.  The installed user closes each; the session is set as each
// wants it.  The folder holds the record files of which they tell, and is filled here.
std::vector<GalleryForm> ModalForms(const std::string& folder);

// What is printed, of the same record files: activity records and diagnostic results.  After
// ModalForms.
struct GalleryDocument {
  std::string name;
  platform::PrintDocument document;
};
std::vector<GalleryDocument> Documents(const std::string& folder);

}  // namespace lesson_lab
