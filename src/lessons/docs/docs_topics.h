// The topics of the documentation lesson as tables: what a module does, and samples of it.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace course {

// What is run, and the same as it stands in the source.
struct Sample {
  std::string call;
  std::function<void()> draw;
};

// The call that is printed is the call that is run, so that it cannot go stale.
#define DOCS_SAMPLE(...)              \
  Sample {                            \
#__VA_ARGS__, [] { __VA_ARGS__; } \
  }

struct Topic {
  std::string module;           // the header that declares the routines
  std::string about;            // one or two sentences
  std::vector<Sample> samples;  // 2 to 5, a screen each
};

// A sample is drawn from this row of the lesson screen on.
inline constexpr int kSampleRow = 12;

// The words with which a page is written.
std::vector<Topic> PageTopics();
// What prints and draws on the lesson screen beneath them.
std::vector<Topic> TextTopics();
// Figures, motion, and what lies over the lesson screen.
std::vector<Topic> FigureTopics();
// What a script asks of the engine.
std::vector<Topic> EngineTopics();
// All of them, in this order.
std::vector<Topic> DocsTopics();

}  // namespace course
