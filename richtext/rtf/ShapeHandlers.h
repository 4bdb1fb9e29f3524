// What the control words of shapes and pictures do, in the manner of Handlers.h.
#pragma once

#include "richtext/rtf/Handlers.h"

namespace richtext::rtf::handlers {

// Shapes: their text, and the picture that one is.

inline void Shape(Context& context, Number, Number) {
  context.BeginShape();
}

inline void ShapeEdge(Context& context, Number edge, Number twips) {
  context.Shapes().SetEdge(static_cast<ShapeState::Edge>(edge), twips);
}

inline void ShapeProperty(Context& context, Number, Number) {
  context.Shapes().BeginProperty();
  if (context.State().destination != Destination::Body) return context.SkipGroup();
  context.SendTextTo(Destination::ShapeProperty);
}

inline void ShapeValue(Context& context, Number, Number) {
  const bool isProperty = context.State().destination == Destination::ShapeProperty;
  if (isProperty && context.Shapes().PropertyIsEdge()) return context.SetAside(Destination::ShapeValue);
  if (!isProperty || !context.Shapes().PropertyIsPicture()) return context.SkipGroup();
  context.SendTextTo(Destination::ShapePicture);
}

// The same shape again, for older readers.
inline void ShapeResult(Context& context, Number, Number) {
  const bool isBody = context.State().destination == Destination::Body;
  if (context.Shapes().ShapeIsShown() || !isBody) return context.SkipGroup();
  context.SendTextTo(Destination::ShapePicture);
}

inline void ShapeText(Context& context, Number, Number) {
  context.BeginShapeText();
}

// Pictures.

inline void ModernPicture(Context& context, Number, Number) {
  context.Shapes().BeginModernPicture();
}

// The same picture again, for older readers.
inline void OlderPicture(Context& context, Number, Number) {
  if (context.Shapes().TakePictureIsShown()) context.SkipGroup();
}

inline void PictureGroup(Context& context, Number, Number) {
  if (context.Depth() <= 1) return;
  context.SendTextTo(Destination::Picture);
  context.PictureInHand().Begin();
}

}  // namespace richtext::rtf::handlers
