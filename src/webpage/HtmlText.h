#pragma once

#include <string>
#include <string_view>

namespace schedules {

/// Appends a text to HTML, fit for content and for attribute values in quotes: what marks up is escaped, and
/// characters that no page may hold become U+FFFD.
void AppendHtml(std::string& html, std::string_view utf8);

std::string HtmlOf(std::string_view utf8);

} // namespace schedules
