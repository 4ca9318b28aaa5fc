#include "app/error_log.h"

#include <algorithm>

#include "app/durable_file.h"

namespace kelvo::app {

void ErrorLog::Write(std::string_view message) const {
  std::string line = LogStamp(clock_.Now()) + " " + std::string(message);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
  line += '\n';
  AppendText(file_, line);  // in one piece: several programs may share the log
}

}  // namespace kelvo::app
