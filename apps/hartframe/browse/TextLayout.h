#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace hartframe::browse {

// The text in exactly `width` columns: blanks behind a short one, "…" at the end of a long one.
std::string Fitted(std::string_view text, std::size_t width);
// The text in lines of at most `width` columns, broken at blanks where there are some. Its own line
// ends stay; control characters become blanks.
std::vector<std::string> Wrapped(std::string_view text, std::size_t width);
// "a  b": what is not empty, joined.
std::string Joined(const std::vector<std::string>& parts, std::string_view between);

}  // namespace hartframe::browse
