#include <cstdio>

#include "ui/ports/console.h"

namespace kelvo::ui {

void Print(const QString& text, Stream stream) {
  std::fputs(qPrintable(text), stream == Stream::kOutput ? stdout : stderr);
}

}  // namespace kelvo::ui
