// One result of a benchmark: what was measured, against what, and whether it is good enough.
#pragma once

#include <string>

namespace kelvo::bench {

struct Row {
  std::string operation;
  double value = 0;
  std::string unit;       // of value, reference_value and limit
  std::string reference;  // empty: the limit stands by itself
  double reference_value = 0;
  double limit = 0;

  bool IsMet() const { return value <= limit; }
};

// Prints the row as a line of the table, and appends it as a line of JSON to the file that the environment's
// KELVO_BENCH_ROWS names. Gives whether the goal is met.
bool Report(const Row& row);

}  // namespace kelvo::bench
