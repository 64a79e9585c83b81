// What the course is called on its forms.
#pragma once

namespace course {

inline constexpr const char* kSeriesName = "Groundwork Series";
inline constexpr const char* kCourseName = "Algebra 1";
inline constexpr const char* kReleaseName = "Release 5.0";

}  // namespace course
