// The name under which a lesson's kept files stand.
#pragma once

#include <string>
#include <string_view>

namespace lesson_check {

// "Trinomials of the Form x\xB2+bx+c" is trinomials_of_the_form_x2_bx_c: small letters and digits,
// one underscore for whatever stands between them.
std::string FileNameOf(std::string_view title);

}  // namespace lesson_check
