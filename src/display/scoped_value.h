// Gives a variable another value for a while, and puts the old one back on every path.
#pragma once

#include <utility>

namespace course {

template <class T>
class ScopedValue {
 public:
  template <class U>
  ScopedValue(T& target, U value)
      : target_(target), kept_(std::exchange(target, static_cast<T>(value))) {}
  ~ScopedValue() { target_ = kept_; }
  ScopedValue(const ScopedValue&) = delete;
  ScopedValue& operator=(const ScopedValue&) = delete;

 private:
  T& target_;
  T kept_;
};

}  // namespace course
