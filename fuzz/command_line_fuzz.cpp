// A whole run from the command line. The input is the argument line, then the files it names:
//
//   -a l1_sum -l %0 -m %1
//   %%
//   <file 0>
//   %%
//   <file 1>
//
// "%0" to "%9" in an argument stand for the files that follow, each after a line "%%", and "%L"
// for a link to itself in the scratch folder, so that "%L/loop/loop" cannot be looked up. A path
// may name nothing outside the scratch folder: an argument with ".." or with a '/' that does not
// follow one of these drops the input (a relative name without '/' is looked up where the
// fuzzer runs, and only read). The run is never windowed and its report goes to a file, which
// may hold no nan or inf.
#include <cctype>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

#include "driver/command_line.h"
#include "driver/problem_run.h"
#include "support/fuzz_support.h"

namespace {

using namespace mero;

std::vector<std::string> split_files(std::string_view rest) {
  std::vector<std::string> files;
  const std::string_view separator = "%%\n";
  while (rest.starts_with(separator)) {
    rest.remove_prefix(separator.size());
    std::size_t end = rest.find("\n%%\n");
    std::size_t cut = end == std::string_view::npos ? rest.size() : end + 1;
    files.emplace_back(rest.substr(0, cut));
    rest.remove_prefix(cut);
  }
  return files;
}

// Splits the argument line on blanks; false when an argument could reach outside the folder.
bool split_arguments(std::string_view line, std::size_t files, std::vector<std::string>& args) {
  std::istringstream in{std::string(line)};
  std::string word;
  while (in >> word) {
    if (word.find("..") != std::string::npos) return false;
    std::string expanded;
    for (std::size_t at = 0; at < word.size(); ++at) {
      const char next = at + 1 < word.size() ? word[at + 1] : '\0';
      if (word[at] == '%' && next == 'L') {
        expanded += fuzz::scratch_folder() + "/loop";
      } else if (word[at] == '%' && std::isdigit(static_cast<unsigned char>(next)) &&
                 static_cast<std::size_t>(next - '0') < files) {
        expanded += fuzz::scratch_folder() + "/f" + next;
      } else {
        if (word[at] == '/' && expanded.find(fuzz::scratch_folder()) == std::string::npos)
          return false;
        expanded += word[at];
        continue;
      }
      ++at;
    }
    args.push_back(expanded);
  }
  return args.size() <= 24;
}

bool is_not_finite_token(std::string token) {
  for (char& c : token) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  if (!token.empty() && (token[0] == '-' || token[0] == '+')) token.erase(0, 1);
  return token == "nan" || token == "inf" || token == "infinity";
}

// The report's numbers; names, which stand in brackets, may be any text.
void check_report(const std::string& path) {
  std::ifstream in(path);
  std::string line;
  while (std::getline(in, line)) {
    std::string outside;
    int depth = 0;
    for (char c : line) {
      if (c == '[') ++depth;
      if (depth == 0) outside += c;
      if (c == ']' && depth > 0) --depth;
    }
    std::istringstream words(outside);
    std::string word;
    while (words >> word)
      if (is_not_finite_token(word)) fuzz::finding("nan or inf in a report");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::size_t line_end = std::min(input.find('\n'), input.size());
  const std::vector<std::string> files =
      split_files(input.substr(std::min(line_end + 1, input.size())));
  if (files.size() > 10) return 0;
  std::vector<std::string> args;
  if (!split_arguments(input.substr(0, line_end), files.size(), args)) return 0;

  fuzz::clear_scratch_folder();
  const std::string report = fuzz::scratch_folder() + "/report";
  std::error_code ignored;
  std::filesystem::create_directory_symlink("loop", fuzz::scratch_folder() + "/loop", ignored);
  for (std::size_t k = 0; k < files.size(); ++k)
    fuzz::fuzz_input_file(files[k], "f" + std::to_string(k));

  windowed_mode = true;
  fuzz::run_reporting([&] {
    run_request request = parse_command_line(args);
    request.windowed = windowed_mode = false;
    request.output_file = report;
    run_problem(request);
  });
  check_report(report);
  return 0;
}
