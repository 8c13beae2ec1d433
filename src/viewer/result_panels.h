#pragma once
// The panels that the graph and discrete viewers share: a list of text lines with one button, and
// "Save results", which asks for a file name and writes the viewer's results into it.

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "kernel/window/window.h"

namespace mero {

// A panel with the title, one line of text per entry and the button; returns when it is pressed.
void show_lines(const window& parent, const std::string& title,
                const std::vector<std::string>& lines, const std::string& button);

// A panel with the title, the item "file:" holding default_file, and the buttons cancel and "ok";
// the name typed, or nothing on cancel.
std::optional<std::string> ask_file(const window& parent, const std::string& title,
                                    const std::string& default_file, const std::string& cancel);

// "Save results" with the item "file:" holding default_file and the buttons cancel and "ok". On
// ok the file is written by write; a file that cannot be opened is said in a panel and nothing
// else happens, a failure while writing is error 1513.
void save_results_panel(const window& parent, const std::string& default_file,
                        const std::string& cancel,
                        const std::function<void(std::ostream&)>& write);

}  // namespace mero
