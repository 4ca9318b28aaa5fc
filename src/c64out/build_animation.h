// From the frames of an animation to a program that plays them on a C64.
#pragma once

#include "c64out/animation_release.h"
#include "c64out/build_result.h"

namespace kelvo::c64out {

// Builds what `choice` asks for, as BuildCompoPic does of a picture: in the folder of the frames, under the name of the
// animation. What Refusal() says is how it fails then.
BuildResult BuildAnimation(const Release& release, const CompoPicChoice& choice, const BuildSurroundings& with);

}  // namespace kelvo::c64out
