// Reports a result that a script measured: OPERATION VALUE UNIT REFERENCE REFERENCE-VALUE LIMIT.
#include <cstdlib>
#include <iostream>

#include "row.h"

int main(int argc, char** argv) {
  if (argc != 7) {
    std::cerr << "Usage: report-row OPERATION VALUE UNIT REFERENCE REFERENCE-VALUE LIMIT\n";
    return 2;
  }
  const bool is_met =
      kelvo::bench::Report({argv[1], std::atof(argv[2]), argv[3], argv[4], std::atof(argv[5]), std::atof(argv[6])});
  return is_met ? 0 : 1;
}
