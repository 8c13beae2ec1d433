#include "driver/command_line.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <string_view>

#include "driver/driver_messages.h"
#include "driver/lpinfo.h"
#include "driver/problem_run.h"
#include "driver/usage.h"
#include "kernel/reporters.h"

namespace mero {

namespace {

namespace text = driver_messages;

// The options that take a value, by their letter.
constexpr std::string_view value_letters = "algrmdpn";

bool takes_value(char letter) { return value_letters.find(letter) != std::string_view::npos; }

// The value of -p with the rules of atoi (leading blanks, a sign, digits, the rest ignored), where
// a number beyond the int range is an error instead of undefined behaviour.
int p_value(const std::string& value) {
  errno = 0;
  const long long p = std::strtoll(value.c_str(), nullptr, 10);
  if (errno == ERANGE || p < INT_MIN || p > INT_MAX) report_error(text::p_out_of_range, {value});
  return static_cast<int>(p);
}

// The state of the argument loop: the request being built and one flag per option family.
struct parser {
  explicit parser(const std::vector<std::string>& a) : args(a) {}

  const std::vector<std::string>& args;
  run_request request;
  std::string algorithm;
  bool have_a = false, have_main = false, have_r = false, have_m = false;
  bool have_p = false, have_n = false, have_gauge = false;

  void set_windowed(bool on) {
    request.windowed = on;
    windowed_mode = on;
  }

  void parse_output(std::string s, std::size_t& i);
  bool accept(const std::string& opt, const std::string& value);
  chain choose_chain() const;
  void look_up();
};

// --output takes a comma-separated list; the rightmost element of each kind wins.
void parser::parse_output(std::string s, std::size_t& i) {
  const std::string whole = s;
  s.erase(0, 8);
  if (s.empty()) {
    if (i + 1 >= args.size() || args[i + 1].starts_with('-'))
      report_error(text::missing_output_value);
    s = args[++i];
  } else if (s[0] == ':' || s[0] == '=') {
    s.erase(0, 1);
  } else {
    report_error(text::bad_output_option, {whole});
  }
  std::size_t start = 0;
  while (start <= s.size()) {
    std::size_t comma = s.find(',', start);
    if (comma == std::string::npos) comma = s.size();
    std::string element = s.substr(start, comma - start);
    start = comma + 1;
    if (element.empty()) continue;
    if (element == "windowed")
      set_windowed(true);
    else if (element == "nowindowed")
      set_windowed(false);
    else if (element.starts_with("file="))
      request.output_file = element.substr(5);
    else
      request.output_file = element;
  }
}

// The options in their fixed order; each applies only while its flag is unset. So -d before a
// main file is the discrete problem, -d after -l or -g the gauge file.
bool parser::accept(const std::string& opt, const std::string& value) {
  if (opt == "-l" && !have_main) {
    request.data_file = value;
    have_main = true;
  } else if (opt == "-g" && !have_main) {
    request.data_file = value;
    have_main = request.graph_input = true;
  } else if (opt == "-d" && !have_main) {
    request.data_file = value;
    have_main = request.discrete_input = true;
  } else if (opt == "-r" && !have_r) {
    request.second_file = value;
    have_r = true;
  } else if (opt == "-m" && !have_m) {
    request.second_file = value;
    have_r = have_m = true;
  } else if (opt == "-d" && !have_gauge) {
    request.gauge_file = value;
    have_gauge = request.have_gauge = true;
  } else if (opt == "-p" && !have_p) {
    request.p = p_value(value);
    write_lpinfo(*request.p);
    have_p = true;
  } else if (opt == "-n" && !have_n) {
    request.second_file = value;
    have_n = true;
  } else if (opt == "-a" && !have_a) {
    algorithm = value;
    have_a = true;
  } else {
    return false;
  }
  return true;
}

}  // namespace

namespace {

// Which name table applies follows from the files given. With gauges and a matrix no table
// applies, and the usage text is all the user gets.
chain parser::choose_chain() const {
  if (!have_gauge) {
    if (!have_r) return chain::A;
    return have_m ? chain::N : chain::R;
  }
  if (!have_r) return chain::G;
  if (!have_m) return chain::RG;
  print_usage_and_exit();
}

void parser::look_up() {
  if (!have_a || !have_main) report_error(text::missing_algorithm);
  chain in = choose_chain();
  request.algorithm = find_algorithm(in, algorithm);
  if (request.algorithm == no_algorithm) {
    switch (in) {
      case chain::A:
        report_error(text::illegal_algorithm_a);
      case chain::N:
        report_error(text::illegal_algorithm_n);
      case chain::R:
        report_error(text::illegal_algorithm_r);
      case chain::G:
        report_error(text::illegal_algorithm_g);
      case chain::RG:
        print_usage_and_exit();  // an unknown name here reports nothing
    }
  }
  if (needs_p(request.algorithm) && !have_p) report_error(text::missing_p);
  // The N-center numbers are left out of this check on purpose: they read N all the same.
  if (needs_n(request.algorithm) && !have_n) report_error(text::missing_n);
}

}  // namespace

run_request parse_command_line(const std::vector<std::string>& args) {
  parser p(args);
  for (std::size_t i = 0; i < args.size(); ++i) {
    std::string s = args[i];
    const std::string opt = s.substr(0, 2);
    // -a=x and -a:x mean -ax.
    if (s.size() > 2 && takes_value(s[1]) && (s[2] == ':' || s[2] == '=')) s.erase(2, 1);
    // -a x means -ax, unless x looks like an option; at the last argument the value is empty.
    if (s.size() == 2 && s[0] == '-' && takes_value(s[1]) && i + 1 < args.size()) {
      if (args[i + 1].starts_with('-')) report_error(text::missing_value, {s});
      s += args[++i];
    }
    if (s == "-help" || s == "--help" || s == "-?" || s == "-h") print_usage_and_exit();
    if (opt == "--") {
      // Any other long option is accepted and ignored.
      if (s.compare(2, 6, "output") == 0) p.parse_output(s, i);
      if (s.starts_with("--picture=")) p.request.picture_file = s.substr(10);
      if (s.starts_with("--results=")) p.request.results_file = s.substr(10);
      continue;
    }
    if (!p.accept(opt, s.substr(std::min<std::size_t>(2, s.size()))))
      report_error(text::unrecognized_option, {s});
  }
  p.look_up();
  return p.request;
}

int run_command_line(int argc, char** argv) {
  run_problem(parse_command_line(std::vector<std::string>(argv + 1, argv + argc)));
  return 0;
}

}  // namespace mero
