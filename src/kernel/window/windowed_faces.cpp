#include "kernel/window/windowed_faces.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>

#include "kernel/window/tk_window.h"
#include "kernel/window/window_messages.h"

namespace mero {

namespace wm = window_messages;

void add_error_items(window& panel, const std::string& text, int code) {
  char number[16];
  std::snprintf(number, sizeof number, wm::code_format, code);
  panel.text_item(wm::blank_line);
  panel.text_item(text);
  panel.text_item(wm::error_code_line);
  panel.text_item(number);
  panel.button(wm::ok_upper);
}

void add_message_items(window& panel, const std::string& text) {
  panel.text_item(wm::blank_line);
  panel.text_item(text);
  panel.button(wm::ok_upper);
}

int add_question_items(window& panel, const std::string& text) {
  panel.text_item(wm::blank_line);
  panel.text_item(text);
  panel.button(wm::cancel);
  return panel.button(wm::ok_lower);
}

namespace {

[[noreturn]] void end_with(int status) {
  std::cout.flush();
  std::exit(status);
}

void error_panel(const report& r) {
  tk_window panel(0, 0, wm::error_title);
  add_error_items(panel, r.text, r.code);
  panel.open();
  end_with(r.status);
}

void message_panel(const report& r) {
  {
    tk_window panel(0, 0, wm::message_title);
    add_message_items(panel, r.text);
    panel.open();
  }
  if (!r.go_on) end_with(0);
}

// Closing the panel from its frame is taken as "cancel", the answer that does not go on.
void question_panel(const report& r) {
  bool agreed = false;
  {
    tk_window panel(0, 0, wm::message_title);
    const int ok = add_question_items(panel, r.text);
    agreed = panel.open(wm::question_x, wm::question_y) == ok;
  }
  if (!agreed) end_with(r.status);
  if (!r.go_on) end_with(0);
}

}  // namespace

void windowed_report_sink(const report& r) {
  const bool panel = r.what != report::kind::end && r.window && windowed_mode;
  if (!panel || !window_display_available()) {
    default_report_sink(r);
    return;
  }
  switch (r.what) {
    case report::kind::error:
      error_panel(r);
      break;
    case report::kind::message:
      message_panel(r);
      break;
    case report::kind::question:
      question_panel(r);
      break;
    case report::kind::end:
      break;
  }
}

void install_windowed_faces() { set_report_sink(windowed_report_sink); }

}  // namespace mero
