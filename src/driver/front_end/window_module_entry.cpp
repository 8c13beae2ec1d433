// The one export of the window module (the window layer, the viewers and the front-end bridge,
// built apart from the program so that console runs never load Tk): the program finds it by name
// when a run first needs a window.

#include "driver/front_end/front_end.h"
#include "driver/window_module.h"
#include "kernel/window/windowed_faces.h"
#include "viewer/install_viewers.h"

extern "C" void mero_install_window_module(mero::window_module_entries* entries) {
  mero::install_windowed_faces();
  mero::install_viewers();
  entries->windowed_sink = mero::windowed_report_sink;
  entries->start_front_end = mero::start_front_end;
}
