// SPDX-License-Identifier: GPL-3.0-or-later
// A graph as a picture, as it is on the screen.
#pragma once

#include <string>

#include "desktop/graph_widget.h"

namespace kelvra::desktop {

void CopyPicture(GraphWidget& graph);

// An SVG drawing if the path ends with ".svg", else a PNG picture. Gives the reason of a failure,
// which leaves a file that was there as it was.
std::string SavePicture(GraphWidget& graph, const std::string& path);

}  // namespace kelvra::desktop
