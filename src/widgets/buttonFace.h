#pragma once

#include "scene/PixelImage.h"
#include "widgets/ButtonDesign.h"
#include "widgets/ButtonModel.h"

namespace ormala {

/// The face of a button without picture and caption. Pixels that round corners cut away are
/// transparent, all others opaque.
PixelImage buttonFace(const ButtonDesign& design, const ButtonState& state, PixelSize size, int dpi,
                      SystemColorLookup systemColor);

/// Of caption and sign of a button that is enabled, and in high contrast of all that stands out
/// from its face.
Color inkOf(const ButtonDesign& design, const ButtonState& state, SystemColorLookup systemColor);

/// The picture as the state wants it shown: in grey, or faded, and in high contrast by its kind.
PixelImage pictureInState(const PixelImage& picture, const ButtonDesign& design,
                          const ButtonState& state, SystemColorLookup systemColor);

/// Draws the sign of a button at its place on the face.
void paintSign(PixelImage& face, const PixelRect& place, const ButtonDesign& design,
               const ButtonState& state, int dpi, SystemColorLookup systemColor);

/// How far the picture is moved from its place, right and down.
int pictureShift(const ButtonDesign& design, const ButtonState& state, int dpi);
/// The same of the caption.
int captionShift(const ButtonDesign& design, const ButtonState& state, int dpi);

}  // namespace ormala
