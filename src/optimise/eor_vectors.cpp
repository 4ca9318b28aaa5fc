#include "optimise/eor_vectors.h"

namespace kelvo::optimise {

void OptimizeForEORVector(app::Messages& messages, app::Progress& progress, const ShowCell& show) {
  messages.Tell(
      "If all colors are used they are sorted with the brightest color at %11.\r\n"
      "If not all colors are used, higher priority is given to %10 and %01.\r\n"
      "If not all colors are used, selected color is placed in %11.\r\n"
      "Do you want to continue?");
  SweepCells(progress, show, [](const model::PixelPlace&) {});
}

}  // namespace kelvo::optimise
