#include "viewer/result_panels.h"

#include <fstream>

#include "kernel/window/tk_window.h"
#include "viewer/viewer_messages.h"

namespace mero {

namespace vm = viewer_messages;

void show_lines(const window& parent, const std::string& title,
                const std::vector<std::string>& lines, const std::string& button) {
  tk_window panel(0, 0, title);
  for (const std::string& line : lines) panel.text_item(line);
  panel.button(button);
  panel.display(parent);
  panel.open();
}

std::optional<std::string> ask_file(const window& parent, const std::string& title,
                                    const std::string& default_file, const std::string& cancel) {
  std::string file = default_file;
  tk_window panel(0, 0, title);
  panel.string_item(vm::file_item, file);
  panel.button(cancel, 0);
  const int ok = panel.button(vm::ok, 1);
  panel.display(parent);
  if (panel.open() != ok) return std::nullopt;
  return file;
}

void save_results_panel(const window& parent, const std::string& default_file,
                        const std::string& cancel,
                        const std::function<void(std::ostream&)>& write) {
  const std::optional<std::string> chosen = ask_file(parent, vm::save_panel, default_file, cancel);
  if (!chosen) return;
  const std::string& file = *chosen;
  std::ofstream out(file);
  if (!out) {
    show_lines(parent, vm::save_panel, {format_message(vm::cannot_open_save, {file})}, vm::ok);
    return;
  }
  write(out);
  if (!out.flush()) report_error(vm::save_failed);
}

}  // namespace mero
