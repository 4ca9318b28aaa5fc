#include "row.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace kelvo::bench {
namespace {

double RatioOf(const Row& row) {
  return row.reference_value > 0 ? row.value / row.reference_value : 0;
}

void AppendJson(const Row& row, const char* file) {
  std::ofstream(file, std::ios::app) << "{\"operation\": \"" << row.operation << "\", \"value\": " << row.value
                                     << ", \"unit\": \"" << row.unit << "\", \"reference\": \"" << row.reference
                                     << "\", \"reference_value\": " << row.reference_value
                                     << ", \"ratio\": " << RatioOf(row) << ", \"limit\": " << row.limit
                                     << ", \"met\": " << (row.IsMet() ? "true" : "false") << "}\n";
}

}  // namespace

bool Report(const Row& row) {
  std::printf("%-46s %12.3f %-5s %-22s %12.3f %8.2f %12.3f  %s\n", row.operation.c_str(), row.value, row.unit.c_str(),
              row.reference.c_str(), row.reference_value, RatioOf(row), row.limit, row.IsMet() ? "met" : "NOT MET");
  if (const char* file = std::getenv("KELVO_BENCH_ROWS")) AppendJson(row, file);
  return row.IsMet();
}

}  // namespace kelvo::bench
