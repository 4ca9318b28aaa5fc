// The sample pictures.
#pragma once

#include "model/picture_image.h"

namespace kelvo::samples {

model::PictureImage DrawLandscape();  // a lake between mountains after sunset
model::PictureImage DrawLettering();  // the program's name over colour bars
model::PictureImage DrawTestCard();   // every colour, every bit pair, a circle and gradients
model::PictureImage DrawPlanet();     // a ringed planet among stars

}  // namespace kelvo::samples
