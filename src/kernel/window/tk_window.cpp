#include "kernel/window/tk_window.h"

#include <tcl.h>
#include <tk.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <map>
#include <string>

#include "kernel/error_handler.h"
#include "kernel/window/window_messages.h"

namespace mero {

namespace wm = window_messages;

namespace {

std::map<int, tk_window*>& windows() {
  static std::map<int, tk_window*> all;
  return all;
}

// ::mero::event id kind ...: a widget of window id tells its window what happened.
int event_command(ClientData, Tcl_Interp*, int argc, const char* argv[]) {
  if (argc < 3) return TCL_OK;
  auto found = windows().find(std::atoi(argv[1]));
  if (found != windows().end())
    found->second->deliver(std::vector<std::string>(argv + 2, argv + argc));
  return TCL_OK;
}

void say_no_window(const std::string& reason) {
  char line[512];
  std::snprintf(line, sizeof line, wm::no_window_note, reason.c_str());
  std::cerr << line << std::endl;
}

// The one interpreter: made at the first question, kept for the life of the process. A failure
// to start is remembered, so the note on the error stream comes once.
struct session {
  Tcl_Interp* interp = nullptr;

  session() {
    const char* display = std::getenv("DISPLAY");
    if (!display || !*display) {
      say_no_window(wm::no_display_reason);
      return;
    }
    Tcl_Interp* in = Tcl_CreateInterp();
    if (Tcl_Init(in) != TCL_OK || Tk_Init(in) != TCL_OK) {
      say_no_window(std::string("Tk: ") + Tcl_GetStringResult(in));
      Tcl_DeleteInterp(in);
      return;
    }
    Tcl_Eval(in, "wm withdraw .; namespace eval ::mero {}");
    Tcl_CreateCommand(in, "::mero::event", event_command, nullptr, nullptr);
    interp = in;
  }
};

session& the_session() {
  static session s;
  return s;
}

Tcl_Obj* word(const std::string& s) {
  return Tcl_NewStringObj(s.data(), static_cast<int>(s.size()));
}

// Runs one command given as words, so that no text needs quoting; a refusal is a fault.
std::string call(const std::vector<std::string>& words) {
  Tcl_Interp* in = tk_interpreter();
  if (!in) return "";
  std::vector<Tcl_Obj*> objs;
  for (const std::string& w : words) {
    objs.push_back(word(w));
    Tcl_IncrRefCount(objs.back());
  }
  const int status = Tcl_EvalObjv(in, static_cast<int>(objs.size()), objs.data(), TCL_EVAL_GLOBAL);
  for (Tcl_Obj* o : objs) Tcl_DecrRefCount(o);
  std::string result = Tcl_GetStringResult(in);
  if (status != TCL_OK) kernel_error(wm::tk_failed.code, wm::tk_failed.text + result);
  return result;
}

int call_int(const std::vector<std::string>& words) { return std::atoi(call(words).c_str()); }

int next_id = 1;

}  // namespace

Tcl_Interp* tk_interpreter() { return the_session().interp; }

bool window_display_available() { return tk_interpreter() != nullptr; }

tk_window::tk_window(int width, int height, std::string title)
    : window(width, height, std::move(title)), id_(next_id++), path_(".w" + std::to_string(id_)) {
  windows()[id_] = this;
}

tk_window::~tk_window() {
  close();
  windows().erase(id_);
}

std::string tk_window::button_path(int number) const {
  for (std::size_t i = 0; i < items().size(); ++i) {
    const item& it = items()[i];
    if (it.what == item::kind::button && it.number == number)
      return path_ + ".b.i" + std::to_string(i);
  }
  return "";
}

bool tk_window::realize() {
  if (realized_) return true;
  if (!window_display_available()) return false;
  const std::string id = std::to_string(id_);
  call({"toplevel", path_, "-class", "Mero"});
  call({"wm", "withdraw", path_});
  call({"wm", "title", path_, title()});
  call({"wm", "protocol", path_, "WM_DELETE_WINDOW", "::mero::event " + id + " close"});
  // A toplevel destroyed by anything but close() ends a wait as a close from the frame does.
  call({"bind", path_, "<Destroy>",
        "if {\"%W\" eq \"" + path_ + "\"} {::mero::event " + id + " destroyed}"});
  call({"frame", path_ + ".p"});
  call({"frame", path_ + ".b"});
  call({"pack", path_ + ".p", "-side", "top", "-fill", "x", "-padx", "8", "-pady", "4"});
  call({"pack", path_ + ".b", "-side", "top", "-pady", "4"});
  if (width() > 0 && height() > 0) {
    call({"canvas", canvas_path(), "-width", std::to_string(width()), "-height",
          std::to_string(height()), "-background", "white", "-highlightthickness", "0",
          "-borderwidth", "0"});
    // The area keeps its size in pixels when the panel above it is wider.
    call({"pack", canvas_path(), "-side", "top"});
    call({"bind", canvas_path(), "<ButtonPress>", "::mero::event " + id + " click %b %x %y %s"});
    call({"bind", canvas_path(), "<Configure>", "::mero::event " + id + " resize %w %h"});
  }
  realized_ = true;
  for (std::size_t i = 0; i < items().size(); ++i) build_item(i);
  arrange_buttons();
  for (std::size_t i = 0; i < menu_bar().size(); ++i) menu_bar_changed(i);
  return true;
}

// The buttons and menus keep the width of their labels and fill rows from the left, each row
// centred and no wider than the drawing area (a panel without one takes a single row), so that
// a long row never widens the window beyond its picture.
void tk_window::arrange_buttons() {
  const int limit = width() > 0 ? width() : std::numeric_limits<int>::max();
  constexpr int pad = 4;
  int row = 0, used = 0;
  for (std::size_t i = 0; i < items().size(); ++i) {
    const item& it = items()[i];
    if (it.what != item::kind::button && it.what != item::kind::menu) continue;
    const std::string b = path_ + ".b.i" + std::to_string(i);
    const int w = call_int({"winfo", "reqwidth", b}) + 2 * pad;
    if (used > 0 && used + w > limit) {
      ++row;
      used = 0;
    }
    const std::string frame = path_ + ".b.r" + std::to_string(row);
    if (call({"winfo", "exists", frame}) != "1") {
      call({"frame", frame});
      call({"pack", frame, "-side", "top"});
    }
    call({"pack", b, "-in", frame, "-side", "left", "-padx", std::to_string(pad), "-pady", "1"});
    // Above its row frame, so that it shows; raised in item order, so the keyboard order of
    // the buttons stays the order of creation.
    call({"raise", b});
    used += w;
  }
}

// The bar is the toplevel's -menu; each cascade is a child menu named m<index> of its parent.
void tk_window::menu_bar_changed(std::size_t index) {
  if (!realized_) return;
  const std::string bar = path_ + ".mb";
  if (call({"winfo", "exists", bar}) != "1") {
    call({"menu", bar, "-tearoff", "0"});
    call({path_, "configure", "-menu", bar});
  }
  build_menu(bar, {menu_bar()[index]});
}

void tk_window::build_menu(const std::string& menu, const std::vector<menu_entry>& entries) {
  for (const menu_entry& e : entries) {
    if (e.separator) {
      call({menu, "add", "separator"});
      continue;
    }
    int underline = -1;
    const std::string label = menu_label(e.label, &underline);
    const std::string at = std::to_string(underline);
    if (e.entries.empty()) {
      call({menu, "add", "command", "-label", label, "-underline", at, "-command",
            "::mero::event " + std::to_string(id_) + " button " + std::to_string(e.number)});
      continue;
    }
    static int cascades = 0;
    const std::string sub = menu + ".m" + std::to_string(++cascades);
    call({"menu", sub, "-tearoff", "0"});
    call({menu, "add", "cascade", "-label", label, "-underline", at, "-menu", sub});
    build_menu(sub, e.entries);
  }
}

std::pair<std::string, int> tk_window::menu_entry_path(
    const std::vector<std::string>& labels) const {
  if (!realized_ || labels.empty()) return {"", -1};
  std::string menu = path_ + ".mb";
  const std::vector<menu_entry>* level = &menu_bar();
  for (std::size_t k = 0; k < labels.size(); ++k) {
    int index = -1;
    const menu_entry* found = nullptr;
    for (const menu_entry& e : *level) {
      ++index;
      if (!e.separator && menu_label(e.label) == menu_label(labels[k])) {
        found = &e;
        break;
      }
    }
    if (found == nullptr) return {"", -1};
    if (k + 1 == labels.size()) return {menu, index};
    if (found->entries.empty()) return {"", -1};
    menu = call({menu, "entrycget", std::to_string(index), "-menu"});
    level = &found->entries;
  }
  return {"", -1};
}

// Text and string items stack in the upper frame; buttons and menus line up in the row below.
void tk_window::build_item(std::size_t index) {
  const item& it = items()[index];
  const std::string id = std::to_string(id_);
  const std::string name = 'i' + std::to_string(index);
  const std::string p = path_ + ".p." + name, b = path_ + ".b." + name;
  switch (it.what) {
    case item::kind::text:
      call({"label", p, "-text", it.label, "-anchor", "w", "-justify", "left"});
      call({"pack", p, "-side", "top", "-fill", "x"});
      return;
    case item::kind::string: {
      const std::string var = "::mero::var(" + id + "," + name + ")";
      call({"set", var, *it.variable});
      call({"frame", p});
      call({"label", p + ".l", "-text", it.label});
      call({"entry", p + ".e", "-textvariable", var, "-width", "30"});
      call({"pack", p + ".l", "-side", "left"});
      call({"pack", p + ".e", "-side", "left", "-fill", "x", "-expand", "1"});
      call({"pack", p, "-side", "top", "-fill", "x"});
      return;
    }
    case item::kind::button:
      call({"button", b, "-text", it.label, "-command",
            "::mero::event " + id + " button " + std::to_string(it.number)});
      return;
    case item::kind::menu: {
      call({"menubutton", b, "-text", it.label, "-menu", b + ".m", "-relief", "raised",
            "-indicatoron", "1"});
      call({"menu", b + ".m", "-tearoff", "0"});
      for (std::size_t e = 0; e < it.entries.size(); ++e)
        call(
            {b + ".m", "add", "command", "-label", it.entries[e], "-command",
             "::mero::event " + id + " button " + std::to_string(it.number + static_cast<int>(e))});
      return;
    }
  }
}

void tk_window::item_changed(std::size_t index) {
  if (!realized_) return;
  const item& it = items()[index];
  const std::string name = 'i' + std::to_string(index);
  const std::string widget = path_ + (it.what == item::kind::text ? ".p." : ".b.") + name;
  if (call({"winfo", "exists", widget}) == "1") {
    if (it.what == item::kind::text) {
      call({widget, "configure", "-text", it.label});
      return;
    }
    call({"destroy", widget});  // a menu with new entries is built anew in its place
  }
  build_item(index);
  if (it.what != item::kind::text && it.what != item::kind::string) arrange_buttons();
}

void tk_window::show_at(int x, int y) {
  call({"wm", "geometry", path_, '+' + std::to_string(x) + '+' + std::to_string(y)});
  call({"wm", "deiconify", path_});
  call({"raise", path_});
  call({"update", "idletasks"});
}

void tk_window::centre_on(int left, int top, int w, int h) {
  call({"update", "idletasks"});
  const int rw = call_int({"winfo", "reqwidth", path_});
  const int rh = call_int({"winfo", "reqheight", path_});
  show_at(left + std::max(0, (w - rw) / 2), top + std::max(0, (h - rh) / 2));
}

void tk_window::display() {
  if (!realize()) return;
  centre_on(0, 0, call_int({"winfo", "screenwidth", path_}),
            call_int({"winfo", "screenheight", path_}));
}

// The asked position where the window fits on the screen; otherwise moved left and up until it
// does (never beyond the top left corner).
void tk_window::display(int x, int y) {
  if (!realize()) return;
  call({"update", "idletasks"});
  const int right =
      call_int({"winfo", "screenwidth", path_}) - call_int({"winfo", "reqwidth", path_});
  const int bottom =
      call_int({"winfo", "screenheight", path_}) - call_int({"winfo", "reqheight", path_});
  show_at(std::max(0, std::min(x, right)), std::max(0, std::min(y, bottom)));
}

void tk_window::display(const window& parent) {
  const auto* tk_parent = dynamic_cast<const tk_window*>(&parent);
  if (!tk_parent || !tk_parent->realized_) {
    display();
    return;
  }
  if (!realize()) return;
  const std::string& pp = tk_parent->path_;
  centre_on(call_int({"winfo", "rootx", pp}), call_int({"winfo", "rooty", pp}),
            call_int({"winfo", "width", pp}), call_int({"winfo", "height", pp}));
}

// A modal panel takes the keyboard: Return presses the last button (the one that agrees),
// Escape the first.
int tk_window::open() {
  if (!realize()) return close_value();
  display();
  return open(call_int({"winfo", "x", path_}), call_int({"winfo", "y", path_}));
}

int tk_window::open(int x, int y) {
  if (!realize()) return close_value();
  show_at(x, y);
  std::string first, last;
  for (std::size_t i = 0; i < items().size(); ++i)
    if (items()[i].what == item::kind::button) {
      last = path_ + ".b.i" + std::to_string(i);
      if (first.empty()) first = last;
    }
  if (!last.empty()) {
    call({"bind", path_, "<Return>", last + " invoke"});
    call({"bind", path_, "<Escape>", first + " invoke"});
  }
  call({"focus", "-force", path_});
  call({"grab", "set", path_});
  const int answer = wait(false);
  if (realized_) {
    call({"grab", "release", path_});
    call({"wm", "withdraw", path_});
  }
  return answer;
}

int tk_window::read_mouse() {
  if (!realize()) return close_value();
  if (call({"winfo", "ismapped", path_}) != "1") display();
  return wait(true);
}

// Runs the event loop until a button, a close from the frame or (if wanted) a click arrives.
int tk_window::wait(bool clicks) {
  pending_ = false;
  while (true) {
    while (!pending_) Tcl_DoOneEvent(TCL_ALL_EVENTS);
    pending_ = false;
    if (is_click_ && !clicks) continue;
    copy_variables();
    return event_;
  }
}

void tk_window::copy_variables() {
  for (std::size_t i = 0; i < items().size(); ++i) {
    const item& it = items()[i];
    if (it.what != item::kind::string) continue;
    const std::string var = "::mero::var(" + std::to_string(id_) + ",i" + std::to_string(i) + ")";
    *it.variable = call({"set", var});
  }
}

void tk_window::deliver(const std::vector<std::string>& words) {
  const std::string& kind = words[0];
  if (kind == "resize" && words.size() == 3) {
    resized(std::atoi(words[1].c_str()), std::atoi(words[2].c_str()));
    return;
  }
  is_click_ = false;
  if (kind == "button" && words.size() == 2) {
    event_ = std::atoi(words[1].c_str());
  } else if (kind == "click" && (words.size() == 4 || words.size() == 5)) {
    is_click_ = true;
    event_ = -std::atoi(words[1].c_str());
    // %s: the modifier state, shift in its lowest bit.
    const bool shift = words.size() == 5 && (std::atoi(words[4].c_str()) & 1) != 0;
    set_clicked(std::atof(words[2].c_str()), std::atof(words[3].c_str()), shift);
  } else if (kind == "close") {
    event_ = close_value();
  } else if (kind == "destroyed") {
    for (const std::string& name : images_) call({"image", "delete", name});
    images_.clear();
    realized_ = false;
    event_ = close_value();
  } else {
    return;
  }
  pending_ = true;
}

void tk_window::close() {
  if (!realized_) return;
  erase();
  call({"destroy", path_});
  realized_ = false;
}

void tk_window::create(const std::string& kind, const std::vector<double>& coordinates,
                       std::vector<std::string> options) {
  if (!realize() || width() == 0 || height() == 0) return;
  std::vector<std::string> words{canvas_path(), "create", kind};
  for (double c : coordinates) words.push_back(pixel_number(c));
  words.insert(words.end(), options.begin(), options.end());
  if (buffering()) {
    words.insert(words.end(), {"-state", "hidden", "-tags", "buffered"});
  }
  call(words);
}

namespace {
std::vector<double> flat(const std::vector<pixel_point>& points) {
  std::vector<double> c;
  for (const pixel_point& p : points) c.insert(c.end(), {p.x, p.y});
  return c;
}
}  // namespace

void tk_window::paint_polyline(const std::vector<pixel_point>& points, bool closed, const pen& p) {
  const std::string w = std::to_string(p.width);
  if (closed)
    create("polygon", flat(points), {"-fill", "", "-outline", color_hex(p.fill), "-width", w});
  else
    create("line", flat(points),
           {"-fill", color_hex(p.fill), "-width", w, "-capstyle", "round", "-joinstyle", "round"});
}

void tk_window::paint_filled_polygon(const std::vector<pixel_point>& points, const pen& p) {
  create("polygon", flat(points), {"-fill", color_hex(p.fill), "-outline", ""});
}

void tk_window::paint_oval(pixel_point c, double r, bool filled, const pen& p) {
  std::vector<double> box{c.x - r, c.y - r, c.x + r, c.y + r};
  if (filled)
    create("oval", box, {"-fill", color_hex(p.fill), "-outline", ""});
  else
    create("oval", box, {"-outline", color_hex(p.fill), "-width", std::to_string(p.width)});
}

void tk_window::paint_text(pixel_point at, const std::string& text, anchor a, const text_font& f,
                           const pen& p) {
  std::string font = "{" + f.family + "} " + std::to_string(f.size) + (f.bold ? " bold" : "");
  create("text", {at.x, at.y},
         {"-text", text, "-anchor", a == anchor::centre ? "center" : "nw", "-font", font, "-fill",
          color_hex(p.fill)});
}

void tk_window::paint_pixrect(pixel_point at, const pixrect& image) {
  if (!realize() || width() == 0 || height() == 0) return;
  const std::string name = call({"image", "create", "photo", "-width", std::to_string(image.width),
                                 "-height", std::to_string(image.height)});
  images_.push_back(name);
  std::string data;
  char hex[8];
  for (int row = 0; row < image.height; ++row) {
    data += '{';
    for (int col = 0; col < image.width; ++col) {
      const unsigned char* px =
          image.rgb.data() + (static_cast<std::size_t>(row) * image.width + col) * 3;
      std::snprintf(hex, sizeof hex, "#%02x%02x%02x", px[0], px[1], px[2]);
      data += hex;
      data += ' ';
    }
    data += "} ";
  }
  call({name, "put", data});
  create("image", {at.x, at.y}, {"-image", name, "-anchor", "nw"});
}

void tk_window::erase() {
  if (!realized_) return;
  if (width() > 0 && height() > 0) call({canvas_path(), "delete", "all"});
  for (const std::string& name : images_) call({"image", "delete", name});
  images_.clear();
}

void tk_window::buffer_flushed() {
  if (!realized_ || width() == 0 || height() == 0) return;
  call({canvas_path(), "itemconfigure", "buffered", "-state", "normal"});
  call({canvas_path(), "dtag", "buffered", "buffered"});
}

}  // namespace mero
