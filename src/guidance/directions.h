#pragma once
// The short text the Directions tab shows for the selector's caption.

#include <QString>
#include <optional>

namespace guidance {

// The directions for a caption, compared without regard to case. No text for
// "Formulas (math)", whose directions stay as they are; dirError for a caption that has
// none of its own.
std::optional<QString> directionsFor(const QString& caption);

}  // namespace guidance
