#pragma once
// The gauge editor: view_gauge shows one polygonal gauge and saves, loads or creates one;
// create_gauge collects the extreme points of gauges from clicks and saves them as a gauge file.
// Every failure (a file that cannot be opened, points that make no gauge, an empty list) is shown
// in a message panel and the window stays, with its gauge and its points.

#include "gauge/polygauge.h"
#include "kernel/window/window.h"

namespace mero {

// Sets the window's frame from the gauge (gauge_frame_of, the same range on both axes) and draws
// the axes through the origin, the rays to the extreme points and the ball.
void draw_gauge(window& w, const polygauge& gauge);

// The window "View Gauge" with "Save Gauge", "Load Gauge", "Create Gauge", "Refresh" and "Close";
// returns when it is closed. A loaded file shows its first gauge; a file that the gauge reader
// rejects ends the run with the reader's message, as everywhere else.
void view_gauge(const polygauge& gauge);

// First the panel "Initialize window:" for winmin and winmax, then the 600 by 600 window "Create a
// Gauge" over that range: a click adds a point (and its mirror at the origin while the symmetric
// mode is on); the buttons build, show, collect and save gauges. Returns when it is closed.
void create_gauge();

}  // namespace mero
