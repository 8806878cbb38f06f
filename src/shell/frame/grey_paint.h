// Painting without colours, for paper: lines stay lines and letters stay letters.
#pragma once

#include <functional>

class QPainter;

namespace tessaryn {

// What is painted comes out in greys, wherever the painter paints.
void PaintInGrey(QPainter& painter, const std::function<void(QPainter&)>& paint);

}  // namespace tessaryn
