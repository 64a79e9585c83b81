// Where a user finds support.  These are neutral placeholders: whoever installs the course for
// others puts the real address and number here, and nowhere else.
#pragma once

namespace course {

inline constexpr const char* kSupportAddress = "support@example.org";
inline constexpr const char* kSupportTelephone = "555-0100";

}  // namespace course
