// What the assembler says about a filled template, in terms of the template that the user knows.
#pragma once

#include <filesystem>
#include <string>

#include "c64out/fill_template.h"

namespace kelvo::c64out {

// `said` with the place in the file `filled`, "PATH:LINE:COLUMN: ", told as the template's name and its own line, and
// that line's text behind it. Anything else is left as it is.
std::string InTermsOfTemplate(const std::string& said, const std::filesystem::path& filled,
                              const std::filesystem::path& source, const TemplateMarks& marks);

}  // namespace kelvo::c64out
