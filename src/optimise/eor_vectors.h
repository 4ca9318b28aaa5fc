// "Optimize for EOR vectors".
#pragma once

#include "app/long_work.h"
#include "app/messages.h"
#include "optimise/cell_sweep.h"

namespace kelvo::optimise {

// Tells the rule by which a cell's colours would be put in order for effects that combine bit pairs by exclusive-or,
// and sweeps the cells. It changes no byte, on purpose: the rule that is told is not carried out.
void OptimizeForEORVector(app::Messages& messages, app::Progress& progress, const ShowCell& show);

}  // namespace kelvo::optimise
