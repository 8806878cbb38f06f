// Painting for paper: lines stay lines and letters stay letters, in greys where there is no colour.
#pragma once

#include <functional>

class QPainter;

namespace tessaryn {

// What is painted comes out as a printer can do it, wherever the painter paints: without colours if wanted,
// and shades that let through what is under them as one tint.
void PaintForPaper(QPainter& painter, bool grey, const std::function<void(QPainter&)>& paint);

}  // namespace tessaryn
