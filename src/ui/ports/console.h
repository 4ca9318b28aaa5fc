// What a program with windows says to whoever started it from a terminal or a script.
#pragma once

#include <QString>

namespace kelvo::ui {

enum class Stream { kOutput, kErrors };

// Prints a text. Where there is neither a terminal nor a file nor a pipe to print to, nothing happens: no box waits for
// a script.
void Print(const QString& text, Stream stream = Stream::kOutput);

}  // namespace kelvo::ui
